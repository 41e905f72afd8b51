<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="sv">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Håll öppet i ett fönster</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spela upp</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Spela upp igen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Plats i klippet</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Blinkar snabbt och spelas därför inte av sig själv</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Obs</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varning</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
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
        <translation>Spelas upp</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Slut</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Visa tips</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Innehåll</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Allt</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Endast text</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titel och sammanfattning</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Börja smått</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Visas</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>När pekaren vilar</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Medan Ctrl hålls nere</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Endast med en tangent</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Efter en vila på</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Som vanligt</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Stanna i</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Tills de stängs</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipp</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Spela av sig själva</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Spela en gång</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Spela på begäran</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Visa undertexter</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textstorlek</translation>
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
        <translation>Inga klipp av sig själva</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Inställningar för tips</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Litet när det har setts</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Aldrig</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Glöm vad som har setts</translation>
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
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Skift</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
</context>
</TS>
