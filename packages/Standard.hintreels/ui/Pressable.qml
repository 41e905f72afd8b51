// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Whatever the reader can press: by mouse at any time, by keyboard once the popup is detached.
import QtQuick 2.15

Item {
    id: pressable

    property string name
    readonly property bool hovered: hover.hovered
    readonly property bool pressed: tap.pressed

    signal triggered

    activeFocusOnTab: hintreelView.reserved

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.focusable: hintreelView.reserved
    Accessible.onPressAction: triggered()

    Keys.onReturnPressed: triggered()
    Keys.onEnterPressed: triggered()
    Keys.onSpacePressed: triggered()

    TapHandler {
        id: tap
        onTapped: pressable.triggered()
    }

    HoverHandler {
        id: hover
        cursorShape: Qt.PointingHandCursor
    }

    FocusRing {}
}
