// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QVector>

namespace Sketchpad {

/// What a clip says while it plays, in several languages.
class ClipCaptions
{
public:
    /// Begins a caption, which ends the locale's one before.
    void say(const QString &locale, const QString &text, double seconds);

    QStringList locales() const { return m_captions.keys(); }
    /// The captions of a locale as a WebVTT file.
    QByteArray toWebVtt(const QString &locale, double clipSeconds) const;

private:
    struct Caption
    {
        double begin;
        QString text;
    };

    QMap<QString, QVector<Caption>> m_captions;
};

} // namespace Sketchpad
