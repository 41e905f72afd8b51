<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="vi">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Tài liệu</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Giữ mở trong cửa sổ</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Phát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tạm dừng</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Phát lại</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Vị trí trong đoạn phim</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Mẹo</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Ghi chú</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Cảnh báo</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>cộng</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 giây</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Đang phát</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Đã tạm dừng</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Đã kết thúc</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Down</source>
        <translation>Xuống</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Phím cách</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Lên</translation>
    </message>
</context>
</TS>
