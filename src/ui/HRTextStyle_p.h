// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QVariantList>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

namespace Hintreels {

/// How Markdown looks beyond its font and text colour.
struct HRTextLook
{
    QColor link;
    QColor codeBackground;
    qreal spacing; ///< px between paragraphs; list items stand half as far apart
};

/// Gives a document that came from Markdown the look of the UI, instead of Qt's own margins and
/// sizes: even spacing with none at the ends, headings in the size of the text, calm code.
void styleMarkdown(QTextDocument &document, const HRTextLook &look);

/// A map for each link, in reading order: "href", "text", and the positions "start" and "end".
QVariantList linksIn(const QTextDocument &document);

} // namespace Hintreels
