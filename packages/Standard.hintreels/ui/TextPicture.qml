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
    readonly property rect before: text.positionToRectangle(place.start, text.width)
    readonly property rect after: text.positionToRectangle(place.start + 1, text.width)

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
