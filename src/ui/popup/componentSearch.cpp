// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/componentSearch_p.h"

#include "content/HRXmlElement.h"

#include <QDir>
#include <QFile>

namespace Hintreels {

QString chosenByContent(const HRXmlElement *content, const QString &attribute)
{
    if (!content)
        return QString();
    if (content->hasAttribute(attribute))
        return content->attribute(attribute);
    const auto *parent = qobject_cast<const HRXmlElement *>(content->parent());
    return parent ? parent->attribute(attribute) : QString();
}

QString firstExisting(const QStringList &candidates, const QString &relativePath)
{
    for (const QString &candidate : candidates) {
        QString file
            = relativePath.isEmpty() ? candidate : QDir(candidate).absoluteFilePath(relativePath);
        if (QFile::exists(file))
            return file;
    }
    return QString();
}

} // namespace Hintreels
