// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The full UI: fixed in width, as tall as its content up to what the screen allows.
import QtQuick 2.15
import QtQuick.Window 2.15

Rectangle {
    id: root

    readonly property bool detached: hintreelView.reserved
    readonly property color seam: detached ? look.background : look.line
    readonly property int tallest:
        Math.min(Screen.height, Screen.desktopAvailableHeight) - 2 * look.padding

    // The popup takes its size at once; columns on their own lay themselves out a frame later.
    function layOut() {
        title.forceLayout()
        blocks.makeFirst(tallest)
        column.forceLayout()
    }

    implicitWidth: look.width
    implicitHeight: Math.min(Math.ceil(page.contentHeight), tallest)
    color: look.background

    Component.onCompleted: layOut()

    LayoutMirroring.enabled: hint.rightToLeft
    LayoutMirroring.childrenInherit: true

    Hint { id: hint }
    Look { id: look }
    Words { id: words }

    Page {
        id: page
        objectName: "page"
        anchors.fill: parent
        contentHeight: column.height + 2 * look.padding
        focus: true

        Column {
            id: column
            x: look.padding
            y: look.padding
            width: look.width - 2 * look.padding
            spacing: 3 * look.step

            Title {
                id: title
                width: parent.width
                reserve: pin.visible ? pin.width + look.step : 0
            }

            BlockList {
                id: blocks
                objectName: "blocks"
                width: parent.width
                sightTop: page.contentY - column.y - y
                sightHeight: page.height
            }

            LinkRow {
                objectName: "documentation"
                anchors.left: parent.left
                availableWidth: parent.width
                visible: hint.documentation
                text: words.documentation + hintreelReader.shownTarget(hint.documentation, "")
                onTriggered: hintreelView.openExternalResource(hint.documentation)
            }
        }
    }

    IconButton {
        id: pin
        objectName: "pin"
        anchors.right: parent.right
        anchors.rightMargin: look.padding - look.step
        y: Math.round(look.padding + (title.lineHeight - height) / 2)
        visible: !root.detached
        name: words.pin
        path: "M10 2 L14 6 L11 7 L9 11 L5 7 L9 5 Z M7 9 L3 13"
        onTriggered: hintreelView.reserved = true
    }

    Connections {
        target: hint
        function onTaken() { root.layOut() }
    }

    // A window has a frame of its own.
    Rectangle {
        anchors.fill: parent
        visible: !root.detached
        color: "transparent"
        border.width: 1
        border.color: look.line
    }
}
