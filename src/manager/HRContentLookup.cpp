// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRContentLookup_p.h"

#include "content/HRXmlElement.h"
#include "context/setting_p.h"
#include "index/HRIndex.h"
#include "index/HRIndex_p.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocale>

#include <utility>

namespace Hintreels {

namespace {

// Lookup takes it where translation follows the system: content is usually written in English
// first, and a hint in English is better than none.
const QString defaultLocale = QStringLiteral("en_US");

/// What an index answers with.
struct Answer
{
    QString path;
    int depth = 0;
    HRXmlElement *root = nullptr; // on a miss it may be the address of what the index has deleted
};

/// The tree that an index hands over begins at the element's parent, whatever it says of the root.
std::optional<HRFoundContent> foundContent(HRXmlElement *element, const Answer &answer)
{
    if (!element)
        return std::nullopt;
    return HRFoundContent{ HRContent(element, element->parent()), answer.root != nullptr,
        answer.path, answer.depth };
}

} // namespace

QString HRFoundContent::packageDirectory() const
{
    QDir directory(path);
    for (int level = 1; level < depth && directory.cdUp(); ++level) { }
    return directory.canonicalPath();
}

HRContentLookup::HRContentLookup(
    const HRContext &context, HRIndex &index, Report report, ReportErrors reportErrors)
    : m_context(context)
    , m_index(index)
    , m_report(std::move(report))
    , m_reportErrors(std::move(reportErrors))
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
    tellErrors();
    return element;
}

std::optional<HRFoundContent> HRContentLookup::find(const QString &key) const
{
    Answer answer;
    HRXmlElement *element = retrieve(key, answer.path, answer.depth, answer.root);
    return foundContent(element, answer);
}

std::optional<HRFoundContent> HRContentLookup::findFallback() const
{
    const QString key = fallbackKey();
    if (key.isNull())
        return std::nullopt;
    Answer answer;
    HRXmlElement *element
        = m_index.retrieve(key, fallbackLocale(), answer.path, answer.depth, answer.root);
    std::optional<HRFoundContent> found = foundContent(element, answer);
    tellErrors();
    return found;
}

QString HRContentLookup::fallbackKey() const
{
    return setting(m_context, fallbackKeyKey, QString());
}

void HRContentLookup::tellErrors() const
{
    const HRControlErrors errors = std::exchange(HRIndexPrivate::of(m_index).errors, {});
    if (!errors.isEmpty())
        m_reportErrors(errors);
}

QLocale HRContentLookup::fallbackLocale() const
{
    return QLocale(setting(m_context, fallbackLocaleKey, defaultLocale));
}

} // namespace Hintreels
