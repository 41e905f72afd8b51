// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>
#include <QUrl>

#include <functional>

QT_BEGIN_NAMESPACE
class QTextDocument;
class QTextImageFormat;
QT_END_NAMESPACE

namespace Hintreels {

/// A picture that may stand in a text; without a size there is none.
struct HRTextPicture
{
    QUrl url;
    QSize size; ///< as it is shown, in pixels
};

/// Lets Markdown into a document without anything that would make the document load a file or an
/// address: Qt loads what a document names while it lays the document out, on the GUI thread and
/// whatever it is.
///
/// HTML is taken out, only what stands between its tags stays. A picture becomes a place of its
/// size, which somebody else fills; where there is none, its alternative text stands there. A text
/// ends with an ellipsis after 500 runs of one style each: more of them take Qt too long.
class HRMarkdownGate
{
public:
    /// Finds a picture by its path below the package's resources, which is relative and goes
    /// through no "..". GUI thread.
    using FindPicture = std::function<HRTextPicture(const QString &path)>;

    /// @param mostLinks the text ends with an ellipsis before one link or picture more; a link in
    ///     several styles counts as several
    explicit HRMarkdownGate(FindPicture findPicture = {}, int mostLinks = 100);

    /// Replaces what is in the document. Call it inside an edit block, so that the document is
    /// not laid out on the way.
    void fill(QTextDocument *document, const QString &markdown) const;

    /// The URL of the picture for which a place stands.
    static QUrl pictureIn(const QTextImageFormat &place);

private:
    HRTextPicture find(const QString &target) const;

    FindPicture m_findPicture;
    int m_mostLinks;
};

/// How many links and pictures there are in Markdown, as HRMarkdownGate counts them.
int countLinks(const QString &markdown);

} // namespace Hintreels
