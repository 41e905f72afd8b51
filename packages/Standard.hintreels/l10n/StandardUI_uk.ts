<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="uk">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Документація</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Залишити відкритим у вікні</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Відтворити знову</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Місце в ролику</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Порада</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примітка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Попередження</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>плюс</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Кліп</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Відтворюється</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Призупинено</translation>
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
        <translation>Ліворуч</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Праворуч</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробіл</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вгору</translation>
    </message>
</context>
</TS>
