<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="el">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Τεκμηρίωση</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Διατήρηση ανοιχτού σε παράθυρο</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Αναπαραγωγή</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Αναπαραγωγή ξανά</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Θέση στο κλιπ</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Συμβουλή</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Σημείωση</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Προειδοποίηση</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>συν</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Κλιπ</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 δ</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Αναπαράγεται</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Σε παύση</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Τέλος</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Κάτω</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Αριστερά</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Δεξιά</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Διάστημα</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Πάνω</translation>
    </message>
</context>
</TS>
