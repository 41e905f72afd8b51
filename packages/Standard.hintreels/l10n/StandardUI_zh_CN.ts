<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>在窗口中保持打开</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>重新播放</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>片段中的位置</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>加</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>短片</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已结束</translation>
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
        <translation>空格</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
</context>
</TS>
