<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ar">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>الوثائق</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>إبقاء مفتوحًا في نافذة</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>تشغيل مرة أخرى</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>الموضع في المقطع</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>نصيحة</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>زائد</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>مقطع</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>انتهى</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>مسافة</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
</context>
</TS>
