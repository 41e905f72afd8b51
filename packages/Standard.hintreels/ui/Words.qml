// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Every text passes here: first translated, then interpolated. Where the host and its packages have
// no translation of the UI's own words, the library's own is taken.
//
// A text is asked for once per hint. Translations come from the package of the newest popup's hint,
// so a detached one could no longer find its own.
import QtQml 2.15
import com.zentora.hintreels.qml 1.1

QtObject {
    property HRView view
    property HRContentReader reader
    // Of the hint, which the UI's own words follow.
    property var values
    readonly property string documentation: own("Documentation")
    readonly property string pin: own("Keep open in a window")
    readonly property string play: own("Play")
    readonly property string pause: own("Pause")
    readonly property string playAgain: own("Play again")
    readonly property string position: own("Position in the clip")
    readonly property string flashing: own("Flashes quickly, so it does not play by itself")
    readonly property var noteTitles: ({
        "tip": own("Tip"), "note": own("Note"), "warning": own("Warning")
    })
    // What is heard only, and asked for only then.
    readonly property var spoken: reader.spoken ? {
        "plus": own("plus"), "clip": own("Clip"), "seconds": own("%1 s"),
        "playing": own("Playing"), "paused": own("Paused"), "ended": own("Ended")
    } : {}

    function content(text) {
        return said(text, "Content")
    }

    function own(text) {
        return values ? said(text, "StandardUI", reader.word(text)) : ""
    }

    function said(text, context, otherwise) {
        if (!text)
            return ""
        const translated = view.translate(text, context)
        return view.interpolate(translated && translated !== text ? translated : otherwise || text)
    }
}
