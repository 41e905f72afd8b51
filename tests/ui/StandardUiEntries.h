// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// An entry of the standard UI's content.
inline QByteArray hint(const QByteArray &blocks, const QByteArray &attributes = "title=\"Pen\"")
{
    return "<hintreel key=\"key\" " + attributes + ">" + blocks + "</hintreel>";
}

inline QByteArray longText(int paragraphs)
{
    QByteArray text = "<text><![CDATA[";
    for (int i = 0; i < paragraphs; ++i)
        text += "A paragraph among many.\n\n";
    return text + "[the end](far/below)]]></text>";
}

/// One block of each kind, and of those that depend on more than their kind several.
inline const QByteArray everything
    = "\n"
      "<summary>Draws a %(quality)s line.</summary>\n"
      "<text><![CDATA[Some **bold** text, a [link](inside/text) and `code`.\n"
      "\n"
      "      - a list]]></text>\n"
      "<keys press=\"Ctrl+K, Shift+Drag\">Does it.</keys>\n"
      "<keys press=\"Ctrl+Alt+Shift+Page Down, Ctrl+Alt+Shift+Page Up\">Does it, too.</keys>\n"
      "<picture source=\"good.png\" alt=\"A picture\" width=\"100\">A caption</picture>\n"
      "<note kind=\"tip\">A tip</note>\n"
      "<note>A note</note>\n"
      "<note kind=\"warning\">A warning</note>\n"
      "<note kind=\"something\">Something</note>\n"
      "<link to=\"https://example.org/there\">There</link>\n"
      "\n";
