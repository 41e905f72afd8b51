// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A tip, note or warning: a tinted panel with a slim coloured bar at its start.
import QtQuick 2.15

Rectangle {
    id: note

    property var block
    readonly property string kind: words.noteTitles[block.kind] ? block.kind : "note"
    readonly property color accent: look.noteColors[kind]

    implicitHeight: text.y + text.height + 2 * look.step
    radius: look.radius
    color: look.mix(accent, 0.10)

    Rectangle {
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.margins: 2 * look.step
        anchors.topMargin: anchors.margins
        width: look.scaled(3)
        radius: width / 2
        color: note.accent
    }

    Text {
        id: title
        anchors.left: text.left
        anchors.right: text.right
        y: 2 * look.step
        text: words.noteTitles[note.kind]
        color: hintreelReader.readable(note.accent, note.color)
        font.pixelSize: look.smallSize
        font.weight: look.strong
        horizontalAlignment: Text.AlignLeft
        textFormat: Text.PlainText
    }

    MarkdownText {
        id: text
        anchors.left: parent.left
        anchors.leftMargin: 5 * look.step
        y: title.y + title.height + look.step / 2
        width: note.width - 8 * look.step
        background: note.color
        markdown: note.block.text
        mostLinks: note.block.links === undefined ? 100 : note.block.links
    }
}
