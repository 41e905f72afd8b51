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
    QStringRef unread() const { return m_text.midRef(int(m_next - m_text.cbegin())); }

private:
    Q_NEVER_INLINE QChar nextPiece();

    const QString m_text;
    const QChar *m_next; // all three into m_text
    const QChar *m_pieceEnd; // how far the guard need not be asked
    const QChar *const m_end;
    HRXmlGuard m_guard;
};

} // namespace Hintreels
