// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// A page that scrolls by wheel, bar and keys, and brings what has the keyboard into sight.
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15

Flickable {
    id: page

    property Look look
    readonly property Item focusItem: look.reader.focusItem || Window.activeFocusItem
    readonly property real lowest: Math.max(0, contentHeight - height)

    function scrollTo(y) {
        contentY = Math.max(0, Math.min(y, lowest))
    }

    function reveal(item) {
        const top = item.mapToItem(contentItem, 0, 0).y
        const below = top + item.height + look.padding - contentY - height
        const above = contentY - top + look.padding
        scrollTo(contentY + (above > 0 ? -above : Math.max(0, below)))
    }

    function holds(item) {
        while (item && item !== contentItem)
            item = item.parent
        return item === contentItem
    }

    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    T.ScrollBar.vertical: HintScrollBar {
        look: page.look
    }

    onFocusItemChanged: {
        if (holds(focusItem))
            reveal(focusItem)
    }

    Keys.onUpPressed: scrollTo(contentY - 10 * look.step)
    Keys.onDownPressed: scrollTo(contentY + 10 * look.step)
    Keys.onPressed: event => {
        const targets = {
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: lowest,
            [Qt.Key_PageUp]: contentY - height,
            [Qt.Key_PageDown]: contentY + height
        }
        event.accepted = event.key in targets
        if (event.accepted)
            scrollTo(targets[event.key])
    }
}
