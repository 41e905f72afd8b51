// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Formatted text. Its links can be reached by keyboard, and the text copied, once it is detached.
import QtQml 2.15
import QtQuick 2.15

TextEdit {
    id: edit

    property Look look
    property Hint hint
    property string markdown
    property color background: look.background
    readonly property color linkColor: look.readable(look.palette.highlight, background)
    property int mostLinks: 100
    property var shown: ({})
    property string linkUnderPointer

    function refill() {
        shown = hint.reader.showMarkdown(textDocument, markdown, {
            "link": linkColor, "codeBackground": look.code, "spacing": 2 * look.step,
            "room": Qt.size(width, look.highestPicture), "links": mostLinks,
            "spoken": hint.reader.spoken
        }, hint.view.findResource)
    }

    color: look.readable(look.text, background)
    font.pixelSize: look.bodySize
    horizontalAlignment: TextEdit.AlignLeft
    textFormat: TextEdit.RichText
    wrapMode: TextEdit.Wrap
    // The space between lines stands below the last one, too.
    bottomPadding: -look.step
    readOnly: true
    activeFocusOnPress: hint.focusable
    selectByMouse: hint.focusable
    selectionColor: look.selection
    selectedTextColor: look.readable(look.palette.highlightedText, look.selection)

    // What is selected, or all of the hint.
    Keys.onPressed: event => {
        event.accepted = !selectedText && event.matches(StandardKey.Copy)
        if (event.accepted)
            hint.reader.copy(hint.values)
    }

    onLinkActivated: link => hint.view.openExternalResource(link)
    onLinkHovered: link => linkUnderPointer = link
    Component.onCompleted: refill()

    HoverHandler {
        cursorShape: edit.linkUnderPointer ? Qt.PointingHandCursor
            : edit.selectByMouse ? Qt.IBeamCursor : Qt.ArrowCursor
    }

    // Pictures that were not measured yet have no place in the text.
    Connections {
        target: edit.hint.reader
        enabled: edit.markdown.includes("![")
        function onMeasuredChanged() { Qt.callLater(edit.refill) }
    }

    Connections {
        target: edit.hint.reader
        function onSpokenChanged() { Qt.callLater(edit.refill) }
    }

    // Once, when all colours of a new palette are there.
    Connections {
        target: edit.look
        function onLinkChanged() { Qt.callLater(edit.refill) }
        function onCodeChanged() { Qt.callLater(edit.refill) }
    }

    // A screen reader's user comes upon links and pictures inside the passages.
    Repeater {
        model: edit.shown.passages

        TextPassage {
            required property var modelData

            look: edit.look
            hint: edit.hint
            text: edit
            place: modelData
        }
    }

    Repeater {
        model: edit.shown.pictures

        TextPicture {
            required property var modelData

            text: edit
            place: modelData
        }
    }

    Repeater {
        model: edit.shown.links

        TextLink {
            required property var modelData

            look: edit.look
            hint: edit.hint
            text: edit
            place: modelData
        }
    }
}
