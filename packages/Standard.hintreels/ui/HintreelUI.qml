// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The full UI: fixed in width, as tall as its content up to a part of the screen.
import QtQml 2.15
import QtQuick 2.15
import QtQuick.Window 2.15

Rectangle {
    id: root

    readonly property bool detached: hintreelView.reserved
    // The keyboard is in the page, and not on anything in it.
    readonly property bool pageFocused: hint.reader.focusItem === page
    readonly property color seam: detached ? look.background : look.line
    // Beyond that it would cover what the reader goes to next.
    readonly property int tallest:
        Math.floor(0.6 * Math.min(Screen.height, Screen.desktopAvailableHeight))

    // The popup takes its size at once; columns on their own lay themselves out a frame later.
    function layOut() {
        title.forceLayout()
        blocks.makeFirst(tallest)
        column.forceLayout()
    }

    implicitWidth: hint.small
        ? Math.min(look.width, title.naturalWidth + 2 * look.padding) : look.width
    implicitHeight: Math.min(Math.ceil(page.contentHeight), tallest)
    color: look.background

    Component.onCompleted: layOut()

    // Where nothing is selected, all of it is meant.
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Copy)
        if (event.accepted)
            hint.reader.copy(hint.values)
    }

    LayoutMirroring.enabled: hint.rightToLeft
    LayoutMirroring.childrenInherit: true

    Page {
        id: page
        look: look
        objectName: "page"
        anchors.fill: parent
        contentHeight: column.height + 2 * look.padding
        focus: true

        // The pin is read last, but Tab comes to it first.
        Keys.onTabPressed: event => {
            event.accepted = root.pageFocused && pin.visible
            if (event.accepted)
                pin.forceActiveFocus(Qt.TabFocusReason)
        }

        Column {
            id: column
            x: look.padding
            y: look.padding
            width: root.width - 2 * look.padding
            spacing: 3 * look.step

            Title {
                id: title
                look: look
                hint: hint
                width: parent.width
                reserve: pin.visible ? pin.width + look.step : 0
            }

            BlockList {
                id: blocks
                look: look
                hint: hint
                objectName: "blocks"
                width: parent.width
                sightTop: page.contentY - column.y - y
                sightHeight: page.height
            }

            LinkRow {
                look: look
                hint: hint
                objectName: "documentation"
                anchors.left: parent.left
                availableWidth: parent.width
                visible: hint.documentation
                text: hint.words.documentation + hint.reader.shownTarget(hint.documentation, "")
                target: hint.documentation
                onTriggered: hint.view.openExternalResource(hint.documentation)
            }
        }
    }

    IconButton {
        id: pin
        look: look
        hint: hint
        objectName: "pin"
        anchors.right: parent.right
        anchors.rightMargin: look.padding - look.step
        y: Math.round(look.padding + (title.lineHeight - height) / 2)
        visible: !root.detached
        name: hint.words.pin
        path: "M10 2 L14 6 L11 7 L9 11 L5 7 L9 5 Z M7 9 L3 13"
        onTriggered: hint.view.reserved = true
    }

    Connections {
        target: hint
        function onTaken() {
            root.layOut()
            page.contentY = 0 // what is new is read from its beginning
            page.forceActiveFocus() // in the scene: what had the focus may be gone
        }
    }

    // A window has a frame of its own.
    Rectangle {
        anchors.fill: parent
        visible: !root.detached
        color: "transparent"
        border.width: root.pageFocused ? look.scaled(look.lineWidth + 1) : look.lineWidth
        border.color: root.pageFocused ? look.focus : look.line
    }

    // QML evaluates what stands last first: the element after what it is read with, and all that is
    // shown after these two.
    Look { id: look; view: hintreelView; reader: hintreelReader }
    Hint {
        id: hint
        element: hintreel
        view: hintreelView
        reader: hintreelReader
        words: Words { view: hintreelView; reader: hintreelReader; values: hint.values }
    }
}
