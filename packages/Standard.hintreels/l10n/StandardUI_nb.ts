<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="nb">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentasjon</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Hold åpen i et vindu</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spill av</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Spill av igjen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Sted i klippet</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Blinker raskt og spilles derfor ikke av seg selv</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Merk</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advarsel</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>pluss</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klipp</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Spilles av</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>På pause</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Vis tips</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Innhold</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Bare tekst</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Tittel og sammendrag</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Begynn smått</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Vises</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Når pekeren hviler</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Mens Ctrl holdes nede</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Bare med en tast</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Etter en hvile på</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Som vanlig</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Bli i</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Til de lukkes</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipp</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Spill av seg selv</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Spill én gang</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Spill på forespørsel</translation>
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
        <translation>Mer</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Mindre</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Ingen klipp av seg selv</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Innstillinger for tips</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Lite når det er sett</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Aldri</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Glem det som er sett</translation>
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
        <translation>Høyre</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellomrom</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Opp</translation>
    </message>
</context>
</TS>
