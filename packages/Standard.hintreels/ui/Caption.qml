// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The words below a picture or clip.
import QtQuick 2.15

Text {
    property Look look

    visible: text
    color: look.secondaryText
    font.pixelSize: look.smallSize
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignHCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
