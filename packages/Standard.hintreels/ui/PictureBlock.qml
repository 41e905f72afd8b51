// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A picture with a caption, both away where the picture cannot be shown.
import QtQuick 2.15
import QtQuick.Window 2.15

Column {
    id: figure

    property var block
    readonly property string path: hintreelView.findResource(block.source)
    readonly property var file: hintreelReader.measured, hintreelReader.picture(path)
    readonly property bool shown: file.url !== undefined && picture.status !== Image.Error

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: look.step

    Image {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        width: look.widthOf(figure.file, figure.block.width, figure.width)
        height: figure.file.url ? Math.ceil(width * figure.file.height / figure.file.width) : 0
        source: slot.seen && figure.file.url || ""
        sourceSize.width: Math.ceil(width * Screen.devicePixelRatio)
        asynchronous: true
        Accessible.role: Accessible.Graphic
        Accessible.name: figure.block.alt || ""

        RoundedCorners {}
    }

    Caption {
        width: figure.width
        text: figure.block.text
    }
}
