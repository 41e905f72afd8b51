// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/reader/HRMarkdownGate_p.h"

#include <QColor>
#include <QVariantList>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

namespace Hintreels {

struct HRTextRun;

/// How Markdown looks beyond its font and text colour.
struct HRTextLook
{
    QColor link;
    QColor codeBackground;
    qreal spacing; ///< px between paragraphs; list items stand half as far apart
};

/// Fills a document with Markdown in the look of the UI, instead of Qt's own margins and sizes:
/// even spacing with none at the ends, headings in the size of the text, calm code.
///
/// The document is laid out once, at the end: Qt's own road lays it out after each piece of text,
/// which takes minutes for a paragraph of some thousand links.
///
/// @param gate what is let into the document
void setMarkdown(QTextDocument &document, const QString &markdown, const HRTextLook &look,
    const HRMarkdownGate &gate = HRMarkdownGate());

/// What the UI needs of a link: "href", "text", and the positions "start" and "end".
QVariantMap linkOf(const HRTextRun &run);

/// What the UI needs of the place of a picture: "url", "text" (which says what it shows), the
/// position "start", and "width" and "height" in pixels.
QVariantMap pictureOf(const HRTextRun &run);

/// A map for each link, in reading order: see linkOf().
QVariantList linksIn(const QTextDocument &document);

/// A map for each place of a picture, in reading order: see pictureOf().
QVariantList picturesIn(const QTextDocument &document);

} // namespace Hintreels
