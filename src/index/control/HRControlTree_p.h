// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"
#include "index/control/HRControlError_p.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>

class QLocale;

namespace Hintreels {

/// A file's top-level elements, which live as long as this; none where it cannot be read.
class HRControlTree
{
public:
    HRControlTree(const QString &filePath, HRXmlParser::Filter filter, void *data);

    /// Takes down what ends the reading before the file's end, too.
    HRControlTree(
        const QString &filePath, HRXmlParser::Filter filter, void *data, HRControlErrors &errors);
    ~HRControlTree();
    Q_DISABLE_COPY(HRControlTree)

    /// Null where there are no elements.
    HRXmlElement *first() const;

    /// Hands out the only element, or null where there are others. After an error in the file it
    /// goes with this object all the same, so the caller guards it.
    QObject *takeOnly();

private:
    HRXmlParser m_parser; // deletes what an error left open, after the rest is gone
    QList<QObject *> m_objects;
};

/// Reads a file's only top-level element with a filter that is told the key.
///
/// Null where the file cannot be read, where another number of elements remains at the top, and
/// where the file ends in an error inside of the element.
std::unique_ptr<HRXmlElement> readOnlyTree(const QString &filePath, HRXmlParser::Filter filter,
    const QString &key, HRControlErrors &errors);

/// The keys of a control file in the order of its entries, up to an error in it.
QStringList keysOfControlFile(const QString &filePath);

/// The attributes that a key-data file has for a key, without the `name` that tells the key.
QMap<QString, QString> keyDataAttributes(const QString &filePath, const QString &key);

/// Whether the file of this root serves a locale; without an attribute `locale` it serves all.
bool servesLocale(const HRXmlElement &root, const QLocale &locale);

} // namespace Hintreels
