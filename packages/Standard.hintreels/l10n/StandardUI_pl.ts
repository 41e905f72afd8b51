<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="pl">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentacja</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Pozostaw otwarte w oknie</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Odtwórz ponownie</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Miejsce w klipie</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Szybko miga, więc nie odtwarza się sam</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Wskazówka</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
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
        <translation>Odtwarzanie</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Podpowiedzi</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Pokazuj podpowiedzi</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Treść</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Wszystko</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Tylko tekst</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Tytuł i streszczenie</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Zaczynaj od małych</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Pojawianie się</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Gdy wskaźnik się zatrzyma</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Podczas przytrzymania Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Tylko klawiszem</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Po zatrzymaniu na</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Jak zwykle</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Pozostają przez</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Do zamknięcia</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipy</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Odtwarzaj same</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Odtwarzaj raz</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Odtwarzaj na żądanie</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Pokazuj napisy</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Rozmiar tekstu</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Mniej</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Bez samoczynnych klipów</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Ustawienia podpowiedzi</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Małe po obejrzeniu</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nigdy</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Zapomnij obejrzane</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>W lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>W prawo</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
</context>
</TS>
