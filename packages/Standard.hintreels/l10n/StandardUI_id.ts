<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="id">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentasi</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Tetap buka dalam jendela</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Putar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Putar lagi</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Posisi dalam klip</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Catatan</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Peringatan</translation>
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
        <translation>%1 dtk</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Diputar</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Dijeda</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Selesai</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Bawah</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Kiri</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Kanan</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spasi</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Atas</translation>
    </message>
</context>
</TS>
