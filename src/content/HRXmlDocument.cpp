// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlDocument_p.h"

namespace Hintreels {

namespace {

QString takeText(QXmlInputSource *source)
{
    QString text;
    for (;;) {
        const QChar character = source->next();
        if (character == QChar(QXmlInputSource::EndOfDocument))
            return text;
        if (character != QChar(QXmlInputSource::EndOfData))
            text.append(character);
    }
}

} // namespace

HRXmlDocument::HRXmlDocument(QXmlInputSource *source)
    : m_text(takeText(source))
    , m_guard(m_text.size())
{
}

QChar HRXmlDocument::next()
{
    if (m_position < m_text.size() && m_guard.allowsNesting())
        return m_text.at(m_position++);
    return EndOfDocument;
}

} // namespace Hintreels
