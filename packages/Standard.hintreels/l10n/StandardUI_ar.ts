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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>يومض بسرعة، لذلك لا يُشغَّل تلقائيًا</translation>
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
    <message>
        <source>Hints</source>
        <translation>التلميحات</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>إظهار التلميحات</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>المحتوى</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>كل شيء</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>النص فقط</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>العنوان والملخص</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>البدء مصغّرًا</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>الظهور</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>عند توقف المؤشر</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>أثناء الضغط على Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>بمفتاح فقط</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>بعد توقف لمدة</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>كالمعتاد</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>البقاء لمدة</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>حتى الإغلاق</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>المقاطع</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>تشغيل تلقائي</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>تشغيل مرة واحدة</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>تشغيل عند الطلب</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>إظهار التسميات التوضيحية</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>حجم النص</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>أقل</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>بدون تشغيل تلقائي للمقاطع</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>إعدادات التلميحات</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>مصغّر بعد مشاهدته</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>نسيان ما تمت مشاهدته</translation>
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
