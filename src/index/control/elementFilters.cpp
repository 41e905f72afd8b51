// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/elementFilters_p.h"

#include "content/HRFilterAnswer_p.h"

#include <QString>
#include <QXmlAttributes>

namespace Hintreels {

namespace {

/// An absent attribute matches no key, not even the empty one.
bool hasValue(const QXmlAttributes &attributes, QLatin1String name, const QString &value)
{
    const int index = attributes.index(name);
    return index >= 0 && attributes.value(index) == value;
}

} // namespace

int generateIndexElement(const QString &tag, const QXmlAttributes &, void *)
{
    const bool isIndexed = tag == QLatin1String("hintreels") || tag == QLatin1String("hintreel");
    return isIndexed ? askForChildren : dropElement;
}

int generateContentElement(const QString &tag, const QXmlAttributes &attributes, void *key)
{
    if (tag == QLatin1String("hintreels"))
        return askForChildren;
    const QString &wanted = *static_cast<const QString *>(key);
    const bool isWanted
        = tag == QLatin1String("hintreel") && hasValue(attributes, QLatin1String("key"), wanted);
    return isWanted ? askForChildren | takeAll : dropAll;
}

int generateKeyDataElement(const QString &tag, const QXmlAttributes &attributes, void *key)
{
    if (tag == QLatin1String("hintreelkeys"))
        return askForChildren;
    const QString &wanted = *static_cast<const QString *>(key);
    const bool isWanted
        = tag == QLatin1String("key") && hasValue(attributes, QLatin1String("name"), wanted);
    return isWanted ? askForChildren | takeAll : dropAll;
}

} // namespace Hintreels
