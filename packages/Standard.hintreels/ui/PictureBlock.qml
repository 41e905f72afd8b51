// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A picture with a caption, both away where the picture cannot be shown.
import QtQuick 2.15

Column {
    id: figure

    property var block
    readonly property bool shown: picture.status === Image.Ready
    readonly property real wantedWidth: Number(block.width) > 0
        ? look.scaled(Number(block.width)) : look.scaled(picture.implicitWidth)

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: look.step

    Image {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.round(Math.min(figure.wantedWidth, figure.width))
        height: implicitWidth > 0 ? Math.round(width * implicitHeight / implicitWidth) : 0
        source: hintreelReader.picture(hintreelView.findResource(figure.block.source))
        mipmap: true
        Accessible.role: Accessible.Graphic
        Accessible.name: words.content(figure.block.alt)

        RoundedCorners {}
    }

    Text {
        width: figure.width
        visible: text
        text: words.content(figure.block.text)
        color: look.secondaryText
        font.pixelSize: look.smallSize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
}
