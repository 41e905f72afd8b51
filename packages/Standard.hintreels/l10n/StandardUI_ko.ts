<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ko">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>설명서</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>창으로 열어 두기</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>다시 재생</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>클립에서의 위치</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>팁</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>플러스</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>클립</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>재생 중</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>끝남</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>스페이스</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위</translation>
    </message>
</context>
</TS>
