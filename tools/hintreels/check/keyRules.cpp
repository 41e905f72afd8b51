// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Package.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/nearestWord.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <iterator>

namespace Hintreels {

namespace {

using SpotOfKey = QMap<QString, Spot>;

void checkKeyTwice(const ControlFile &file, const Tell &tell)
{
    QHash<QString, int> lines;
    for (const Element &element : file.elements()) {
        if (!element.isEntry() || !element.node->hasAttribute(QStringLiteral("key")))
            continue;
        const QString key = element.attribute("key");
        const Spot spot = element.spot(QStringLiteral("key"));
        if (lines.contains(key))
            tell(spot,
                QStringLiteral("the key %1 stands in line %2 already: neither hint is shown")
                    .arg(key)
                    .arg(lines.value(key)));
        else
            lines.insert(key, spot.line);
    }
}

QMap<QString, SpotOfKey> keysByLocale(const Package &package)
{
    QMap<QString, SpotOfKey> locales;
    for (const Entry &entry : package.entries()) {
        SpotOfKey &keys = locales[entry.locale];
        if (!keys.contains(entry.key))
            keys.insert(entry.key, entry.spot);
    }
    return locales;
}

void checkKeyInTwoFiles(const Package &package, const Tell &tell)
{
    const QMap<QString, SpotOfKey> locales = keysByLocale(package);
    for (const Entry &entry : package.entries()) {
        const Spot first = locales.value(entry.locale).value(entry.key);
        if (first.file != entry.spot.file)
            tell(entry.spot,
                QStringLiteral("the key %1 is in %2, too: either hint may be shown")
                    .arg(entry.key, QFileInfo(first.file).fileName()));
    }
}

/// How many locales have each key.
QHash<QString, int> countsOf(const QMap<QString, SpotOfKey> &locales)
{
    QHash<QString, int> counts;
    for (const SpotOfKey &keys : locales) {
        for (auto key = keys.cbegin(); key != keys.cend(); ++key)
            ++counts[key.key()];
    }
    return counts;
}

/// Keys that a locale lacks and others have.
QStringList missingKeys(const SpotOfKey &own, const QHash<QString, int> &all)
{
    QStringList missing;
    for (auto key = all.cbegin(); key != all.cend(); ++key) {
        if (!own.contains(key.key()))
            missing.append(key.key());
    }
    missing.sort();
    return missing;
}

/// Whether a spelling has more locales behind it than another. One of two can be wrong in either:
/// then the writers' first language is right.
bool isBacked(int count, int otherCount, const QString &locale)
{
    return count > otherCount || (count == otherCount && locale == QLatin1String("en_US"));
}

void checkKeySpelling(const Package &package, const Tell &tell)
{
    const QMap<QString, SpotOfKey> locales = keysByLocale(package);
    const QHash<QString, int> counts = countsOf(locales);
    for (auto locale = locales.cbegin(); locale != locales.cend(); ++locale) {
        const QStringList missing = missingKeys(*locale, counts);
        for (auto key = locale->cbegin(); key != locale->cend() && !missing.isEmpty(); ++key) {
            const QString nearest = nearestWord(key.key(), missing);
            const int count = counts.value(key.key());
            if (nearest.isEmpty() || count == locales.size()
                || isBacked(count, counts.value(nearest), locale.key()))
                continue;
            tell(*key,
                QStringLiteral("only this locale has the key %1; others have %2")
                    .arg(key.key(), nearest));
        }
    }
}

constexpr Rule rules[] = {
    { "key-twice", Severity::error, "A file has a key twice", "Neither of the two hints is shown.",
        "Merge them, or mend the key of one.",
        "<hintreel key=\"toolPen\" title=\"Pen\"/>\n<hintreel key=\"toolLine\" "
        "title=\"Line\"/>",
        nullptr, checkKeyTwice, nullptr },
    { "key-in-two-files", Severity::warning, "Two files of one locale have the same key",
        "Which of the hints shows depends on the order in which the files are read.",
        "Delete one of them.", "<hintreel key=\"toolPen\" title=\"Pen\"/>", nullptr, nullptr,
        checkKeyInTwoFiles },
    { "key-spelling", Severity::warning, "A key is spelled otherwise in other locales",
        "Readers of this locale see the hint in another language, or none.",
        "Spell the key as the program has it, in each locale.",
        "<hintreel key=\"toolPen\" title=\"Stift\"/>", nullptr, nullptr, checkKeySpelling },
};

} // namespace

std::vector<Rule> keyRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
