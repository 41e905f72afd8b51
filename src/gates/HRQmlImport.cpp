// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRQmlImport_p.h"

#include <QStringList>

namespace Hintreels {

namespace {

/// Reads what stands before the first object of a QML file, or the first statement of a script.
class Head
{
public:
    explicit Head(const QString &text)
        : m_text(text)
    {
    }

    QVector<HRQmlImport> imports()
    {
        QVector<HRQmlImport> found;
        for (;;) {
            skipBlank();
            skip('.'); // a script writes its own with a dot before it
            const QString word = takeWord();
            if (word == QLatin1String("pragma"))
                skipPragma();
            else if (word != QLatin1String("import"))
                return found;
            else
                takeImport(found);
        }
    }

private:
    // Qt 6 lets values follow.
    void skipPragma()
    {
        takeNextWord();
        for (skipBlank(); at() == u':' || at() == u','; skipBlank()) {
            ++m_at;
            skipBlank();
            if (isQuote())
                skipString();
            else
                takeWord();
        }
    }

    void takeImport(QVector<HRQmlImport> &found)
    {
        skipBlank();
        if (isQuote()) {
            skipString();
        } else {
            HRQmlImport import;
            import.module = takeDotted();
            skipBlank();
            if (at().isDigit())
                import.major = takeDotted().section(u'.', 0, 0).toInt();
            found.append(import);
        }
        skipQualifier();
    }

    void skipQualifier()
    {
        skipBlank();
        if (at().isDigit())
            takeDotted();
        const int before = m_at;
        if (takeNextWord() == QLatin1String("as"))
            takeNextWord();
        else
            m_at = before;
    }

    QString takeDotted()
    {
        QString name = takeNextWord();
        for (skipBlank(); at() == u'.'; skipBlank()) {
            skip('.');
            name += u'.' + takeNextWord();
        }
        return name;
    }

    QString takeNextWord()
    {
        skipBlank();
        return takeWord();
    }

    // A backslash belongs to it: a name that is spelled with escapes is none of those allowed.
    QString takeWord()
    {
        const int begin = m_at;
        while (at().isLetterOrNumber() || at() == u'_' || at() == u'\\')
            ++m_at;
        return m_text.mid(begin, m_at - begin);
    }

    void skipString()
    {
        const QChar quote = at();
        for (++m_at; m_at < m_text.size() && at() != quote; ++m_at)
            m_at += at() == u'\\';
        ++m_at;
    }

    void skipBlank()
    {
        while (m_at < m_text.size()) {
            if (startsWith("//"))
                skipPast("\n");
            else if (startsWith("/*"))
                skipPast("*/");
            else if (at().isSpace() || at() == u';' || at() == QChar::ByteOrderMark)
                ++m_at;
            else
                return;
        }
    }

    bool startsWith(const char *mark) const
    {
        return QStringView(m_text).mid(m_at).startsWith(QLatin1String(mark));
    }

    void skipPast(const char *mark)
    {
        const QLatin1String end(mark);
        const int found = m_text.indexOf(end, m_at + end.size());
        m_at = found < 0 ? m_text.size() : found + end.size();
    }

    void skip(char c) { m_at += at() == QLatin1Char(c); }
    bool isQuote() const { return at() == u'"' || at() == u'\''; }
    QChar at() const { return m_at < m_text.size() ? m_text[m_at] : QChar(); }

    const QString &m_text;
    int m_at = 0;
};

QVector<QStringList> linesOfQmldir(const QString &text)
{
    QVector<QStringList> lines;
    const QStringList rawLines = text.split(u'\n');
    for (const QString &line : rawLines) {
        const QStringList words = line.section(u'#', 0, 0).simplified().split(u' ');
        if (!words.first().isEmpty())
            lines.append(words);
    }
    return lines;
}

/// Whether a line is about what may be missing, or may be chosen among others: Qt 6 takes such
/// imports.
bool isQualified(const QStringList &words)
{
    return words.first() == QLatin1String("optional") || words.first() == QLatin1String("default");
}

int majorOf(const QString &version)
{
    return version.section(u'.', 0, 0).toInt();
}

} // namespace

QVector<HRQmlImport> importsOfQml(const QString &text)
{
    return Head(text).imports();
}

QVector<HRQmlImport> importsOfQmldir(const QString &text)
{
    QVector<HRQmlImport> imports;
    const QVector<QStringList> lines = linesOfQmldir(text);
    for (const QStringList &words : lines) {
        const int first = isQualified(words) ? 1 : 0;
        const QString kind = words.value(first);
        if (kind == QLatin1String("import") || kind == QLatin1String("depends"))
            imports.append({ words.value(first + 1), majorOf(words.value(first + 2)) });
    }
    return imports;
}

bool loadsPlugin(const QString &qmldir)
{
    const QVector<QStringList> lines = linesOfQmldir(qmldir);
    for (const QStringList &words : lines) {
        if (words.contains(QStringLiteral("plugin")))
            return true;
    }
    return false;
}

HRQmlImport moduleInDirectory(const QString &relativePath)
{
    HRQmlImport import;
    QStringList names;
    const QStringList directories = relativePath.split(u'/');
    for (const QString &directory : directories) {
        const QString version = directory.section(u'.', 1);
        import.major = version.isEmpty() ? import.major : majorOf(version);
        names.append(directory.section(u'.', 0, 0));
    }
    import.module = names.join(u'.');
    return import;
}

} // namespace Hintreels
