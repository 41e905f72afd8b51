// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The place of one block in the list, and all that a block knows of the world around it.
import QtQuick 2.15

Loader {
    id: slot

    property var block
    property Look look
    property Hint hint
    // Whether the reader has seen the block since its hint came.
    property bool seen: false
    // What the reader sees of the block: from here, so far.
    property real sightTop: 0
    property real sightHeight: 0
    // Until a while after the popup has hidden: readers come back to where they just were.
    property bool awake: false

    // With its width from the start, a block has its height before the first frame.
    function make(file) {
        if (status === Loader.Null)
            setSource(file, { "slot": slot, "width": width })
    }
}
