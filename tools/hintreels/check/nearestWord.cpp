// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/nearestWord.h"

#include <QVector>

#include <algorithm>
#include <numeric>
#include <utility>

namespace Hintreels {

int editDistance(const QString &a, const QString &b)
{
    QVector<int> beforeLast;
    QVector<int> last;
    QVector<int> row(int(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        beforeLast = std::exchange(last, row);
        row[0] = i + 1;
        for (int j = 0; j < b.size(); ++j) {
            const int replaced = last[j] + (a[i] == b[j] ? 0 : 1);
            row[j + 1] = std::min({ row[j] + 1, last[j + 1] + 1, replaced });
            if (i > 0 && j > 0 && a[i] == b[j - 1] && a[i - 1] == b[j])
                row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + 1);
        }
    }
    return row.last();
}

QString nearestWord(const QString &word, const QStringList &candidates)
{
    QString nearest;
    int least = std::max(1, (int(word.size()) + 1) / 3) + 1; // what is further away was not meant
    for (const QString &candidate : candidates) {
        const int distance = editDistance(word.toLower(), candidate.toLower());
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

QString suggestion(const QString &word, const QStringList &candidates)
{
    const QString nearest = nearestWord(word, candidates);
    return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean %1?").arg(nearest);
}

} // namespace Hintreels
