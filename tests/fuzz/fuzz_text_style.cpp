// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "support/Promises.h"
#include "ui/HRTextStyle_p.h"

#include <QTextDocument>

using namespace Hintreels;

namespace {

/// Looks for nothing outside of itself.
class ClosedDocument : public QTextDocument
{
    QVariant loadResource(int, const QUrl &) override { return QVariant(); }
};

} // namespace

void fuzzTextStyle(const QByteArray &input)
{
    ClosedDocument document;
    document.setTextWidth(300);
    setMarkdown(document, QString::fromUtf8(input.left(20000)), { Qt::blue, Qt::gray, 6.0 });
    const QVariantList links = linksIn(document);
    for (const QVariant &link : links) {
        const int start = link.toMap().value("start").toInt();
        const int end = link.toMap().value("end").toInt();
        require(
            start >= 0 && start < end && end < document.characterCount(), "links lie in the text");
    }
}
