<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="da">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Hold åben i et vindue</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspil</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Afspil igen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Sted i klippet</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Blinker hurtigt og afspilles derfor ikke af sig selv</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Bemærk</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advarsel</translation>
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
        <translation>Afspilles</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>På pause</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Slut</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Vis tip</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Indhold</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Kun tekst</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titel og resumé</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Begynd småt</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Vis dem</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Når markøren hviler</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Mens Ctrl holdes nede</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Kun med en tast</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Efter en hvile på</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Som normalt</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Bliv i</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Indtil de lukkes</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Afspil af sig selv</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Afspil én gang</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Afspil efter ønske</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Vis undertekster</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekststørrelse</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mere</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Mindre</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Ingen klip af sig selv</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Indstillinger for tip</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Småt når det er set</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Aldrig</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Glem hvad der er set</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Venstre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Højre</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellemrum</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Op</translation>
    </message>
</context>
</TS>
