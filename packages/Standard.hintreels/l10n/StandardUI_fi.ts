<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="fi">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Ohjeet</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Pidä avoinna ikkunassa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Toista</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tauko</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Toista uudelleen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Kohta leikkeessä</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Välkkyy nopeasti, joten sitä ei toisteta itsestään</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Vinkki</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Huomautus</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varoitus</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Leike</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Toistetaan</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Tauolla</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Lopussa</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Vihjeet</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Näytä vihjeet</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Sisältö</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Kaikki</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Vain teksti</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Otsikko ja tiivistelmä</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Aloita pienenä</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Näkyviin</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Kun osoitin pysähtyy</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Kun Ctrl on painettuna</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Vain näppäimellä</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Pysähdyksen jälkeen</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Kuten yleensä</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Näkyvissä</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Kunnes suljetaan</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Leikkeet</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Toista itsestään</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Toista kerran</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Toista pyydettäessä</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Näytä tekstitys</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekstin koko</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Enemmän</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Vähemmän</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Ei itsestään toistuvia leikkeitä</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Vihjeiden asetukset</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Pienenä, kun on nähty</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Ei koskaan</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Unohda nähdyt</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Alas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vasen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Oikea</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Vaihto</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Välilyönti</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Ylös</translation>
    </message>
</context>
</TS>
