// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The simple UI: title, shortcut and summary on a card no wider than they need.
import QtQml 2.15
import QtQuick 2.15

Rectangle {
    id: root

    readonly property bool focused: look.reader.focusItem === root
    readonly property color seam: hintreelView.reserved ? look.background : look.line

    implicitWidth: title.width + 6 * look.step
    implicitHeight: Math.ceil(title.height) + 4 * look.step
    color: look.background
    border.width: hintreelView.reserved ? 0 : focused ? look.scaled(look.lineWidth + 1) : look.lineWidth
    border.color: focused ? look.focus : look.line
    focus: true
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Copy)
        if (event.accepted)
            hintreelReader.copy(hint.values)
    }

    LayoutMirroring.enabled: hint.rightToLeft
    LayoutMirroring.childrenInherit: true

    // The popup takes the new size at once; a column on its own lays itself out a frame later.
    Connections {
        target: hint
        function onTaken() { title.forceLayout() }
    }

    Title {
        id: title
        look: look
        hint: hint
        x: 3 * look.step
        y: 2 * look.step
        width: Math.min(naturalWidth, look.width)
    }

    // QML evaluates what stands last first: the element after what it is read with, and all that is
    // shown after these two.
    Look { id: look; view: hintreelView; reader: hintreelReader }
    Hint {
        id: hint
        element: hintreel
        view: hintreelView
        reader: hintreelReader
        words: Words { view: hintreelView; reader: hintreelReader; values: hint.values }
    }
}
