// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Where a link stands in a text: for the keyboard and for screen readers.
import QtQuick 2.15

Item {
    id: link

    property Look look
    property Hint hint
    property TextEdit text
    property var place
    // Again for each width that the text is laid out in.
    readonly property rect first: text.width, text.positionToRectangle(place.start)
    readonly property rect last: text.width, text.positionToRectangle(place.end)
    readonly property bool oneLine: first.y === last.y

    function open() {
        hint.view.openExternalResource(place.href)
    }

    x: oneLine ? Math.min(first.x, last.x) : 0
    y: first.y
    width: oneLine ? Math.abs(last.x - first.x) : text.width
    height: last.y + last.height - first.y
    activeFocusOnTab: hint.view.reserved
    Accessible.role: Accessible.Link
    Accessible.name: place.text
    Accessible.focusable: hint.view.reserved
    Accessible.onPressAction: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()

    FocusRing {
        look: link.look
    }
}
