// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A clip with a text below; away where it cannot be opened.
//
// Only its header is read until it comes into sight, and again once the popup is hidden for a while.
import QtQuick 2.15

Column {
    id: figure

    property var block
    readonly property string path: hintreelView.findResource(block.source)
    readonly property var header: hintreelReader.measured, hintreelReader.clip(path)
    readonly property bool shown: header.width !== undefined && !patience.over

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: look.step

    Item {
        id: frame
        anchors.horizontalCenter: parent.horizontalCenter
        width: look.widthOf(figure.header, figure.block.width, figure.width)
        height: figure.shown ? Math.ceil(width * figure.header.height / figure.header.width) : 0
        clip: true
        Accessible.role: Accessible.Animation
        Accessible.name: figure.block.alt || ""

        Loader {
            id: stage
            anchors.fill: parent
            active: slot.seen && list.awake && figure.shown
            sourceComponent: ClipStage {
                block: figure.block
            }
        }

        RoundedCorners {}
    }

    Caption {
        width: figure.width
        text: figure.block.text
    }

    // A header may promise pictures that never come.
    Timer {
        id: patience

        property bool over: false

        interval: 3000
        running: stage.item !== null && list.onScreen
        onTriggered: over = !stage.item.shown
    }
}
