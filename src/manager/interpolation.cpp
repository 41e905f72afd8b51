// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/interpolation_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

bool isNameCharacter(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '-'
        || u == '_';
}

// The text still to be scanned: inserted values, kept reversed so that both ends of the work are
// cheap, and behind them what is left of the original text.
class Input
{
public:
    explicit Input(const QString &text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_inserted.isEmpty() && m_position == m_text.size(); }

    // Null behind the end, which no placeholder contains.
    QChar at(int offset) const
    {
        if (offset < m_inserted.size())
            return m_inserted.at(m_inserted.size() - 1 - offset);
        const int position = m_position + offset - m_inserted.size();
        return position < m_text.size() ? m_text.at(position) : QChar();
    }

    void skip(int count)
    {
        const int inserted = std::min(count, int(m_inserted.size()));
        m_inserted.chop(inserted);
        m_position += count - inserted;
    }

    void insert(const QString &value)
    {
        for (auto c = value.crbegin(); c != value.crend(); ++c)
            m_inserted.append(*c);
    }

    // Moves what cannot begin a placeholder, or is one character that does not, to the result.
    void moveTo(QString &result)
    {
        if (!m_inserted.isEmpty()) {
            result.append(at(0));
            skip(1);
            return;
        }
        const int found = m_text.indexOf(u'%', m_position + 1);
        const int end = found < 0 ? m_text.size() : found;
        result.append(m_text.constData() + m_position, end - m_position);
        m_position = end;
    }

    // The name of the placeholder that the text begins with; empty where it begins with none.
    QString placeholder() const
    {
        QString name;
        if (at(0) != u'%' || at(1) != u'(')
            return name;
        int end = 2;
        for (; isNameCharacter(at(end)); ++end)
            name.append(at(end));
        return at(end) == u')' && at(end + 1) == u's' ? name : QString();
    }

private:
    const QString &m_text;
    int m_position = 0;
    QString m_inserted;
};

constexpr int lengthAroundName = 4; // "%(" before it and ")s" behind it

} // namespace

QString interpolated(const QString &text, const QMap<QString, QVariant> &values)
{
    QString result;
    result.reserve(text.size());
    Input input(text);
    while (!input.atEnd()) {
        const QString name = input.placeholder();
        const QString value = name.isEmpty() ? QString() : values.value(name).toString();
        if (value.isNull()) {
            input.moveTo(result);
            continue;
        }
        input.skip(name.size() + lengthAroundName);
        if (value.contains(u'%'))
            input.insert(value);
        else
            result.append(value);
    }
    return result;
}

} // namespace Hintreels
