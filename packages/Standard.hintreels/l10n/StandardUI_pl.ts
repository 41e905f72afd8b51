<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="pl">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentacja</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Pozostaw otwarte w oknie</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Odtwórz ponownie</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Miejsce w klipie</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Wskazówka</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
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
        <translation>Odtwarzanie</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Zakończono</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>W lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>W prawo</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
</context>
</TS>
