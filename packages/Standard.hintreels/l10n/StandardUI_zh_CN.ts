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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>闪烁较快，因此不会自动播放</translation>
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
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>显示提示</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>仅文字</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>标题和摘要</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>先显示小窗</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>出现时机</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>指针停留时</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>按住 Ctrl 时</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>仅按键时</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>停留时间</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>照常</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>保持时间</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>直到关闭</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>短片</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>自动播放</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>播放一次</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>按需播放</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>显示字幕</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>文字大小</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>更少</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>不自动播放短片</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>提示设置</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>看过后先显示小窗</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>忘记看过的内容</translation>
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
