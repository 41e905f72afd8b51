<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="fi">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Ohjeet</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Pidä avoinna ikkunassa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Toista</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tauko</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Toista uudelleen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Kohta leikkeessä</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Vinkki</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Huomautus</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varoitus</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Leike</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Toistetaan</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Tauolla</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Lopussa</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Alas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vasen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Oikea</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Vaihto</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Välilyönti</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Ylös</translation>
    </message>
</context>
</TS>
