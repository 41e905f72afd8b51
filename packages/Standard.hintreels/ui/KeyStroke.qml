// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The keys that are pressed together, joined by plus signs; a comma leads on to the next stroke.
import QtQuick 2.15

Row {
    id: stroke

    property var keys: []
    property bool last: true

    spacing: look.step / 2

    Repeater {
        model: stroke.keys

        Row {
            spacing: stroke.spacing

            KeyCap {
                text: modelData
            }

            Text {
                readonly property bool lastKey: index === stroke.keys.length - 1

                visible: !lastKey || !stroke.last
                anchors.verticalCenter: parent.verticalCenter
                text: lastKey ? "," : "+"
                color: look.secondaryText
                font.pixelSize: look.smallSize
                textFormat: Text.PlainText
            }
        }
    }
}
