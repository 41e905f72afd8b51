// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Title, shortcut and summary: what both UIs begin with.
import QtQuick 2.15

Column {
    id: heading

    property Look look
    property Hint hint
    // Space that stays free at the end of the first line.
    property real reserve: 0
    readonly property string titleText: hint.values.title || ""
    readonly property string shortcut: hint.values.shortcut || ""
    readonly property real lineWidth: width - reserve
    readonly property real lineHeight: title.contentHeight / title.lineCount
    readonly property bool oneLine:
        title.implicitWidth + caps.naturalWidth + 3 * look.step <= lineWidth

    // The width at which nothing wraps.
    readonly property real naturalWidth: Math.ceil(Math.max(summary.implicitWidth,
        title.implicitWidth + reserve + (shortcut ? caps.naturalWidth + 3 * look.step : 0)))

    spacing: oneLine ? look.step : 2 * look.step

    Item {
        width: heading.width
        height: Math.max(title.height, caps.y + (heading.shortcut ? caps.height : 0))
        visible: title.text || heading.shortcut

        Text {
            id: title
            objectName: "title"
            anchors.left: parent.left
            width: heading.oneLine ? implicitWidth : heading.lineWidth
            text: heading.titleText
            color: heading.look.text
            font.pixelSize: heading.look.titleSize
            font.weight: heading.look.strong
            horizontalAlignment: Text.AlignLeft
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        KeyCaps {
            id: caps
            objectName: "shortcut"
            look: heading.look
            hint: heading.hint
            anchors.left: heading.oneLine ? title.right : parent.left
            anchors.leftMargin: heading.oneLine && title.text ? 3 * look.step : 0
            y: heading.oneLine ? Math.round((heading.lineHeight - height) / 2)
                : title.height + 2 * look.step
            visible: heading.shortcut
            shortcut: heading.shortcut
            availableWidth: heading.width
        }
    }

    Text {
        id: summary
        objectName: "summary"
        width: heading.width
        visible: text
        text: heading.hint.values.summary || ""
        color: heading.look.secondaryText
        font.pixelSize: heading.look.bodySize
        horizontalAlignment: Text.AlignLeft
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        lineHeight: 1.1
        Accessible.role: Accessible.Paragraph
        Accessible.name: text
    }
}
