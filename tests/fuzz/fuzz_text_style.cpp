// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "support/Promises.h"
#include "ui/reader/textStyle_p.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QTextDocument>

using namespace Hintreels;

namespace {

/// Does not put up with being asked for anything outside of itself.
class ClosedDocument : public QTextDocument
{
    QVariant loadResource(int, const QUrl &) override
    {
        require(false, "nothing is loaded");
        return QVariant();
    }
};

HRTextPicture findPicture(const QString &path)
{
    require(QDir::isRelativePath(path) && !path.split('/').contains(".."),
        "pictures lie below the resources");
    return { QUrl("file:/picture.png"), path.size() % 2 ? QSize(40, 30) : QSize() };
}

void requirePlaces(const QVariantList &links, int characters)
{
    for (const QVariant &link : links) {
        const int start = link.toMap().value("start").toInt();
        const int end = link.toMap().value("end").toInt();
        require(start >= 0 && start < end && end < characters, "links lie in the text");
    }
}

} // namespace

void fuzzTextStyle(const QByteArray &input)
{
    ClosedDocument document;
    document.setTextWidth(300);
    document.documentLayout(); // documents load what they lay out
    setMarkdown(document, QString::fromUtf8(input.left(20000)), { Qt::blue, Qt::gray, 6.0 },
        HRMarkdownGate(findPicture));
    document.size();
    requirePlaces(linksIn(document), document.characterCount());
    const QVariantList pictures = picturesIn(document);
    for (const QVariant &picture : pictures)
        require(picture.toMap().value("width") == 40, "places stand for pictures that were found");
}
