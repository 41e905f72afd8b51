<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ro">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentație</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Păstrează deschis într-o fereastră</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Redă</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Redă din nou</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Poziția în clip</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Sfat</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notă</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertisment</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Se redă</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>În pauză</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Încheiat</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Jos</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Stânga</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dreapta</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spațiu</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Sus</translation>
    </message>
</context>
</TS>
