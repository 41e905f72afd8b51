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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>מהבהב במהירות, ולכן אינו מופעל מעצמו</translation>
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
    <message>
        <source>Hints</source>
        <translation>רמזים</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>הצגת רמזים</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>תוכן</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>הכול</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>טקסט בלבד</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>כותרת ותקציר</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>להתחיל בקטן</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>הופעה</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>כשהמצביע נח</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>כל עוד Ctrl לחוץ</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>במקש בלבד</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>אחרי מנוחה של</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>כרגיל</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>להישאר למשך</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>עד לסגירה</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>סרטונים</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>ניגון מעצמם</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>ניגון פעם אחת</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>ניגון לפי בקשה</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>הצגת כתוביות</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>גודל הטקסט</translation>
    </message>
    <message>
        <source>More</source>
        <translation>יותר</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>פחות</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>בלי סרטונים מעצמם</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>הגדרות הרמזים</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>קטן אחרי שנראה</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>אף פעם</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>לשכוח מה נראה</translation>
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
