// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A tip, note or warning: a tinted panel with a slim coloured bar at its start. In high
// contrast a frame takes the place of the tint.
import QtQuick 2.15

Rectangle {
    id: note

    property BlockSlot slot
    readonly property Look look: slot.look
    readonly property var titles: slot.hint.words.noteTitles
    readonly property string kind: titles[slot.block.kind] ? slot.block.kind : "note"
    readonly property color accent: look.noteColors[kind]

    implicitHeight: text.y + text.height + 2 * look.step
    radius: look.radius
    color: look.shade(accent, 0.10)
    border.width: look.highContrast ? look.lineWidth : 0
    border.color: look.line
    Accessible.role: Accessible.Note
    Accessible.name: title.text

    Rectangle {
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.margins: 2 * note.look.step
        anchors.topMargin: anchors.margins
        width: note.look.scaled(3)
        radius: width / 2
        color: note.look.highContrast ? title.color : note.accent
    }

    Text {
        id: title
        anchors.left: text.left
        anchors.right: text.right
        y: 2 * note.look.step
        text: note.titles[note.kind]
        color: note.look.readable(note.accent, note.color)
        font.pixelSize: note.look.smallSize
        font.weight: note.look.strong
        horizontalAlignment: Text.AlignLeft
        textFormat: Text.PlainText
    }

    MarkdownText {
        id: text
        look: note.look
        hint: note.slot.hint
        anchors.left: parent.left
        anchors.leftMargin: 5 * look.step
        y: title.y + title.height + look.step / 2
        width: note.width - 8 * look.step
        background: note.color
        markdown: note.slot.block.text
        mostLinks: note.slot.block.links ?? 100
    }
}
