// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QTranslator>

namespace Hintreels {

/// The one translation file that is loaded, replaced when another is asked for.
///
/// GUI thread only. The translator is never installed on the application.
class HRTranslation
{
public:
    /// @param translatorParent owns the translator, which is made on first use
    explicit HRTranslation(QObject *translatorParent);

    /// Translates by the file at @p path, which is read when it is not the loaded one.
    /// @return @p text where the file cannot be loaded, which is tried again at the next call; null
    /// where the file has no such text
    QString translate(const QString &path, const QString &text, const QString &context);

private:
    bool load(const QString &path);

    QObject *m_translatorParent;
    QTranslator *m_translator = nullptr;
    QString m_loadedPath;
    QByteArray m_data; // the translator reads from it for as long as it is loaded
};

} // namespace Hintreels
