// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "reader/HRReaderSettings.h"

#include <QMetaMethod>
#include <QSettings>
#include <QUrl>

#include <array>
#include <utility>

namespace Hintreels {

namespace {

enum Choice
{
    hintsChoice,
    detailChoice,
    occasionChoice,
    delayChoice,
    durationChoice,
    clipsChoice,
    textSizeChoice,
    captionsChoice,
    startsSmallChoice,
    seenLimitChoice,
    choiceCount
};

struct Range
{
    const char *name; // in the file
    int standard;
    int least;
    int most;
};

constexpr int asElsewhere = -1;

constexpr std::array<Range, choiceCount> ranges{ {
    { "Hintreels/hints", 1, 0, 1 },
    { "Hintreels/detail", 0, 0, HRReaderSettings::summaryDetail },
    { "Hintreels/occasion", 0, 0, HRReaderSettings::occasionKey },
    { "Hintreels/delay", asElsewhere, asElsewhere, 10'000 },
    { "Hintreels/duration", asElsewhere, asElsewhere, 600'000 },
    { "Hintreels/clips", 0, 0, HRReaderSettings::clipsOnRequest },
    { "Hintreels/textSize", 100, 75, 300 },
    { "Hintreels/captions", 1, 0, 1 },
    { "Hintreels/startsSmall", 0, 0, 1 },
    { "Hintreels/seenLimit", 0, 0, 100 },
} };

int bounded(const Range &range, int value)
{
    return qBound(range.least, value, range.most);
}

QString entryOf(const Range &range)
{
    return QString::fromLatin1(range.name);
}

const QString seenGroup = QStringLiteral("Hintreels/Seen");

/// A key may hold what QSettings takes for groups.
QString seenName(const QString &key)
{
    return seenGroup + u'/' + QString::fromLatin1(QUrl::toPercentEncoding(key));
}

/// What anybody may have written into the file.
int readValue(const QSettings &store, const Range &range)
{
    bool isNumber = false;
    const int value = store.value(entryOf(range)).toInt(&isNumber);
    return isNumber ? bounded(range, value) : range.standard;
}

} // namespace

struct HRReaderSettingsPrivate
{
    std::unique_ptr<QSettings> store;
    std::array<int, choiceCount> values;
};

HRReaderSettings::HRReaderSettings(QObject *parent)
    : HRReaderSettings(std::make_unique<QSettings>(), parent)
{
}

HRReaderSettings::HRReaderSettings(std::unique_ptr<QSettings> store, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<HRReaderSettingsPrivate>())
{
    for (int choice = 0; choice < choiceCount; ++choice)
        d->values[choice] = readValue(*store, ranges[choice]);
    d->store = std::move(store);
}

HRReaderSettings::~HRReaderSettings() = default;

int HRReaderSettings::value(int choice) const
{
    return d->values[choice];
}

void HRReaderSettings::setValue(int choice, int value)
{
    const int inRange = bounded(ranges[choice], value);
    if (d->values[choice] == inRange)
        return;
    d->values[choice] = inRange;
    d->store->setValue(entryOf(ranges[choice]), inRange);
    Q_EMIT changed();
}

bool HRReaderSettings::areHintsShown() const
{
    return value(hintsChoice) != 0;
}

void HRReaderSettings::setHintsShown(bool shown)
{
    setValue(hintsChoice, shown ? 1 : 0);
}

HRReaderSettings::Detail HRReaderSettings::detail() const
{
    return Detail(value(detailChoice));
}

void HRReaderSettings::setDetail(Detail detail)
{
    setValue(detailChoice, detail);
}

HRReaderSettings::Occasion HRReaderSettings::occasion() const
{
    return Occasion(value(occasionChoice));
}

void HRReaderSettings::setOccasion(Occasion occasion)
{
    setValue(occasionChoice, occasion);
}

int HRReaderSettings::delay() const
{
    return value(delayChoice);
}

void HRReaderSettings::setDelay(int milliseconds)
{
    setValue(delayChoice, milliseconds);
}

int HRReaderSettings::duration() const
{
    return value(durationChoice);
}

void HRReaderSettings::setDuration(int milliseconds)
{
    setValue(durationChoice, milliseconds);
}

HRReaderSettings::Clips HRReaderSettings::clips() const
{
    return Clips(value(clipsChoice));
}

void HRReaderSettings::setClips(Clips clips)
{
    setValue(clipsChoice, clips);
}

int HRReaderSettings::textSize() const
{
    return value(textSizeChoice);
}

void HRReaderSettings::setTextSize(int percent)
{
    setValue(textSizeChoice, percent);
}

bool HRReaderSettings::areCaptionsShown() const
{
    return value(captionsChoice) != 0;
}

void HRReaderSettings::setCaptionsShown(bool shown)
{
    setValue(captionsChoice, shown ? 1 : 0);
}

bool HRReaderSettings::startsSmall() const
{
    return value(startsSmallChoice) != 0;
}

void HRReaderSettings::setStartsSmall(bool small)
{
    setValue(startsSmallChoice, small ? 1 : 0);
}

int HRReaderSettings::seenLimit() const
{
    return value(seenLimitChoice);
}

void HRReaderSettings::setSeenLimit(int times)
{
    setValue(seenLimitChoice, times);
}

bool HRReaderSettings::beginsSmall(const QString &key) const
{
    const int limit = seenLimit();
    return startsSmall() || (limit > 0 && d->store->value(seenName(key)).toInt() >= limit);
}

void HRReaderSettings::countSeen(const QString &key)
{
    const int times = d->store->value(seenName(key)).toInt();
    if (times < seenLimit())
        d->store->setValue(seenName(key), times + 1);
}

void HRReaderSettings::forgetSeen()
{
    d->store->remove(seenGroup);
}

bool HRReaderSettings::isPageOffered() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&HRReaderSettings::pageRequested));
}

void HRReaderSettings::requestPage()
{
    Q_EMIT pageRequested();
}

} // namespace Hintreels
