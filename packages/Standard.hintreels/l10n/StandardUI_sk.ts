<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="sk">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentácia</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Ponechať otvorené v okne</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Prehrať</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastaviť</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Prehrať znova</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Miesto v klipe</translation>
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
        <translation>Varovanie</translation>
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
        <translation>Prehráva sa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastavené</translation>
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
        <translation>Nadol</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Doľava</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Doprava</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Medzerník</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahor</translation>
    </message>
</context>
</TS>
