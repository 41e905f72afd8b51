<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ja">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>ウィンドウで開いておく</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>もう一度再生</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>クリップ内の位置</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>プラス</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
</context>
</TS>
