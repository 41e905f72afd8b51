// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRMarkdownGate_p.h"

#include "ui/reader/HRTextRun_p.h"
#include "ui/reader/markdownHtml_p.h"
#include "ui/reader/textCut_p.h"

#include <QDir>
#include <QImage>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace Hintreels {

namespace {

// Qt sets, shapes and measures each run of one format by itself.
constexpr int mostRuns = 500;

constexpr int pictureUrl = QTextFormat::UserProperty;

// What the places of pictures are filled with, so that the document looks for nothing more.
const QUrl emptyPicture(QStringLiteral("hintreels:empty"));

/// A picture in the document, as Qt's Markdown reader leaves it: a character for each piece of the
/// alternative text.
struct Picture
{
    int position;
    int length;
    QString target;
    QString alternative;
};

bool isContinuedBy(const Picture &picture, const HRTextRun &run)
{
    return picture.position + picture.length == run.position
        && picture.target == run.format.toImageFormat().name();
}

void collectPictures(const QTextBlock &block, QVector<Picture> *pictures)
{
    const QVector<HRTextRun> runs = runsOf(block);
    for (const HRTextRun &run : runs) {
        const QTextImageFormat format = run.format.toImageFormat();
        if (!format.isValid())
            continue;
        if (pictures->isEmpty() || !isContinuedBy(pictures->last(), run))
            pictures->append({ run.position, 0, format.name(), {} });
        pictures->last().length += run.length();
        pictures->last().alternative += format.property(QTextFormat::ImageAltText).toString();
    }
}

/// The path below the package's resources that a picture's target names; empty where it names
/// anything else.
QString pathInResources(const QString &target)
{
    const QString path = QUrl::fromPercentEncoding(target.toUtf8());
    const bool elsewhere = QDir::isAbsolutePath(path) || path.contains(u':')
        || path.split(u'/').contains(QStringLiteral(".."));
    return elsewhere ? QString() : path;
}

QTextCharFormat placeOf(const HRTextPicture &picture, const QString &alternative)
{
    QTextImageFormat place;
    place.setName(emptyPicture.toString());
    place.setWidth(picture.size.width());
    place.setHeight(picture.size.height());
    place.setProperty(QTextFormat::ImageAltText, alternative);
    place.setProperty(pictureUrl, picture.url);
    return std::move(place);
}

QImage emptyImage()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void settle(QTextDocument *document, const Picture &picture, const HRTextPicture &found)
{
    QTextCursor cursor(document);
    cursor.setPosition(picture.position);
    cursor.setPosition(picture.position + picture.length, QTextCursor::KeepAnchor);
    if (found.size.isEmpty())
        cursor.insertText(picture.alternative, QTextCharFormat());
    else
        cursor.insertText(
            QString(QChar::ObjectReplacementCharacter), placeOf(found, picture.alternative));
}

void endBefore(QTextDocument *document, int position)
{
    QTextCursor rest(document);
    rest.setPosition(position);
    rest.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    rest.insertText(QString(ellipsis), QTextCharFormat());
}

bool isLinkOrPicture(const QTextCharFormat &format)
{
    return format.isAnchor() || format.isImageFormat();
}

/// Ends the text before it holds too much for a popup to lay out while its reader waits.
void cut(QTextDocument *document, int mostLinks)
{
    int links = 0;
    int runs = 0;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QVector<HRTextRun> parts = runsOf(block);
        for (const HRTextRun &run : parts) {
            links += isLinkOrPicture(run.format) ? 1 : 0;
            if (++runs > mostRuns || links > mostLinks)
                return endBefore(document, run.position);
        }
    }
}

} // namespace

HRMarkdownGate::HRMarkdownGate(FindPicture findPicture, int mostLinks)
    : m_findPicture(std::move(findPicture))
    , m_mostLinks(mostLinks)
{
}

void HRMarkdownGate::fill(QTextDocument *document, const QString &markdown) const
{
    setMarkdownWithoutHtml(document, markdown);
    QVector<Picture> pictures;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        collectPictures(block, &pictures);
    // From the end, so that the others keep their place.
    for (auto picture = pictures.rbegin(); picture != pictures.rend(); ++picture)
        settle(document, *picture, find(picture->target));
    document->addResource(QTextDocument::ImageResource, emptyPicture, emptyImage());
    cut(document, m_mostLinks);
}

QUrl HRMarkdownGate::pictureIn(const QTextImageFormat &place)
{
    return place.property(pictureUrl).toUrl();
}

HRTextPicture HRMarkdownGate::find(const QString &target) const
{
    const QString path = pathInResources(target);
    return path.isEmpty() || !m_findPicture ? HRTextPicture() : m_findPicture(path);
}

int countLinks(const QString &markdown)
{
    QTextDocument document;
    QTextCursor whole(&document);
    whole.beginEditBlock();
    setMarkdownWithoutHtml(&document, markdown);
    int links = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QVector<HRTextRun> runs = runsOf(block);
        links += int(std::count_if(runs.begin(), runs.end(),
            [](const HRTextRun &r) { return isLinkOrPicture(r.format); }));
    }
    return links;
}

} // namespace Hintreels
