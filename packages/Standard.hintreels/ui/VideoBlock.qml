// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A clip with its controls, captions and a text below; away where it cannot be opened.
import QtQuick 2.15

Column {
    id: figure

    property var block
    readonly property string path: hintreelView.findResource(block.source)
    readonly property var header: hintreelReader.clip(path)
    readonly property real wantedWidth:
        look.scaled(Number(block.width) > 0 ? block.width : header.width || 0)
    readonly property bool shown: header.width !== undefined && !patience.over

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: look.step

    Item {
        id: frame
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(figure.wantedWidth, figure.width)
        height: figure.shown ? Math.ceil(width * figure.header.height / figure.header.width) : 0
        clip: true
        Accessible.role: Accessible.Animation
        Accessible.name: words.content(figure.block.alt)

        Clip {
            id: player
            objectName: "clip"
            anchors.fill: parent
            source: figure.block.source
            loop: figure.block.loop === "true" && !hintreelReader.reducedMotion()
            wanted: !hintreelReader.reducedMotion()
        }

        HoverHandler {
            id: pointer
        }

        MouseArea {
            anchors.fill: parent
            cursorShape: Qt.PointingHandCursor
            onClicked: player.toggle()
        }

        ClipCaption {
            objectName: "clipCaption"
            source: figure.block.source
            time: player.time
            shown: player.shown
        }

        ClipButton {
            objectName: "clipButton"
            player: player
            offered: (pointer.hovered || !player.wanted || activeFocus) && !player.scrubbing
        }

        ProgressLine {
            objectName: "progressLine"
            player: player
            emphasized: pointer.hovered
        }

        RoundedCorners {}
    }

    Text {
        width: figure.width
        visible: text
        text: words.content(figure.block.text)
        color: look.secondaryText
        font.pixelSize: look.smallSize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }

    // A header may promise pictures that never come.
    Timer {
        id: patience

        property bool over: false

        interval: 3000
        running: figure.header.width !== undefined && player.onScreen
        onTriggered: over = !player.shown
    }
}
