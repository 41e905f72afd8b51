// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Rounds the corners of its parent by covering them with a frame in the colour of the background.
import QtQuick 2.15

Rectangle {
    id: corners

    property Look look

    anchors.fill: parent
    anchors.margins: -border.width
    color: "transparent"
    radius: look.radius + border.width
    border.width: look.step
    border.color: look.background

    Rectangle {
        anchors.fill: parent
        anchors.margins: corners.border.width
        color: "transparent"
        radius: corners.look.radius
        border.width: 1
        border.color: corners.look.line
    }
}
