<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="nb">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentasjon</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Hold åpen i et vindu</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spill av</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Spill av igjen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Sted i klippet</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Merk</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advarsel</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>pluss</translation>
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
        <translation>Spilles av</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>På pause</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ferdig</translation>
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
        <translation>Høyre</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellomrom</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Opp</translation>
    </message>
</context>
</TS>
