// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// How far the clip is; dragging it, or the arrow keys, goes through the clip by hand.
import QtQuick 2.15

Item {
    id: line

    property Look look
    property Hint hint
    property Clip player
    property bool emphasized: false

    // What screen readers look for in a slider.
    readonly property real value: player.progress
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1
    readonly property real stepSize: 0.05

    function step(fraction) {
        player.scrubTo(player.progress + fraction)
        player.endScrubbing()
    }

    // Time runs from left to right on every clip.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    anchors.left: parent.left
    anchors.right: parent.right
    anchors.bottom: parent.bottom
    height: Math.max(3 * look.step, Math.min(look.target, Math.round(parent.height / 3)))
    activeFocusOnTab: hint.focusable
    Accessible.role: Accessible.Slider
    Accessible.name: hint.words.position
    Accessible.focusable: hint.focusable
    Accessible.focused: look.hasFocus(line)
    Accessible.onIncreaseAction: step(stepSize)
    Accessible.onDecreaseAction: step(-stepSize)

    Keys.onLeftPressed: step(-stepSize)
    Keys.onRightPressed: step(stepSize)

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: line.emphasized || area.pressed ? line.look.scaled(5) : line.look.scaled(3)
        color: line.look.veil(0.63)

        Rectangle {
            width: Math.round(parent.width * line.player.progress)
            height: parent.height
            color: line.look.passed
        }
    }

    MouseArea {
        id: area
        anchors.fill: parent
        // The page would take the drag for its own scrolling.
        preventStealing: true
        cursorShape: Qt.PointingHandCursor
        onPressed: mouse => line.player.scrubTo(mouse.x / width)
        onPositionChanged: mouse => line.player.scrubTo(mouse.x / width)
        onReleased: line.player.endScrubbing()
        onCanceled: line.player.endScrubbing()
    }

    FocusRing {
        look: line.look
        anchors.margins: 0
    }
}
