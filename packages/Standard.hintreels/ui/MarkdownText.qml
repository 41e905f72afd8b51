// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Formatted text. Its links can be reached by keyboard, and the text copied, once it is detached.
import QtQuick 2.15

TextEdit {
    id: edit

    property string markdown
    property color background: look.background
    readonly property color linkColor: hintreelReader.readable(look.palette.highlight, background)
    property var links: []
    property string linkUnderPointer

    function refill() {
        links = hintreelReader.showMarkdown(textDocument, markdown, {
            "link": linkColor, "codeBackground": look.code, "spacing": 2 * look.step
        })
    }

    color: hintreelReader.readable(look.text, background)
    font.pixelSize: look.bodySize
    horizontalAlignment: TextEdit.AlignLeft
    textFormat: TextEdit.RichText
    wrapMode: TextEdit.Wrap
    // The space between lines stands below the last one, too.
    bottomPadding: -look.step
    readOnly: true
    activeFocusOnPress: hintreelView.reserved
    selectByMouse: hintreelView.reserved
    selectionColor: look.palette.highlight
    selectedTextColor: look.palette.highlightedText
    Accessible.role: Accessible.StaticText

    onLinkActivated: hintreelView.openExternalResource(link)
    onLinkHovered: linkUnderPointer = link
    Component.onCompleted: refill()

    HoverHandler {
        cursorShape: edit.linkUnderPointer ? Qt.PointingHandCursor
            : edit.selectByMouse ? Qt.IBeamCursor : Qt.ArrowCursor
    }

    // Once, when all colours of a new palette are there.
    Connections {
        target: look
        function onLinkChanged() { Qt.callLater(edit.refill) }
        function onCodeChanged() { Qt.callLater(edit.refill) }
    }

    Repeater {
        model: edit.links

        Item {
            readonly property rect first: edit.positionToRectangle(modelData.start, edit.width)
            readonly property rect last: edit.positionToRectangle(modelData.end, edit.width)
            readonly property bool oneLine: first.y === last.y

            x: oneLine ? Math.min(first.x, last.x) : 0
            y: first.y
            width: oneLine ? Math.abs(last.x - first.x) : edit.width
            height: last.y + last.height - first.y
            activeFocusOnTab: hintreelView.reserved
            Accessible.role: Accessible.Link
            Accessible.name: modelData.text
            Accessible.focusable: hintreelView.reserved
            Accessible.onPressAction: hintreelView.openExternalResource(modelData.href)
            Keys.onReturnPressed: hintreelView.openExternalResource(modelData.href)
            Keys.onEnterPressed: hintreelView.openExternalResource(modelData.href)

            FocusRing {}
        }
    }
}
