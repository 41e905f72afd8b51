// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The hint reel on show, as plain values.
//
// They outlast the element: it is deleted between two hints, and the popup must not shrink then.
import QtQuick 2.15

QtObject {
    readonly property QtObject element: hintreel
    property var values: ({})
    property var blocks: []
    readonly property bool rightToLeft: values.rightToLeft === true
    readonly property string documentation:
        hintreelView.documentationAvailable && values.documentation || ""

    // All that binds to the values has them by now.
    signal taken

    // Another hint's UI may have left the popup open for good; that wish ends with its hint.
    function take() {
        if (!element)
            return
        if (hintreelView.stayOpen)
            hintreelView.stayOpen = false
        values = hintreelReader.read(element, words.content)
        // An equal list would leave all blocks as they are: a clip at its end, texts in the
        // language of before.
        blocks = []
        blocks = values.blocks
        taken()
    }

    onElementChanged: take()
}
