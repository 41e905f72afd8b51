// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRContentLookup_p.h"

#include "content/HRXmlElement.h"
#include "context/HRSetting_p.h"
#include "index/HRIndex.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocale>

#include <utility>

namespace Hintreels {

namespace {

// Lookup takes it where translation follows the system: content is usually written in English
// first, and a hint in English is better than none.
const QString defaultLocale = QStringLiteral("en_US");

} // namespace

QString HRFoundContent::packageDirectory() const
{
    QDir directory(path);
    for (int level = 1; level < depth && directory.cdUp(); ++level) { }
    return directory.canonicalPath();
}

void HRFoundContent::discard()
{
    if (element)
        delete (element->parent() ? element->parent() : element);
    element = root = nullptr;
}

HRContentLookup::HRContentLookup(const HRContext &context, HRIndex &index, Report report)
    : m_context(context)
    , m_index(index)
    , m_report(std::move(report))
{
}

HRFoundContent HRContentLookup::find(const QString &key) const
{
    QElapsedTimer timer;
    timer.start();
    HRFoundContent found = findIn(setting(m_context, localeKey, defaultLocale), key);
    if (!found.element)
        found = findIn(fallbackLocale(), key);
    if (found.element)
        m_report(QString("Retrieved %1 in %2 seconds")
                     .arg(key, QString::number(timer.elapsed() / 1000.0)));
    return found;
}

HRFoundContent HRContentLookup::findFallback() const
{
    const QString key = fallbackKey();
    return key.isNull() ? HRFoundContent() : findIn(fallbackLocale(), key);
}

QString HRContentLookup::fallbackKey() const
{
    return setting(m_context, fallbackKeyKey, QString());
}

HRFoundContent HRContentLookup::findIn(const QString &localeName, const QString &key) const
{
    HRFoundContent found;
    found.element = m_index.retrieve(key, QLocale(localeName), found.path, found.depth, found.root);
    if (!found.element)
        found.root = nullptr; // an index may leave the address of what it has deleted
    return found;
}

QString HRContentLookup::fallbackLocale() const
{
    return setting(m_context, fallbackLocaleKey, defaultLocale);
}

} // namespace Hintreels
