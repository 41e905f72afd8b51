<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ru">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Документация</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Оставить открытым в окне</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Воспроизвести снова</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Место в ролике</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Совет</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
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
        <translation>Воспроизводится</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>На паузе</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Завершено</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
</context>
</TS>
