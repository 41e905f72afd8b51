// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Shows where the keyboard is.
import QtQuick 2.15

Rectangle {
    id: ring

    property Look look

    anchors.fill: parent
    anchors.margins: -look.step / 2
    visible: look.hasFocus(parent)
    color: "transparent"
    radius: look.radius
    border.width: look.scaled(look.lineWidth + 1)
    border.color: look.focus
    z: 1

    // Over a clip one of the two stands out.
    Rectangle {
        anchors.fill: parent
        anchors.margins: parent.border.width
        color: "transparent"
        radius: parent.radius
        border.width: Math.max(1, ring.look.scaled(1))
        border.color: ring.look.background
    }
}
