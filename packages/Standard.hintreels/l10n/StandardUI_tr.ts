<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="tr">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Belgeler</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Pencerede açık tut</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Yeniden oynat</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Klipteki konum</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>İpucu</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>artı</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 sn</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Oynatılıyor</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Bitti</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
</context>
</TS>
