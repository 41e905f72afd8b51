// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The blocks of the content in their order. A block that shows nothing takes no room.
import QtQuick 2.15

Column {
    id: list

    readonly property var componentOfBlock: ({
        "text": "TextBlock.qml",
        "keys": "KeysBlock.qml",
        "picture": "PictureBlock.qml",
        "note": "NoteBlock.qml",
        "link": "LinkBlock.qml",
        "video": "VideoBlock.qml"
    })

    spacing: 3 * look.step

    Repeater {
        model: hint.blocks

        Loader {
            readonly property var block: modelData

            width: list.width
            // With its width from the start, a block has its height before the first frame.
            onBlockChanged: setSource(list.componentOfBlock[block.block], {
                "block": block, "width": list.width
            })
        }
    }
}
