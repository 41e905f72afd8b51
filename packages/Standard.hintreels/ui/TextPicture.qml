// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A picture in its place in a text, on the line that the letters beside it stand on.
import QtQuick 2.15
import QtQuick.Window 2.15

Image {
    id: picture

    property Look look
    property Hint hint
    property TextEdit text
    property var place
    // Again for each width that the text is laid out in.
    readonly property rect before: text.width, text.positionToRectangle(place.start)
    readonly property rect after: text.width, text.positionToRectangle(place.start + 1)

    // In a script from right to left the place begins at its right.
    x: before.y === after.y ? Math.min(before.x, after.x) : before.x
    y: before.y + Math.max(0, metrics.ascent - height)
    width: place.width
    height: place.height
    source: place.url
    sourceSize.width: Math.ceil(width * Screen.devicePixelRatio)
    asynchronous: true
    Accessible.role: Accessible.Graphic
    Accessible.name: place.text
    Accessible.ignored: !place.text

    FontMetrics {
        id: metrics
        font: picture.text.font
    }
}
