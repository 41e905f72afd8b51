<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="hu">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentáció</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Nyitva tartás ablakban</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lejátszás</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szünet</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Lejátszás újra</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Hely a klipben</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Gyorsan villog, ezért nem indul el magától</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Megjegyzés</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Figyelmeztetés</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plusz</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 mp</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Lejátszás alatt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Véget ért</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Tippek</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Tippek megjelenítése</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Tartalom</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Minden</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Csak szöveg</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Cím és összefoglaló</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Kezdés kicsiben</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Megjelenés</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Ha a mutató megáll</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Amíg a Ctrl le van nyomva</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Csak billentyűre</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Ennyi várakozás után</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>A szokásos módon</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Láthatók maradnak</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Bezárásig</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipek</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Lejátszás maguktól</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Lejátszás egyszer</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Lejátszás kérésre</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Feliratok megjelenítése</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Szövegméret</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Több</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Kevesebb</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Ne induljanak maguktól a klipek</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>A tippek beállításai</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Kicsiben, ha már látta</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Soha</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>A látottak elfelejtése</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Le</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Balra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Jobbra</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Szóköz</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Fel</translation>
    </message>
</context>
</TS>
