// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The blocks of the content in their order. A block that shows nothing takes no room.
//
// As many as the popup can show are there at once; the others follow bit by bit, below what the
// reader sees, so that not even the longest hint holds up the host.
import QtQml 2.15
import QtQuick 2.15
import QtQuick.Window 2.15

Column {
    id: list

    property Look look
    property Hint hint
    // What the reader sees of the list: from here, so far.
    property real sightTop: 0
    property real sightHeight: 0
    property int made: 0
    readonly property bool onScreen: Window.window !== null && Window.window.visible
    // Until a while after the popup has hidden: readers come back to where they just were.
    property bool awake: false

    readonly property var componentOfBlock: ({
        "text": "TextBlock.qml",
        "keys": "KeysBlock.qml",
        "picture": "PictureBlock.qml",
        "note": "NoteBlock.qml",
        "link": "LinkBlock.qml",
        "video": "VideoBlock.qml"
    })

    function makeNext() {
        const slot = slots.itemAt(made++)
        slot.make(componentOfBlock[slot.block.block])
        return slot.height + spacing
    }

    function makeFirst(height) {
        made = 0
        while (made < slots.count && height > 0)
            height -= makeNext()
        forceLayout()
    }

    spacing: 3 * look.step
    onOnScreenChanged: awake = awake || onScreen

    Repeater {
        id: slots
        model: list.hint.blocks

        BlockSlot {
            id: slot

            required property var modelData
            readonly property bool inSight:
                height > 0 && sightTop + sightHeight > 0 && height > sightTop

            // Where the blocks above have only now got their heights, this one is still too high up.
            // What is called later may be gone by then, and with it what it knows.
            function see() {
                if (!list)
                    return
                list.forceLayout()
                seen = seen || inSight
            }

            block: modelData
            look: list.look
            hint: list.hint
            sightTop: list.sightTop - y
            sightHeight: list.sightHeight
            awake: list.awake
            width: list.width
            onInSightChanged: Qt.callLater(see)
        }
    }

    Timer {
        interval: 1
        repeat: true
        running: list.made < slots.count
        onTriggered: {
            const end = Date.now() + 8 // ms, half of what a picture is on the screen
            do {
                list.makeNext()
            } while (list.made < slots.count && Date.now() < end)
        }
    }

    Timer {
        interval: 2000
        running: list.awake && !list.onScreen
        onTriggered: {
            list.awake = false
            leftover.restart()
        }
    }

    // Clips go a moment after their loaders have let go of them.
    Timer {
        id: leftover
        interval: 200
        onTriggered: list.hint.reader.returnMemory()
    }
}
