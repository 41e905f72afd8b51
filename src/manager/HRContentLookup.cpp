// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRContentLookup_p.h"

#include "content/HRXmlElement.h"
#include "context/setting_p.h"
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

void HRFoundContent::forgetStrayRoot()
{
    if (!element)
        root = nullptr;
}

HRContentLookup::HRContentLookup(const HRContext &context, HRIndex &index, Report report)
    : m_context(context)
    , m_index(index)
    , m_report(std::move(report))
{
}

HRXmlElement *HRContentLookup::retrieve(
    const QString &key, QString &path, int &depth, HRXmlElement *&root) const
{
    QElapsedTimer timer;
    timer.start();
    const QLocale primary(setting(m_context, localeKey, defaultLocale));
    HRXmlElement *element = m_index.retrieve(key, primary, path, depth, root);
    if (!element)
        element = m_index.retrieve(key, fallbackLocale(), path, depth, root);
    if (element)
        m_report(QStringLiteral("Retrieved %1 in %2 seconds")
                     .arg(key, QString::number(double(timer.elapsed()) / 1000.0)));
    return element;
}

HRFoundContent HRContentLookup::find(const QString &key) const
{
    HRFoundContent found;
    found.element = retrieve(key, found.path, found.depth, found.root);
    found.forgetStrayRoot();
    return found;
}

HRFoundContent HRContentLookup::findFallback() const
{
    HRFoundContent found;
    const QString key = fallbackKey();
    if (key.isNull())
        return found;
    found.element = m_index.retrieve(key, fallbackLocale(), found.path, found.depth, found.root);
    found.forgetStrayRoot();
    return found;
}

QString HRContentLookup::fallbackKey() const
{
    return setting(m_context, fallbackKeyKey, QString());
}

QLocale HRContentLookup::fallbackLocale() const
{
    return QLocale(setting(m_context, fallbackLocaleKey, defaultLocale));
}

} // namespace Hintreels
