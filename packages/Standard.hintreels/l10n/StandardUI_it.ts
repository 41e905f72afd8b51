<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="it">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentazione</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Tieni aperto in una finestra</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Riproduci di nuovo</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Posizione nella clip</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Suggerimento</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>più</translation>
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
        <translation>In riproduzione</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminato</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Del</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Pag giù</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Pag su</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stamp</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
</context>
</TS>
