<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="cs">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentace</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Ponechat otevřené v okně</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Přehrát znovu</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Místo v klipu</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
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
        <translation>Přehrává se</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Na konci</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Dolů</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Doleva</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Doprava</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mezerník</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
</context>
</TS>
