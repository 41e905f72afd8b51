<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>In einem Fenster offen halten</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Noch einmal abspielen</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Stelle im Film</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Achtung</translation>
    </message>
</context>
</TS>
