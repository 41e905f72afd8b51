// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "manager/interpolation_p.h"
#include "support/Promises.h"
#include "support/RepeatedSearch.h"

#include <QRegExp>

using namespace Hintreels;

namespace {

using Values = QMap<QString, QVariant>;

constexpr int mostValues = 5;

// A value that repeats the next one, which repeats the next one, must not outgrow the memory.
constexpr int mostPlaceholders = 2; // in a value
constexpr int longestValue = 60;
constexpr int longestText = 400;

QString nameOf(int number)
{
    return QString(QLatin1Char(char('a' + number)));
}

/// Leaves of a value's percent signs those that begin a placeholder of a later value: one that led
/// back to itself would never stop.
QString acyclic(const QString &value, int number)
{
    const QRegExp placeholder(QStringLiteral("%\\(([a-e])\\)s"));
    QString result;
    int placeholders = 0;
    for (int at = 0; at < value.size(); ++at) {
        const bool leadsOn = placeholder.indexIn(value, at) == at
            && placeholder.cap(1) > nameOf(number) && placeholders < mostPlaceholders;
        placeholders += leadsOn ? 1 : 0;
        result.append(value.at(at) != '%' || leadsOn ? value.at(at) : QChar('.'));
    }
    return result;
}

} // namespace

// The text, then the values of "a" to "e", each after a newline.
void fuzzInterpolation(const QByteArray &input)
{
    const QStringList lines = QString::fromUtf8(input).split('\n');
    const QString text = lines.first().left(longestText);
    Values values;
    for (int i = 0; i < mostValues && i + 1 < lines.size(); ++i)
        values.insert(nameOf(i), acyclic(lines.at(i + 1).left(longestValue), i));
    require(interpolated(text, values) == searchedRepeatedly(text, values),
        "interpolation agrees with its definition");
}
