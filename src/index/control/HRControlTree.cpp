// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlTree_p.h"

#include "files/HRRegularFile_p.h"
#include "index/control/elementFilters_p.h"

#include <QLocale>
#include <QPointer>

namespace Hintreels {

namespace {

QMap<QString, QString> attributesOf(const HRXmlElement &element)
{
    QMap<QString, QString> attributes;
    const QStringList names = element.attributeNames();
    for (const QString &name : names)
        attributes.insert(name, element.attribute(name));
    return attributes;
}

} // namespace

HRControlTree::HRControlTree(const QString &filePath, HRXmlParser::Filter filter, void *data)
    : m_parser(filter, data)
{
    m_parser.setDefaultElement(&HRXmlElement::staticMetaObject);
    m_parser.registerElement(QStringLiteral("HRXmlElement"), &HRXmlElement::staticMetaObject);
    QByteArray bytes;
    if (readRegularFile(filePath, bytes))
        m_objects = m_parser.read(bytes);
}

HRControlTree::HRControlTree(
    const QString &filePath, HRXmlParser::Filter filter, void *data, HRControlErrors &errors)
    : HRControlTree(filePath, filter, data)
{
    if (m_parser.errorLine() > 0)
        errors.insert(filePath, { m_parser.errorLine(), m_parser.errorText() });
}

HRControlTree::~HRControlTree()
{
    qDeleteAll(m_objects);
}

HRXmlElement *HRControlTree::first() const
{
    return m_objects.isEmpty() ? nullptr : qobject_cast<HRXmlElement *>(m_objects.first());
}

QObject *HRControlTree::takeOnly()
{
    return m_objects.size() == 1 ? m_objects.takeFirst() : nullptr;
}

std::unique_ptr<HRXmlElement> readOnlyTree(const QString &filePath, HRXmlParser::Filter filter,
    const QString &key, HRControlErrors &errors)
{
    QString wanted = key;
    // What an error left open goes with the parser at the end of this line.
    const QPointer<QObject> tree = HRControlTree(filePath, filter, &wanted, errors).takeOnly();
    return std::unique_ptr<HRXmlElement>(qobject_cast<HRXmlElement *>(tree.data()));
}

QStringList keysOfControlFile(const QString &filePath)
{
    const HRControlTree tree(filePath, generateIndexElement, nullptr);
    if (!tree.first())
        return {};
    QStringList keys;
    for (const QObject *child : tree.first()->children()) {
        const auto *entry = qobject_cast<const HRXmlElement *>(child);
        if (entry && entry->hasAttribute(QStringLiteral("key")))
            keys.append(entry->attribute(QStringLiteral("key")));
    }
    return keys;
}

QMap<QString, QString> keyDataAttributes(const QString &filePath, const QString &key)
{
    QString wanted = key;
    const HRControlTree tree(filePath, generateKeyDataElement, &wanted);
    if (!tree.first())
        return {};
    const auto *element
        = tree.first()->findChild<const HRXmlElement *>(QString(), Qt::FindDirectChildrenOnly);
    if (!element)
        return {};
    QMap<QString, QString> attributes = attributesOf(*element);
    attributes.remove(QStringLiteral("name"));
    return attributes;
}

bool servesLocale(const HRXmlElement &root, const QLocale &locale)
{
    const QString name = root.attribute(QStringLiteral("locale"));
    return name.isEmpty() || QLocale(name) == locale;
}

} // namespace Hintreels
