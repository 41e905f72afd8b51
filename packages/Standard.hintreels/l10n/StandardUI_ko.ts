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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>빠르게 깜박이므로 자동으로 재생되지 않습니다</translation>
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
    <message>
        <source>Hints</source>
        <translation>힌트</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>힌트 표시</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>텍스트만</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>제목과 요약</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>작게 시작</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>나타나는 때</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>포인터가 멈출 때</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Ctrl을 누르는 동안</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>키로만</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>멈춘 뒤 시간</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>평소대로</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>표시 시간</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>닫을 때까지</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>클립</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>자동 재생</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>한 번 재생</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>요청할 때 재생</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>자막 표시</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>글자 크기</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>간단히</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>클립 자동 재생 안 함</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>힌트 설정</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>본 뒤에는 작게</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>안 함</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>본 기록 지우기</translation>
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
