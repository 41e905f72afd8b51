// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

namespace Hintreels {

/// Fills a document with Markdown in GitHub's flavour, without its tables and without HTML.
///
/// Tags and comments are taken out, and what stands between the tags stays; so do brackets in code
/// and those that are escaped. Tables stay text. The document keeps the names of pictures, and
/// loads them when it is laid out.
void setMarkdownWithoutHtml(QTextDocument *document, const QString &markdown);

} // namespace Hintreels
