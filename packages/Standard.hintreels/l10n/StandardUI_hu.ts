<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="hu">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentáció</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Nyitva tartás ablakban</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lejátszás</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szünet</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Lejátszás újra</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Hely a klipben</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Megjegyzés</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Figyelmeztetés</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plusz</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 mp</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Lejátszás alatt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Véget ért</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Le</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Balra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Jobbra</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Szóköz</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Fel</translation>
    </message>
</context>
</TS>
