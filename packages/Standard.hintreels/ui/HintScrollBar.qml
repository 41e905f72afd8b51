// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A slim scroll bar that is there only when there is something to scroll.
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

T.ScrollBar {
    id: bar

    property Look look

    objectName: "scrollBar"
    implicitWidth: 3 * look.step
    padding: look.step
    minimumSize: 0.1
    visible: size < 1
    Accessible.ignored: true // what is out of sight is read as well

    contentItem: Rectangle {
        radius: width / 2
        color: bar.pressed || bar.hovered ? bar.look.secondaryText : bar.look.control
    }
}
