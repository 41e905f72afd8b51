<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
</context>
<context>
    <name>Content</name>
    <message>
        <source>Straße</source>
        <translation>Weg</translation>
    </message>
</context>
</TS>
