// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Keeps a clip going where its playback has caught up with the decoder, and finds its end: once all
// is decoded the last pictures may still be on their way, and where none came for a while, it was
// the end.
import QtQml 2.15
import QtQuick 2.15
import com.zentora.hintreels.qml 1.0

Timer {
    property var player
    property HRVideoComponent item
    property int looks: 0

    // A clip that is decoded is closed, and its size falls back to what the item has without one.
    function isDecoded() {
        return item.contentWidth === 200 && item.contentHeight === 150
    }

    interval: 100
    repeat: true
    running: player.wanted && player.onScreen
    onTriggered: {
        player.goOn()
        looks = player.shown && isDecoded() && !player.isPlaying() ? looks + 1 : 0
        if (looks === 3)
            player.finish()
    }
}
