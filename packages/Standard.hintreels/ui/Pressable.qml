// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Whatever the reader can press: by mouse at any time, by keyboard where that has come into the
// popup.
import QtQuick 2.15

Item {
    id: pressable

    property Look look
    property Hint hint
    property string name
    readonly property alias hovered: area.containsMouse
    readonly property alias pressed: area.pressed

    signal triggered

    activeFocusOnTab: hint.focusable

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.focusable: hint.focusable
    Accessible.focused: look.hasFocus(pressable)
    Accessible.onPressAction: triggered()

    Keys.onReturnPressed: triggered()
    Keys.onEnterPressed: triggered()
    Keys.onSpacePressed: triggered()

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: pressable.triggered()
    }

    FocusRing {
        look: pressable.look
    }
}
