// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlGuard_p.h"

#include <QByteArray>
#include <QString>
#include <QXmlInputSource>

namespace Hintreels {

/// A document that is held whole, with the guard of its reading.
///
/// The reader takes it character by character; it ends early once the reader has nested too deeply.
/// Most of a document is text that nobody asked for. The reader takes long for each character of
/// it, and all but those that could end the text are kept from it where its handler says so.
class HRXmlDocument : public QXmlInputSource
{
public:
    /// Takes over all that is left in the source, piece by piece.
    explicit HRXmlDocument(QXmlInputSource *source);

    /// Decodes a whole document as a source on a device would, many times faster.
    explicit HRXmlDocument(const QByteArray &bytes);

    HRXmlGuard &guard() { return m_guard; }

    QChar next() override { return m_next != m_pieceEnd ? *m_next++ : nextPiece(); }

    /// What the reader has not taken yet.
    QStringView unread() const { return QStringView(m_next, m_text.cend()); }

    /// What the reader has taken.
    QStringView taken() const { return QStringView(m_text.cbegin(), m_next); }

    /// Called from a handler at a tag: nobody asks for the text that follows, up to the next tag.
    void skipText();

    /// From now on nothing is kept from the reader.
    void keepEverything() { m_keepsEverything = true; }

    /// How many characters of the reader's line were kept from it.
    int skippedInLine() const;

private:
    enum class Skipped
    {
        nothing,
        text,
        cData
    };

    Q_NEVER_INLINE QChar nextPiece();
    const QChar *pieceEnd();
    const QChar *skippedPieceEnd();
    const QChar *textPieceEnd();
    const QChar *cDataPieceEnd();
    bool isSkipped(QChar character) const;
    static bool hasLineEnd(const QChar *begin, const QChar *end);

    const QString m_text;
    const QChar *m_next; // all three into m_text
    const QChar *m_pieceEnd; // how far next() need not ask anything
    const QChar *const m_end;
    HRXmlGuard m_guard;
    Skipped m_skipped = Skipped::nothing; // what the reader is in
    bool m_keepsEverything = false;
    bool m_isOver = false; // whether the reader has been told so
    const QChar *m_skipEnd = m_next; // of what was skipped last
    int m_skippedInLine = 0; // in the line where that lies
};

} // namespace Hintreels
