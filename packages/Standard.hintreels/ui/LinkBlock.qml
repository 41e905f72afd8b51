// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

import QtQuick 2.15

Item {
    id: link

    property BlockSlot slot

    implicitHeight: row.height

    LinkRow {
        id: row
        look: link.slot.look
        hint: link.slot.hint
        anchors.left: parent.left
        availableWidth: link.width
        text: link.slot.block.text
            + hint.reader.shownTarget(link.slot.block.to, link.slot.block.text)
        target: link.slot.block.to
        onTriggered: hint.view.openExternalResource(link.slot.block.to)
    }
}
