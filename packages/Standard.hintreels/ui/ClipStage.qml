// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A clip with its controls and captions.
import QtQuick 2.15

Item {
    id: stage

    property Look look
    property Hint hint
    property var block
    property bool watched: true
    readonly property alias failed: player.failed
    readonly property alias flashing: player.flashing
    readonly property alias pictures: player.pictures
    // Whether its captions stand below it.
    property bool inSteps: false
    readonly property var spoken: hint.words.spoken
    readonly property string spokenState: spoken.seconds ? [
        spoken.seconds.arg(Math.round(player.length)),
        player.ended ? spoken.ended : player.wanted ? spoken.playing : spoken.paused
    ].concat(flashing ? hint.words.flashing : []).join(", ") : ""

    Clip {
        id: player
        objectName: "clip"
        anchors.fill: parent
        source: stage.block.source
        loop: stage.block.loop === "true" && stage.hint.reader.repeatsClips
        wanted: stage.hint.reader.playsClips
        watched: stage.watched
    }

    HoverHandler {
        id: pointer
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: player.toggle()
    }

    ClipCaption {
        look: stage.look
        hint: stage.hint
        objectName: "clipCaption"
        source: stage.block.source
        time: player.time
        shown: player.shown && stage.hint.reader.showsCaptions
            && (!stage.inSteps || player.asked || player.time > 0)
    }

    ClipButton {
        look: stage.look
        hint: stage.hint
        objectName: "clipButton"
        player: player
        offered: (pointer.hovered || !player.wanted || look.hasFocus(this)) && !player.scrubbing
    }

    ProgressLine {
        look: stage.look
        hint: stage.hint
        objectName: "progressLine"
        player: player
        emphasized: pointer.hovered
    }
}
