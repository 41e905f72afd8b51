// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The hint reel on show, as plain values, and whom its parts ask about it.
//
// They outlast the element: it is deleted between two hints, and the popup must not shrink then.
import QtQml 2.15
import com.zentora.hintreels.qml 1.1

QtObject {
    id: hint

    property HRXmlElement element
    property HRView view
    property HRContentReader reader
    property Words words
    property var values: ({})
    property var blocks: []
    // Title, shortcut and summary are all that the reader wants to see now.
    property bool small: false
    // Whether the keyboard can come to what the popup shows.
    readonly property bool focusable: view.reserved || reader.focusItem !== null
    readonly property bool rightToLeft: values.rightToLeft === true
    readonly property string documentation:
        !small && view.documentationAvailable && values.documentation || ""

    // All that binds to the values has them by now.
    signal taken

    // Another hint's UI may have left the popup open for good; that wish ends with its hint.
    function take() {
        if (!element)
            return
        if (view.stayOpen)
            view.stayOpen = false
        values = reader.read(element, words.content)
        show()
    }

    function show() {
        small = reader.isSmall()
        // An equal list would leave all blocks as they are: a clip at its end, texts in the
        // language of before.
        blocks = []
        blocks = reader.shownBlocks(values.blocks)
        taken()
    }

    // From the best file for the reader that has any.
    function captionsOf(clip) {
        for (const file of reader.captionFiles(clip)) {
            const found = reader.captions(view.findResource(file))
            if (found.length)
                return found
        }
        return []
    }

    // Where a link leads, unless its text says so, or what stands behind that.
    function unseenTarget(target, text) {
        return target === text || reader.shownTarget(target, text) ? "" : target
    }

    onElementChanged: take()

    readonly property Connections decisions: Connections {
        target: hint.reader
        function onDetailChanged() { hint.show() }
    }
}
