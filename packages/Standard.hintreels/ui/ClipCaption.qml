// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The caption that belongs to the picture on show, from a file beside the clip.
import QtQuick 2.15

Rectangle {
    id: caption

    property Look look
    property Hint hint
    property string source
    property real time: 0
    property bool shown: false
    readonly property var captions: hint.captionsOf(source)
    readonly property string text: captions.filter(c => c.start <= time && time < c.end)
        .map(c => c.text).join("\n")

    anchors.horizontalCenter: parent.horizontalCenter
    y: parent.height - height - 3 * look.step
    width: label.width + 4 * look.step
    height: label.height + 2 * look.step
    visible: shown && text
    radius: look.scaled(4)
    color: look.veil(0.75)

    Text {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, caption.parent.width - 8 * caption.look.step)
        text: caption.hint.reader.caption(caption.hint.words.content(caption.text))
        color: "#ffffff"
        font.pixelSize: caption.look.smallSize
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
