// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/partName_p.h"

#include <QObject>
#include <QRegularExpression>
#include <QVariant>

namespace Hintreels {

QString keyOf(const QObject *object)
{
    return object->property("hintreelKey").toString();
}

QString nameOf(const QObject *object)
{
    const QString name = object->objectName();
    const bool isOfQt
        = name.startsWith(QLatin1String("qt_")) || name.startsWith(QLatin1String("_q_"));
    return isOfQt ? QString() : name;
}

QString withoutMnemonic(const QString &text)
{
    // Scripts without letters of their own on the keyboard write "File (&F)".
    static const QRegularExpression bracketed(QStringLiteral(R"(\s?\(&[^&]\))"));
    static const QRegularExpression marked(QStringLiteral("&(.)"));
    static const QRegularExpression dots(QStringLiteral("(\\.{3}|\u2026)$"));
    QString plain = text.section(u'\t', 0, 0);
    plain.remove(bracketed);
    plain.replace(marked, QStringLiteral("\\1"));
    return plain.remove(dots).trimmed();
}

} // namespace Hintreels
