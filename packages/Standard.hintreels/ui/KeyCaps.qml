// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A shortcut or gesture as key caps; several strokes follow each other and wrap between strokes.
import QtQuick 2.15

Item {
    id: caps

    property Look look
    property Hint hint
    property string shortcut
    property real availableWidth: Infinity
    readonly property var strokes: hint.reader.keyCaps(shortcut)
    readonly property real naturalWidth: {
        let sum = 0
        for (let i = 0; i < repeater.count; ++i)
            sum += (i ? flow.spacing : 0) + (repeater.itemAt(i) ? repeater.itemAt(i).width : 0)
        return Math.ceil(sum)
    }

    width: Math.min(naturalWidth, availableWidth)
    height: flow.height
    Accessible.role: Accessible.StaticText
    Accessible.name: hint.words.spoken.plus ? hint.reader.spokenKeys(shortcut, hint.words.spoken.plus)
        : shortcut

    Flow {
        id: flow

        // Keys are pressed in the order in which they are written, in every script.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        width: parent.width
        spacing: caps.look.step

        Repeater {
            id: repeater
            model: caps.strokes

            KeyStroke {
                required property var modelData
                required property int index

                look: caps.look
                keys: modelData
                last: index === caps.strokes.length - 1
            }
        }
    }
}
