<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="nl">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentatie</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Openhouden in een venster</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Opnieuw afspelen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Plaats in de clip</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
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
        <translation>Speelt af</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Afgelopen</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spatie</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
</context>
</TS>
