// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// The colours of what the hint belongs to, where they are known, else the desktop's.
import QtQml 2.15
import QtQuick 2.15
import com.zentora.hintreels.qml 1.1

QtObject {
    property HRContentReader reader

    readonly property color window: colorOf("window")
    readonly property color windowText: colorOf("windowText")
    readonly property color base: colorOf("base")
    readonly property color highlight: colorOf("highlight")
    readonly property color highlightedText: colorOf("highlightedText")

    readonly property SystemPalette desktop: SystemPalette {}

    function colorOf(role) {
        return reader.hostColors[role] || desktop[role]
    }
}
