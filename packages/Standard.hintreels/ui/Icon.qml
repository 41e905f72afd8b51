// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A line drawing in the colour of the text; paths are drawn on a square of 16 by 16.
import QtQuick 2.15

Canvas {
    id: icon

    property Look look
    property string path
    property color color: look.secondaryText
    property bool filled: false

    implicitWidth: look.scaled(16)
    implicitHeight: implicitWidth

    onPathChanged: requestPaint()
    onColorChanged: requestPaint()
    onFilledChanged: requestPaint()

    onPaint: {
        const context = getContext("2d")
        context.reset()
        context.scale(width / 16, height / 16)
        context.strokeStyle = color
        context.fillStyle = color
        context.lineWidth = 1.4
        context.lineCap = "round"
        context.lineJoin = "round"
        context.path = path
        if (filled)
            context.fill()
        context.stroke()
    }
}
