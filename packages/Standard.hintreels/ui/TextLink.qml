// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Where a link stands in a text: for the keyboard and for screen readers.
import QtQuick 2.15

TextPlace {
    id: link

    function open() {
        hint.view.openExternalResource(place.href)
    }

    activeFocusOnTab: hint.focusable
    Accessible.role: Accessible.Link
    Accessible.name: place.text
    Accessible.description: hint.unseenTarget(place.href, place.text)
    Accessible.focusable: hint.focusable
    Accessible.focused: look.hasFocus(link)
    Accessible.onPressAction: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()
    Keys.onSpacePressed: open()

    FocusRing {
        look: link.look
    }
}
