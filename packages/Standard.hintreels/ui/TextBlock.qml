// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// What loads a block asks how wide it would like to be. A text would be laid out twice more for the
// answer: once without wrapping, and once again as it was.
Item {
    property var block

    implicitHeight: text.height

    MarkdownText {
        id: text
        width: parent.width
        markdown: block.text
        mostLinks: block.links === undefined ? 100 : block.links
    }
}
