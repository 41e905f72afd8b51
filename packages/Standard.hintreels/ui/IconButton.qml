// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A small square button that shows an icon only.
import QtQuick 2.15

Pressable {
    id: button

    property alias path: icon.path
    property alias filled: icon.filled

    implicitWidth: look.target
    implicitHeight: implicitWidth

    Rectangle {
        anchors.fill: parent
        radius: button.look.radius
        color: button.pressed ? button.look.line
            : button.hovered ? button.look.hover : "transparent"
    }

    Icon {
        id: icon
        look: button.look
        anchors.centerIn: parent
        color: button.hovered ? look.text : look.secondaryText
    }
}
