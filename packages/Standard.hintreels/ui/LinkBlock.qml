// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

import QtQuick 2.15

Item {
    property var block

    implicitHeight: row.height

    LinkRow {
        id: row
        anchors.left: parent.left
        availableWidth: parent.width
        text: block.text + hintreelReader.shownTarget(block.to, block.text)
        onTriggered: hintreelView.openExternalResource(block.to)
    }
}
