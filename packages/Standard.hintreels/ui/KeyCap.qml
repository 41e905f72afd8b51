// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// One key: a raised cap with a line of shadow under it.
import QtQuick 2.15

Rectangle {
    id: cap

    property Look look
    property alias text: label.text

    implicitWidth: Math.max(label.implicitWidth + 3 * look.step, implicitHeight)
    implicitHeight: label.implicitHeight + look.step + 1
    radius: look.scaled(4)
    color: look.capEdge

    Rectangle {
        anchors.fill: parent
        anchors.margins: cap.look.lineWidth
        anchors.bottomMargin: cap.look.scaled(2)
        radius: cap.radius - cap.look.lineWidth
        color: cap.look.cap

        Text {
            id: label
            anchors.centerIn: parent
            color: cap.look.readable(cap.look.text, cap.look.cap)
            font.pixelSize: cap.look.smallSize
            textFormat: Text.PlainText
        }
    }
}
