// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Where a part of a text stands.
import QtQuick 2.15

Item {
    property Look look
    property Hint hint
    property TextEdit text
    property var place
    // Again for each width that the text is laid out in.
    readonly property rect first: text.width, text.positionToRectangle(place.start)
    readonly property rect last: text.width, text.positionToRectangle(place.end)
    readonly property bool oneLine: first.y === last.y

    x: oneLine ? Math.min(first.x, last.x) : 0
    y: first.y
    width: oneLine ? Math.abs(last.x - first.x) : text.width
    height: last.y + last.height - first.y
}
