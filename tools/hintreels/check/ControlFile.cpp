// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"

#include "files/HRRegularFile_p.h"
#include "hintreels/check/Package.h"
#include "index/control/HRControlFileProbe_p.h"
#include "ui/popup/componentSearch_p.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <cstring>

namespace Hintreels {

namespace {

QVector<int> lineStarts(const QString &text)
{
    QVector<int> starts{ 0 };
    for (int end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', end + 1))
        starts.append(end + 1);
    return starts;
}

} // namespace

const HRXmlElement *Element::entry() const
{
    for (const HRXmlElement *at = node; at; at = qobject_cast<HRXmlElement *>(at->parent())) {
        if (at->getTagName() == QLatin1String("hintreel"))
            return at;
    }
    return nullptr;
}

Spot Element::spot() const
{
    return file->spot(begin);
}

Spot Element::spot(const QString &attribute) const
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(([^\s=<>"'/]+)\s*=\s*("[^"]*"|'[^']*'))"));
    auto matches = pattern.globalMatch(file->text().mid(begin, end - begin));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(1) == attribute)
            return file->spot(begin + int(match.capturedStart()));
    }
    return spot();
}

ControlFile::ControlFile(const QString &path, const Package &package)
    : m_path(path)
    , m_package(package)
    , m_parser(&ControlFile::note, this)
{
    m_isReadable = readRegularFile(path, m_bytes);
    parse();
}

ControlFile::~ControlFile()
{
    for (const QPointer<QObject> &root : qAsConst(m_roots))
        delete root;
}

/// The library's parser asks for each element, and reads all of it.
int ControlFile::note(const QString &, const QXmlAttributes &, void *file)
{
    auto *self = static_cast<ControlFile *>(file);
    self->m_ends.append(int(self->m_parser.readText().size()));
    return 0;
}

void ControlFile::parse()
{
    const QList<QObject *> roots = m_parser.read(m_bytes);
    m_text = m_parser.readText().toString();
    m_error = m_parser.errorText();
    m_lines = lineStarts(m_text);
    collect(roots);
}

/// Objects and ends of tags are both in document order, one for each element.
void ControlFile::collect(const QList<QObject *> &roots)
{
    std::vector<const QObject *> left(roots.crbegin(), roots.crend());
    for (QObject *root : roots)
        m_roots.append(root);
    for (const int end : qAsConst(m_ends)) {
        if (left.empty())
            return;
        const QObject *object = left.back();
        left.pop_back();
        const QObjectList &children = object->children();
        left.insert(left.end(), children.crbegin(), children.crend());
        const int begin = std::max(0, int(m_text.lastIndexOf(u'<', end - 1)));
        m_elements.push_back({ qobject_cast<const HRXmlElement *>(object), this, begin, end });
    }
}

bool ControlFile::isIndexed() const
{
    qint64 at = 0;
    return HRControlFileProbe().isControlFile([&](char *buffer, qint64 size) {
        const qint64 count = std::min<qint64>(size, m_bytes.size() - at);
        std::memcpy(buffer, m_bytes.constData() + at, size_t(count));
        at += count;
        return count;
    });
}

bool ControlFile::hasEntries() const
{
    return std::any_of(m_elements.begin(), m_elements.end(),
        [](const Element &element) { return element.isEntry(); });
}

Spot ControlFile::spot(int offset) const
{
    const auto line = std::upper_bound(m_lines.begin(), m_lines.end(), std::max(0, offset)) - 1;
    return { m_path, int(line - m_lines.begin()) + 1, std::max(0, offset) - *line + 1 };
}

QStringList ControlFile::searchedDirectories() const
{
    return m_package.searchedDirectories(root() ? root()->attribute("search") : QString());
}

QString ControlFile::uiFile(const HRXmlElement &entry) const
{
    QString name = chosenByContent(&entry, QStringLiteral("ui"));
    if (name.isEmpty())
        name = QStringLiteral("ui/HintreelUI.qml");
    const auto known = m_uiFiles.constFind(name);
    if (known != m_uiFiles.constEnd())
        return *known;
    QStringList candidates = searchedDirectories();
    for (QString &candidate : candidates)
        candidate = QDir(candidate).absoluteFilePath(name);
    return *m_uiFiles.insert(name, firstExisting(candidates, QString()));
}

bool ControlFile::isForStandardUi(const HRXmlElement &entry) const
{
    const QString file = uiFile(entry);
    return file.isNull() || packageNameAt(file) == QLatin1String("Standard");
}

} // namespace Hintreels
