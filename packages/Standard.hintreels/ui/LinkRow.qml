// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A line that opens something outside the popup.
import QtQuick 2.15

Pressable {
    id: row

    property alias text: label.text
    property string target
    property real availableWidth

    name: text
    width: label.width + look.step + icon.width
    height: Math.max(label.height, look.target)
    Accessible.role: Accessible.Link
    Accessible.description: hint.unseenTarget(target, text)

    Text {
        id: label
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.availableWidth - icon.width - row.look.step)
        color: row.look.link
        font.pixelSize: row.look.bodySize
        font.underline: row.hovered || row.look.highContrast
        horizontalAlignment: Text.AlignLeft
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
    }

    Icon {
        id: icon
        look: row.look
        anchors.left: label.right
        anchors.leftMargin: look.step
        y: Math.round(label.y + (label.contentHeight / label.lineCount - height) / 2)
        width: look.scaled(12)
        height: width
        color: look.link
        path: "M5 11 L11 5 M6 5 L11 5 L11 10"
        transform: Scale {
            origin.x: icon.width / 2
            xScale: row.hint.rightToLeft ? -1 : 1
        }
    }
}
