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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Rychle bliká, proto se nepřehrává samo</translation>
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
    <message>
        <source>Hints</source>
        <translation>Nápovědy</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Zobrazovat nápovědy</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Obsah</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Vše</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Pouze text</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Název a shrnutí</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Začínat v malém</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Když se ukazatel zastaví</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Při držení klávesy Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Pouze klávesou</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Po zastavení na</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Jako obvykle</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Ponechat po dobu</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Do zavření</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipy</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Přehrávat samy</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Přehrát jednou</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Přehrát na vyžádání</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Zobrazovat titulky</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Velikost textu</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Více</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Méně</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Klipy nepřehrávat samy</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Nastavení nápověd</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>V malém po zhlédnutí</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nikdy</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Zapomenout zhlédnuté</translation>
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
