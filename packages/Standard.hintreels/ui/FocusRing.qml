// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Shows where the keyboard is.
import QtQuick 2.15

Rectangle {
    property Look look

    anchors.fill: parent
    anchors.margins: -look.step / 2
    visible: parent.activeFocus
    color: "transparent"
    radius: look.radius
    border.width: look.scaled(2)
    border.color: look.focus
    z: 1
}
