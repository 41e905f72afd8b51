// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A clip and what the reader wants of it, scaled to the item's width.
import QtQml 2.15
import QtQuick 2.15
import QtQuick.Window 2.15
import com.zentora.hintreels.qml 1.0

Item {
    id: clip

    property string source
    property alias loop: video.loop
    // What the reader wants of it; it plays while it is watched as well.
    property bool wanted: false
    property bool watched: true
    property bool scrubbing: false
    // What nobody has asked for does not flash (WCAG 2.3.1).
    property bool asked: false
    readonly property alias ended: video.ended
    readonly property alias failed: video.failed
    readonly property alias flashing: video.flashing
    readonly property alias time: video.time
    readonly property alias length: video.length
    readonly property bool shown: video.implicitWidth > 0
    readonly property HRVideoComponent pictures: video
    // Where the reader has gone by hand, until another picture is shown; below 0 where nowhere.
    property real aim: -1
    // By the clock on which the clip goes, as the captions are.
    readonly property real progress: aim >= 0 ? aim
        : ended ? 1 : video.length > 0 ? Math.min(1, video.time / video.length) : 0
    readonly property QtObject hostWindow: Window.window

    function textureSize(screenScale) {
        const fraction = Math.min(1, width * screenScale / Math.max(1, video.implicitWidth))
        return Qt.size(Math.ceil(video.implicitWidth * fraction),
                       Math.ceil(video.implicitHeight * fraction))
    }

    function toggle() {
        asked = true
        wanted = !wanted
    }

    function holdWhereItFlashes() {
        if (!flashing || asked)
            return
        wanted = false
        video.position = 0
    }

    function scrubTo(fraction) {
        scrubbing = true
        if (!shown)
            return
        aim = Math.max(0, Math.min(1, fraction))
        video.position = video.positionAt(aim * video.length)
    }

    function endScrubbing() {
        scrubbing = false
    }

    // The clip is found through the view, so it is set when the item has come into its window.
    onFlashingChanged: holdWhereItFlashes()
    onHostWindowChanged: {
        if (hostWindow)
            video.source = source
    }

    HRVideoComponent {
        id: video
        width: implicitWidth
        height: implicitHeight
        // As many pixels as the screen shows of it: a hidden window keeps them.
        textureSize: clip.textureSize(Screen.devicePixelRatio)
        antialiasing: true
        timing: "file"
        colors: "file"
        upright: true
        keepPlaying: clip.wanted && clip.watched
        onTimeChanged: {
            if (!clip.scrubbing)
                clip.aim = -1
        }
        onEndedChanged: {
            if (ended)
                clip.wanted = false
        }
        scrubbing: clip.scrubbing
        transform: Scale {
            xScale: video.implicitWidth > 0 ? clip.width / video.implicitWidth : 1
            yScale: video.implicitHeight > 0 ? clip.height / video.implicitHeight : 1
        }
    }
}
