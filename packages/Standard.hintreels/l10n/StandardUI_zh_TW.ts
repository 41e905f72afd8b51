<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_TW">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>說明文件</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>在視窗中保持開啟</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>再次播放</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>片段中的位置</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>閃爍較快，因此不會自動播放</translation>
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
        <translation>播放中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已結束</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>顯示提示</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>僅文字</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>標題與摘要</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>先顯示小視窗</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>出現時機</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>指標停留時</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>按住 Ctrl 時</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>僅按鍵時</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>停留時間</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>照常</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>保持時間</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>直到關閉</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>短片</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>自動播放</translation>
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
        <translation>顯示字幕</translation>
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
        <translation>不自動播放短片</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>提示設定</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>看過後先顯示小視窗</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>從不</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>忘記看過的內容</translation>
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
        <translation>空白鍵</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
</context>
</TS>
