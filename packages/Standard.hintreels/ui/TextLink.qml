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
    readonly property rect first: text.positionToRectangle(place.start, text.width)
    readonly property rect last: text.positionToRectangle(place.end, text.width)
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
