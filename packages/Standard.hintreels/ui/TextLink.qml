// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Where a link stands in a text: for the keyboard and for screen readers.
import QtQuick 2.15

Item {
    property Item text
    property var place
    readonly property rect first: text.positionToRectangle(place.start, text.width)
    readonly property rect last: text.positionToRectangle(place.end, text.width)
    readonly property bool oneLine: first.y === last.y

    function open() {
        hintreelView.openExternalResource(place.href)
    }

    x: oneLine ? Math.min(first.x, last.x) : 0
    y: first.y
    width: oneLine ? Math.abs(last.x - first.x) : text.width
    height: last.y + last.height - first.y
    activeFocusOnTab: hintreelView.reserved
    Accessible.role: Accessible.Link
    Accessible.name: place.text
    Accessible.focusable: hintreelView.reserved
    Accessible.onPressAction: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()

    FocusRing {}
}
