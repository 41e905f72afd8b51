// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Plays, pauses and plays again: large in the middle of a resting clip, small in the corner of one
// that plays, and of a clip that the large one would hide.
import QtQuick 2.15

Pressable {
    id: button

    property Clip player
    property bool offered: true
    readonly property real room: Math.min(parent.width, parent.height)
    readonly property real largeSize: Math.max(look.target, look.scaled(44))
    readonly property bool large: !player.wanted && room >= 3 * largeSize
    readonly property real margin: Math.min(2 * look.step, room / 20)

    z: 1 // the line below takes presses as high up
    name: player.ended ? hint.words.playAgain
        : player.wanted ? hint.words.pause : hint.words.play
    // A smaller one leaves more of a small clip in sight, which can be pressed all over.
    width: large ? largeSize
        : Math.min(Math.max(look.target, look.scaled(28)), Math.round(room / 3))
    height: width
    x: large ? Math.round((parent.width - width) / 2) : margin
    y: large ? Math.round((parent.height - height) / 2)
        : parent.height - height - margin - look.step
    onTriggered: player.toggle()

    // Out of sight and not away: a screen reader passes over what has no opacity itself.
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: button.look.veil(button.hovered ? 0.82 : 0.63)
        border.width: button.look.highContrast ? button.look.lineWidth : 0
        border.color: "#ffffff"
        opacity: button.offered ? 1 : 0

        Behavior on opacity {
            enabled: !button.hint.reader.reducedMotion()
            NumberAnimation { duration: 120 }
        }

        Icon {
            look: button.look
            anchors.centerIn: parent
            width: Math.round(parent.width * 0.5)
            height: width
            color: "#ffffff"
            filled: !button.player.ended
            path: button.player.ended ? "M13 4 L13 8 L9 8 M13 8 A5.2 5.2 0 1 0 12 12"
                : button.player.wanted ? "M4 3 L6 3 L6 13 L4 13 Z M10 3 L12 3 L12 13 L10 13 Z"
                : "M5 3 L13 8 L5 13 Z"
        }
    }
}
