<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="da">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Hold åben i et vindue</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspil</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Afspil igen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Sted i klippet</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Bemærk</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advarsel</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Afspilles</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>På pause</translation>
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
        <translation>Venstre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Højre</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellemrum</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Op</translation>
    </message>
</context>
</TS>
