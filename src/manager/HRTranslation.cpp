// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRTranslation_p.h"

#include "files/HRRegularFile_p.h"
#include "manager/translationCheck_p.h"

namespace Hintreels {

HRTranslation::HRTranslation(QObject *translatorParent)
    : m_translatorParent(translatorParent)
{
}

QString HRTranslation::translate(const QString &path, const QString &text, const QString &context)
{
    if (!m_translator)
        m_translator = new QTranslator(m_translatorParent);
    if (path != m_loadedPath && !load(path)) {
        m_loadedPath = QString();
        return text;
    }
    return m_translator->translate(context.toUtf8().constData(), text.toUtf8().constData());
}

bool HRTranslation::load(const QString &path)
{
    QByteArray data;
    if (!readRegularFile(path, data) || !isSafeTranslation(data))
        return false;
    if (!m_translator->load(reinterpret_cast<const uchar *>(data.constData()), data.size()))
        return false;
    m_data = data;
    m_loadedPath = path;
    return true;
}

} // namespace Hintreels
