// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// What a clip shows, step by step, for readers who want less motion: a still for each caption.
import QtQuick 2.15
import com.zentora.hintreels.qml 1.1

Column {
    id: steps

    property Look look
    property Hint hint
    // That plays the clip, while there is one.
    property HRVideoComponent clip
    property var captions: []
    property real stillWidth: 0
    property real stillHeight: 0

    spacing: 3 * look.step
    visible: captions.length > 0
    height: visible ? implicitHeight : 0

    Repeater {
        model: steps.captions

        Column {
            id: step

            required property var modelData
            required property int index
            readonly property var caption: modelData

            width: steps.width
            spacing: steps.look.step

            HRClipStill {
                objectName: "still" + step.index
                anchors.horizontalCenter: step.horizontalCenter
                width: steps.stillWidth
                height: steps.stillHeight
                source: steps.clip
                clip: true
                time: step.caption.start
                Accessible.role: Accessible.Graphic
                Accessible.name: label.text

                RoundedCorners {
                    look: steps.look
                }
            }

            Caption {
                id: label
                look: steps.look
                width: step.width
                text: steps.hint.reader.caption(steps.hint.words.content(step.caption.text))
                Accessible.ignored: true // said of the still
            }
        }
    }
}
