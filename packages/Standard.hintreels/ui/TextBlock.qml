// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

MarkdownText {
    property var block

    markdown: words.content(block.text)
}
