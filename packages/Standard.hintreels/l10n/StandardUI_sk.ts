<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="sk">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentácia</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Ponechať otvorené v okne</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Prehrať</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastaviť</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Prehrať znova</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Miesto v klipe</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Rýchlo bliká, preto sa neprehráva sám</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varovanie</translation>
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
        <translation>Prehráva sa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastavené</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Na konci</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Pomôcky</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Zobrazovať pomôcky</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Obsah</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Všetko</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Iba text</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Názov a zhrnutie</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Začínať v malom</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Zobraziť</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Keď sa ukazovateľ zastaví</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Počas držania klávesu Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Iba klávesom</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Po zastavení na</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Ako zvyčajne</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Ponechať počas</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Do zatvorenia</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipy</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Prehrávať samy</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Prehrať raz</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Prehrať na požiadanie</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Zobrazovať titulky</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Veľkosť textu</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Viac</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menej</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Neprehrávať klipy samy</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Nastavenia pomôcok</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>V malom po zhliadnutí</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nikdy</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Zabudnúť zhliadnuté</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Nadol</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Doľava</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Doprava</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Medzerník</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahor</translation>
    </message>
</context>
</TS>
