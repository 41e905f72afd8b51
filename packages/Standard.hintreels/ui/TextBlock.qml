// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

MarkdownText {
    property var block

    markdown: block.text
    mostLinks: block.links === undefined ? 100 : block.links
}
