<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="it">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentazione</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Tieni aperto in una finestra</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Riproduci di nuovo</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Posizione nella clip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Lampeggia rapidamente, perciò non parte da solo</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Suggerimento</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>più</translation>
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
        <translation>In riproduzione</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminato</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Suggerimenti</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Mostra i suggerimenti</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenuto</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Solo testo</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Titolo e riassunto</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Inizia in piccolo</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Appaiono</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Quando il puntatore si ferma</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Mentre si tiene premuto Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Solo con un tasto</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Dopo una sosta di</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Come di consueto</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Restano per</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Fino alla chiusura</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Riproduci da sole</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Riproduci una volta</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Riproduci su richiesta</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Mostra i sottotitoli</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Dimensione del testo</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Di più</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Di meno</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Nessuna clip automatica</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Impostazioni dei suggerimenti</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Piccolo dopo averlo visto</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Dimentica ciò che è stato visto</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Del</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Pag giù</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Pag su</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stamp</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
</context>
</TS>
