// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A clip with a text below; away where it cannot be opened.
//
// Only its header is read until it comes into sight, and again once the popup is hidden for a while.
// It plays while it is in sight.
import QtQml 2.15
import QtQuick 2.15
import com.zentora.hintreels.qml 1.1

Column {
    id: figure

    property BlockSlot slot
    readonly property HRContentReader reader: slot.hint.reader
    readonly property string path: slot.hint.view.findResource(slot.block.source)
    readonly property var header: reader.measured, reader.clip(path)
    // A header may promise pictures that never come.
    property bool failed: false
    property bool flashing: false
    property HRVideoComponent pictures
    readonly property var steps: shown && reader.showsCaptions && reader.reducedMotion()
        ? stepsOf(slot.hint.captionsOf(slot.block.source)) : []
    readonly property bool shown: header.width !== undefined && !failed

    // One caption says nothing of steps, and of more than this they are none.
    function stepsOf(captions) {
        return captions.length > 1 && captions.length <= 24 ? captions : []
    }

    visible: shown
    height: shown ? implicitHeight : 0
    spacing: slot.look.step

    Item {
        id: frame

        property string spokenState
        readonly property real seenHeight:
            Math.min(height, figure.slot.sightTop + figure.slot.sightHeight)
            - Math.max(0, figure.slot.sightTop)

        anchors.horizontalCenter: figure.horizontalCenter
        width: figure.slot.look.widthOf(figure.header, figure.slot.block.width, figure.width)
        height: figure.shown ? Math.ceil(width * figure.header.height / figure.header.width) : 0
        clip: true
        Accessible.role: Accessible.Animation
        Accessible.name: figure.slot.block.alt || figure.slot.hint.words.spoken.clip || ""
        Accessible.description: spokenState

        Loader {
            id: stage
            anchors.fill: parent
            active: figure.slot.seen && figure.slot.awake && figure.shown
            sourceComponent: ClipStage {
                look: figure.slot.look
                hint: figure.slot.hint
                block: figure.slot.block
                inSteps: figure.steps.length > 0
                onFlashingChanged: figure.flashing = flashing
                Component.onCompleted: figure.pictures = pictures
                onSpokenStateChanged: frame.spokenState = spokenState
                // Half of it, or half of what the popup shows, is enough to follow it.
                watched: frame.seenHeight
                    >= Math.min(frame.height, figure.slot.sightHeight) / 2
            }
        }

        RoundedCorners {
            look: figure.slot.look
        }
    }

    Caption {
        objectName: "flashing"
        look: figure.slot.look
        width: figure.width
        text: figure.flashing ? figure.slot.hint.words.flashing : ""
        Accessible.ignored: true // said with the state of the clip
    }

    Caption {
        look: figure.slot.look
        width: figure.width
        text: figure.slot.block.text
    }

    ClipSteps {
        look: figure.slot.look
        hint: figure.slot.hint
        width: figure.width
        clip: figure.pictures
        captions: figure.steps
        stillWidth: frame.width
        stillHeight: frame.height
    }

    Connections {
        target: stage.item
        function onFailedChanged() { figure.failed = true }
    }
}
