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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>速く点滅するため、自動では再生されません</translation>
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
    <message>
        <source>Hints</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>ヒントを表示</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>テキストのみ</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>タイトルと概要</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>小さく始める</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>表示の条件</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>ポインターが止まったとき</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Ctrl を押している間</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>キーを押したときのみ</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>止まってからの時間</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>通常どおり</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>表示時間</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>閉じるまで</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>自動で再生</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>一度だけ再生</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>求めたときに再生</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>字幕を表示</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>文字の大きさ</translation>
    </message>
    <message>
        <source>More</source>
        <translation>もっと表示</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>少なく表示</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>クリップを自動再生しない</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>ヒントの設定</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>見たあとは小さく</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>見た記録を消す</translation>
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
