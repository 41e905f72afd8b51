// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// What a key combination or gesture does, with its caps at the end of the line as menus have them.
import QtQuick 2.15

Item {
    id: row

    property BlockSlot slot
    readonly property bool beside: caps.naturalWidth <= 0.55 * width

    implicitHeight: Math.max(text.height, caps.y + caps.height)

    Text {
        id: text
        anchors.left: parent.left
        y: row.beside ? Math.max(0, Math.round((caps.height - contentHeight / lineCount) / 2)) : 0
        width: row.beside ? parent.width - caps.width - 4 * row.slot.look.step : parent.width
        text: row.slot.block.text
        color: row.slot.look.text
        font.pixelSize: row.slot.look.bodySize
        horizontalAlignment: Text.AlignLeft
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text.text
    }

    KeyCaps {
        id: caps
        look: row.slot.look
        hint: row.slot.hint
        anchors.right: row.beside ? parent.right : undefined
        anchors.left: row.beside ? undefined : parent.left
        y: row.beside || !text.text ? 0 : text.height + row.slot.look.step
        shortcut: row.slot.block.press
        availableWidth: row.width
    }
}
