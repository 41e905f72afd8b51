// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// One key: a raised cap with a line of shadow under it.
import QtQuick 2.15

Rectangle {
    id: cap

    property alias text: label.text

    implicitWidth: Math.max(label.implicitWidth + 3 * look.step, implicitHeight)
    implicitHeight: label.implicitHeight + look.step + 1
    radius: look.scaled(4)
    color: look.capEdge

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        anchors.bottomMargin: look.scaled(2)
        radius: cap.radius - 1
        color: look.cap

        Text {
            id: label
            anchors.centerIn: parent
            color: hintreelReader.readable(look.text, look.cap)
            font.pixelSize: look.smallSize
            textFormat: Text.PlainText
        }
    }
}
