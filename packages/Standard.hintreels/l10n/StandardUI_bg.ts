<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="bg">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Документация</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Задържане отворено в прозорец</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пускане</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Пускане отново</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Място в клипа</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Съвет</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Бележка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>плюс</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Клип</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Възпроизвежда се</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>На пауза</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Завърши</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Надолу</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Наляво</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Надясно</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Интервал</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Нагоре</translation>
    </message>
</context>
</TS>
