<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="nl">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentatie</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Openhouden in een venster</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Opnieuw afspelen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Plaats in de clip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Knippert snel en speelt daarom niet vanzelf</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
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
        <translation>Speelt af</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Afgelopen</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Hints</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Hints tonen</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhoud</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Alleen tekst</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titel en samenvatting</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Klein beginnen</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Verschijnen</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Als de aanwijzer rust</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Zolang Ctrl is ingedrukt</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Alleen met een toets</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Na een rust van</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Zoals gebruikelijk</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Blijven voor</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Tot ze gesloten worden</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Vanzelf afspelen</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Eén keer afspelen</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Op verzoek afspelen</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Ondertitels tonen</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekstgrootte</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Minder</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Geen clips vanzelf</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Instellingen van de hints</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Klein zodra gezien</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nooit</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Vergeten wat gezien is</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spatie</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
</context>
</TS>
