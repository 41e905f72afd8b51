// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A picture with a caption, both away where the picture cannot be shown.
import QtQuick 2.15
import QtQuick.Window 2.15
import com.zentora.hintreels.qml 1.1

Column {
    id: figure

    property BlockSlot slot
    readonly property HRContentReader reader: slot.hint.reader
    readonly property string path: slot.hint.view.findResource(slot.block.source)
    readonly property var file: reader.measured, reader.picture(path)
    readonly property bool shown: file.url !== undefined && picture.status !== Image.Error

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: slot.look.step

    Image {
        id: picture
        anchors.horizontalCenter: figure.horizontalCenter
        width: figure.slot.look.widthOf(figure.file, figure.slot.block.width, figure.width)
        height: figure.file.url ? Math.ceil(width * figure.file.height / figure.file.width) : 0
        source: figure.slot.seen && figure.file.url || ""
        sourceSize.width: Math.ceil(width * Screen.devicePixelRatio)
        asynchronous: true
        Accessible.role: Accessible.Graphic
        Accessible.name: figure.slot.block.alt || ""
        Accessible.ignored: !figure.slot.block.alt

        RoundedCorners {
            look: figure.slot.look
        }
    }

    Caption {
        look: figure.slot.look
        width: figure.width
        text: figure.slot.block.text
    }
}
