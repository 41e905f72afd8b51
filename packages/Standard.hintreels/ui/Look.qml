// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Colours, type and measures of the standard UI, all taken from the host's colours and font.
import QtQml 2.15
import QtQuick 2.15
import com.zentora.hintreels.qml 1.1

QtObject {
    id: look

    property HRView view
    property HRContentReader reader

    // The widget around the content fills the pixel that it has more with this very colour.
    readonly property color background: !highContrast ? palette.window : dark ? "#000000" : "#ffffff"
    readonly property color text: readable(palette.windowText)
    readonly property color secondaryText: highContrast ? text : readable(mix(palette.windowText, 0.72))
    readonly property color link: readable(palette.highlight)
    readonly property color focus: link
    readonly property color line: shade(palette.windowText, 0.14, text)
    readonly property color hover: mix(palette.windowText, 0.08)
    readonly property color cap: shade(dark ? palette.windowText : palette.base, dark ? 0.10 : 1)
    readonly property color capEdge: shade(palette.windowText, 0.30, text)
    readonly property color code: shade(palette.windowText, 0.07)
    // What is no text, but has to be seen (WCAG 1.4.11).
    readonly property color control: reader.readable(capEdge, background, 3)
    readonly property color selection: highContrast ? text : palette.highlight
    // On a veil over white, the brightest that it can be.
    readonly property color passed: reader.readable(palette.highlight, "#5f5f5f", 3)
    readonly property bool dark: isDark(palette.window)
    // Where the desktop asks for it: no tints, and lines around what they would tell.
    readonly property bool highContrast: reader.highContrast
    // Between two pixels, a line of one would fade.
    readonly property int lineWidth: highContrast ? 2 : 1
    readonly property real textContrast: highContrast ? 7 : 4.5
    readonly property var noteColors: ({
        "tip": "#2e9e5b", "note": palette.highlight, "warning": "#d98a00"
    })

    readonly property int bodySize: scaled(hostFontSize)
    readonly property int titleSize: scaled(hostFontSize * 1.25)
    readonly property int smallSize: scaled(hostFontSize * 0.92)
    readonly property int strong: Font.DemiBold

    // One step of the grid; everything else is a multiple of it.
    readonly property int step: scaled(4)
    readonly property int padding: 4 * step
    // What is smaller cannot be pressed by everybody (WCAG 2.5.8).
    readonly property int target: Math.max(24, scaled(24))
    readonly property int radius: scaled(6)
    readonly property int width: scaled(hostFontSize * 28)
    readonly property int highestPicture: 2 * width

    readonly property real hostFontSize:
        Math.max(12, probe.fontInfo.pixelSize) * reader.textScale
    readonly property Text probe: Text {}
    readonly property HostPalette palette: HostPalette { reader: look.reader }

    function scaled(size) {
        return view.getScaledSize(Math.round(size))
    }

    // How wide a picture or clip is shown: as it wants, but in the width that there is.
    function widthOf(size, wanted, room) {
        const width = scaled(Number(wanted) > 0 ? wanted : size.width || 0)
        return Math.min(width, room, size.height ? highestPicture * size.width / size.height : 0)
    }

    // Opaque on purpose: a contrast can only be told of a colour that hides what is beneath.
    function mix(color, part) {
        return Qt.tint(background, Qt.rgba(color.r, color.g, color.b, part))
    }

    function isDark(color) {
        return color.hslLightness < 0.5
    }

    function shade(color, part, highContrastColor = background) {
        return highContrast ? highContrastColor : mix(color, part)
    }

    // Over pictures, whatever they show.
    function veil(part) {
        return Qt.rgba(0, 0, 0, highContrast ? 1 : part)
    }

    // Also in a popup, whose window is not the active one.
    function hasFocus(item) {
        return item.activeFocus || reader.focusItem === item
    }

    function readable(color, ground = background) {
        return reader.readable(color, ground, textContrast)
    }
}
