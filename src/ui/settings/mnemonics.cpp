// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/settings/mnemonics_p.h"

#include <QSet>

namespace Hintreels {

namespace {

/// Whether a keyboard has a key for a letter. Other scripts are typed by input methods.
bool hasKey(QChar letter)
{
    switch (letter.script()) {
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
    case QChar::Script_Hebrew:
    case QChar::Script_Arabic:
        return letter.isLetter();
    default:
        return false;
    }
}

/// Picks letters that nobody has yet.
class Picker
{
public:
    QString marked(QString text)
    {
        text.replace(u'&', QLatin1String("&&"));
        int place = placeIn(text, true);
        if (place < 0)
            place = placeIn(text, false);
        return place < 0 ? withLetterBehind(text) : text.insert(place, u'&');
    }

private:
    bool take(QChar letter)
    {
        const QChar key = letter.toUpper();
        if (!hasKey(letter) || m_taken.contains(key))
            return false;
        m_taken.insert(key);
        return true;
    }

    int placeIn(const QString &text, bool beginsWord)
    {
        for (int i = 0; i < text.size(); ++i) {
            const bool isFirst = i == 0 || text[i - 1].isSpace();
            if ((isFirst || !beginsWord) && take(text[i]))
                return i;
        }
        return -1;
    }

    QString withLetterBehind(const QString &text)
    {
        for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
            if (take(letter))
                return text + QStringLiteral(" (&%1)").arg(QChar(letter));
        }
        return text;
    }

    QSet<QChar> m_taken;
};

} // namespace

QStringList withMnemonics(const QStringList &texts)
{
    Picker picker;
    QStringList marked;
    for (const QString &text : texts)
        marked.append(picker.marked(text));
    return marked;
}

} // namespace Hintreels
