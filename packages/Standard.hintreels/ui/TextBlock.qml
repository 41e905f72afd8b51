// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// What loads a block asks how wide it would like to be. A text would be laid out twice more for the
// answer: once without wrapping, and once again as it was.
Item {
    id: paragraph

    property BlockSlot slot

    implicitHeight: text.height

    MarkdownText {
        id: text
        look: paragraph.slot.look
        hint: paragraph.slot.hint
        width: paragraph.width
        markdown: paragraph.slot.block.text
        mostLinks: paragraph.slot.block.links ?? 100
    }
}
