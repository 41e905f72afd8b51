<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ro">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentație</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Păstrează deschis într-o fereastră</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Redă</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Redă din nou</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Poziția în clip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Pâlpâie rapid, de aceea nu pornește singur</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Sfat</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notă</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertisment</translation>
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
        <translation>Se redă</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>În pauză</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Încheiat</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Indicii</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Afișează indiciile</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Conținut</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Doar text</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titlu și rezumat</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Începe în formă mică</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Apar</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Când indicatorul se oprește</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Cât timp Ctrl este apăsat</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Doar cu o tastă</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>După o oprire de</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Ca de obicei</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Rămân timp de</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Până la închidere</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clipuri</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Redă automat</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Redă o dată</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Redă la cerere</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Afișează subtitrările</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Mărimea textului</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mai mult</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Mai puțin</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Fără clipuri automate</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Setările indiciilor</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Mic după ce a fost văzut</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Niciodată</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Uită ce s-a văzut</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Jos</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Stânga</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dreapta</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spațiu</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Sus</translation>
    </message>
</context>
</TS>
