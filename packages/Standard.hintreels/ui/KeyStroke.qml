// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The keys that are pressed together, joined by plus signs; a comma leads on to the next stroke.
import QtQuick 2.15

Row {
    id: stroke

    property Look look
    property var keys: []
    property bool last: true

    spacing: look.step / 2

    Repeater {
        model: stroke.keys

        Row {
            id: key

            required property var modelData
            required property int index

            spacing: stroke.spacing

            KeyCap {
                look: stroke.look
                text: key.modelData
            }

            Text {
                readonly property bool lastKey: key.index === stroke.keys.length - 1

                visible: !lastKey || !stroke.last
                anchors.verticalCenter: key.verticalCenter
                text: lastKey ? "," : "+"
                color: stroke.look.secondaryText
                font.pixelSize: stroke.look.smallSize
                textFormat: Text.PlainText
            }
        }
    }
}
