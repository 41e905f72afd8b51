// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A picture with a caption, both away where the picture cannot be shown.
import QtQuick 2.15

Column {
    id: figure

    property var block
    readonly property var file: hintreelReader.picture(hintreelView.findResource(block.source))
    readonly property real wantedWidth:
        look.scaled(Number(block.width) > 0 ? block.width : file.width || 0)
    readonly property bool shown: file.url !== undefined && picture.status !== Image.Error

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: look.step

    Image {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(figure.wantedWidth, figure.width)
        height: figure.file.url ? Math.ceil(width * figure.file.height / figure.file.width) : 0
        source: figure.file.url || ""
        sourceSize.width: width
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
