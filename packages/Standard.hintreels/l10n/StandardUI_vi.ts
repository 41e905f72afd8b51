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
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Nhấp nháy nhanh nên không tự phát</translation>
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
    <message>
        <source>Hints</source>
        <translation>Gợi ý</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Hiện gợi ý</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Nội dung</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tất cả</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Chỉ văn bản</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Tiêu đề và tóm tắt</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Bắt đầu thu nhỏ</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Xuất hiện</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Khi con trỏ dừng lại</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Trong khi giữ Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Chỉ bằng phím</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Sau khi dừng</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Như thường lệ</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Ở lại trong</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Cho đến khi đóng</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Đoạn phim</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Tự phát</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Phát một lần</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Phát khi yêu cầu</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Hiện phụ đề</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Cỡ chữ</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Nhiều hơn</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Ít hơn</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Không tự phát đoạn phim</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Cài đặt gợi ý</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Thu nhỏ khi đã xem</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Không bao giờ</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Quên những gì đã xem</translation>
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
