// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"
#include "hintreels/check/Finding.h"

#include <QByteArray>
#include <QHash>
#include <QPointer>
#include <QString>
#include <QVector>

#include <optional>
#include <vector>

namespace Hintreels {

class ControlFile;
class Package;

/// An element of a control file, and where its start tag stands in the text.
struct Element
{
    const HRXmlElement *node;
    const ControlFile *file;
    int begin; ///< of "<", in UTF-16 units
    int end; ///< behind ">"; of an empty element, behind "/"

    QString tag() const { return node->getTagName(); }
    QString attribute(const char *name) const { return node->attribute(QLatin1String(name)); }
    const HRXmlElement *parent() const { return qobject_cast<HRXmlElement *>(node->parent()); }
    /// The entry that the element is or lies in; null outside of all.
    const HRXmlElement *entry() const;
    bool isEntry() const { return entry() == node; }

    Spot spot() const;
    /// Where an attribute begins; the element's own where it has none of that name.
    Spot spot(const QString &attribute) const;
};

/// A file that is, or looks like, a control file: read once by the library's own parser, with the
/// places of what is in it. After an error in the XML, it has the elements before that.
class ControlFile
{
public:
    /// @param path absolute
    /// @param package that the file lies in; must outlive this
    ControlFile(const QString &path, const Package &package);
    ~ControlFile();
    Q_DISABLE_COPY(ControlFile)

    const QString &path() const { return m_path; }
    const Package &package() const { return m_package; }
    bool isReadable() const { return m_isReadable; }
    const QByteArray &bytes() const { return m_bytes; }

    /// As far as the XML could be read.
    const QString &text() const { return m_text; }
    /// In document order; the root is the first one.
    const std::vector<Element> &elements() const { return m_elements; }
    const Element *root() const { return m_elements.empty() ? nullptr : &m_elements.front(); }
    /// What the XML parser stumbled over; null where it read all. The text ends there.
    QString error() const { return m_error; }

    /// Whether the library takes the file for a control file.
    bool isIndexed() const;
    bool hasEntries() const;

    Spot spot(int offset) const;

    /// Directories in which the library looks for what an element names: those of its own package,
    /// and of those that the root searches.
    QStringList searchedDirectories() const;

    /// The file with the user interface of an entry; null where there is none.
    QString uiFile(const HRXmlElement &entry) const;
    /// Whether the standard user interface shows the entry, as far as one can tell.
    bool isForStandardUi(const HRXmlElement &entry) const;

private:
    static int note(const QString &tag, const QXmlAttributes &attributes, void *file);
    void parse();
    void collect(const QList<QObject *> &roots);

    const QString m_path;
    const Package &m_package;
    bool m_isReadable = false;
    QByteArray m_bytes;
    HRXmlParser m_parser; // deletes what an error left open
    QList<QPointer<QObject>> m_roots;
    QVector<int> m_ends; // of start tags, in document order
    QString m_text;
    QString m_error;
    QVector<int> m_lines; // where each begins
    std::vector<Element> m_elements;
    mutable QHash<QString, QString> m_uiFiles; // by their names in the content
};

} // namespace Hintreels
