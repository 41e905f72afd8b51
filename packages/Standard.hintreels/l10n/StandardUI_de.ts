<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="de">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>In einem Fenster offen halten</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Noch einmal abspielen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Stelle im Clip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Blinkt schnell und läuft deshalb nicht von selbst</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
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
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Zu Ende</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Hinweise anzeigen</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titel und Zusammenfassung</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Klein beginnen</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Erscheinen</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Wenn der Zeiger ruht</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Solange Strg gedrückt ist</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Nur auf Tastendruck</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Nach einer Ruhe von</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Wie üblich</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Bleiben für</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Bis zum Schließen</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Von selbst abspielen</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Einmal abspielen</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Auf Wunsch abspielen</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Untertitel anzeigen</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Keine Clips von selbst</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Einstellungen der Hinweise</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Klein, sobald gesehen</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Gesehenes vergessen</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
</context>
<context>
    <name>SpokenKeys</name>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Position 1</translation>
    </message>
</context>
</TS>
