<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="sv">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Håll öppet i ett fönster</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spela upp</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Spela upp igen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Plats i klippet</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Obs</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varning</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klipp</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Spelas upp</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Slut</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Skift</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
</context>
</TS>
