<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="he">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>תיעוד</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>השארה פתוחה בחלון</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>הפעלה</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>השהיה</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>הפעלה חוזרת</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>מיקום בקטע</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>עצה</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>הערה</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>אזהרה</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>פלוס</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>קטע</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 שנ׳</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>מתנגן</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>מושהה</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>הסתיים</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>למטה</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>שמאלה</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>ימינה</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>רווח</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>למעלה</translation>
    </message>
</context>
</TS>
