// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A clip and what the reader wants of it, scaled to the item's width.
//
// Decoding and playing run side by side. Playback pauses by itself where it has caught up with the
// decoder and when decoding ends, so it is started again as long as motion is wanted and there is
// more to show. Nothing plays in a popup that is hidden.
import QtQml 2.15
import QtQuick 2.15
import QtQuick.Window 2.15
import com.zentora.hintreels.qml 1.0

Item {
    id: clip

    property string source
    property bool loop: false
    property bool wanted: false
    property bool ended: false
    property bool scrubbing: false
    property bool wantedBefore: false
    readonly property bool shown: video.implicitWidth > 0
    readonly property bool onScreen: Window.window !== null && Window.window.visible
    readonly property real progress: ended ? 1 : shown ? Math.min(1, video.progress) : 0
    property real time: 0

    // Within the last picture of any clip.
    readonly property real justBeforeTheEnd: 0.999999
    readonly property QtObject hostWindow: Window.window

    function textureSize(screenScale) {
        const fraction = Math.min(1, width * screenScale / Math.max(1, video.implicitWidth))
        return Qt.size(Math.ceil(video.implicitWidth * fraction),
                       Math.ceil(video.implicitHeight * fraction))
    }

    function toggle() {
        if (ended)
            video.progress = 0
        ended = false
        wanted = !wanted
        if (wanted)
            goOn()
        else
            video.pause()
    }

    function scrubTo(fraction) {
        if (!scrubbing)
            wantedBefore = wanted
        scrubbing = true
        wanted = false
        ended = false
        video.pause()
        video.scrubbing = true
        video.progress = Math.max(0, Math.min(fraction, justBeforeTheEnd))
    }

    function endScrubbing() {
        video.scrubbing = false
        scrubbing = false
        wanted = wantedBefore
    }

    // Asked and not bound: starting changes the state while its last change is still being told.
    function isPlaying() {
        return video.state === 2
    }

    function goOn() {
        if (wanted && onScreen && shown && !isPlaying() && video.progress < 1)
            video.play()
    }

    // The last picture may have been passed over: playback is a step ahead of what is painted.
    function finish() {
        wanted = loop
        ended = !loop
        if (loop)
            video.play()
        else
            video.progress = justBeforeTheEnd
    }

    onOnScreenChanged: {
        if (!onScreen)
            video.pause()
    }

    // The clip is found through the view, so it is set when the item has come into its window.
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
        transform: Scale {
            xScale: video.implicitWidth > 0 ? clip.width / video.implicitWidth : 1
            yScale: video.implicitHeight > 0 ? clip.height / video.implicitHeight : 1
        }
        onStateChanged: clip.goOn()
        onPositionChanged: {
            clip.time = pictureTime()
            settling.restart()
        }
    }

    // A picture that was asked for by hand comes a moment after the position.
    Timer {
        id: settling
        interval: 150
        onTriggered: clip.time = video.pictureTime()
    }

    ClipEnd {
        player: clip
        item: video
    }
}
