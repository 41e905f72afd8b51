// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Where a passage of a text stands, for screen readers, and what stands inside it.
import QtQuick 2.15

TextPlace {
    id: passage

    readonly property var roles: ({
        "heading": Accessible.Heading,
        "item": Accessible.ListItem,
        "list": Accessible.List,
        "paragraph": Accessible.Paragraph
    })
    readonly property var files: ({ "link": "TextLink.qml", "picture": "TextPicture.qml" })

    function fileOf(part) {
        return files[part.kind] || "TextPassage.qml"
    }

    Accessible.role: roles[place.kind] || Accessible.StaticText
    Accessible.name: place.text

    Repeater {
        model: passage.place.parts

        // A part has its place in the text, not in the passage.
        Loader {
            required property var modelData

            x: -passage.x
            y: -passage.y
            Component.onCompleted: setSource(passage.fileOf(modelData), {
                "look": passage.look, "hint": passage.hint, "text": passage.text,
                "place": modelData
            })
        }
    }
}
