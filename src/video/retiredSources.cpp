// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/retiredSources_p.h"

#include "video/HRVideoSource.h"
#include "video/stopThread_p.h"

#include <QPointer>

#include <algorithm>
#include <atomic>
#include <vector>

namespace Hintreels {

namespace {

// An ordinary clip's picture takes some 10 ms. Where one source is slow, the others of the same
// hint are not waited for as well.
constexpr unsigned long patience = 50; // ms

// Each holds two to three pictures, and one may be stuck for good in a file system that does not
// answer.
constexpr int mostRetired = 2;

std::atomic<int> retiredCount{ 0 };

/// The retired sources that the event loop has not deleted by the end of the process.
struct Remainder
{
    ~Remainder()
    {
        for (const QPointer<HRVideoSource> &source : sources)
            delete source.data();
    }

    std::vector<QPointer<HRVideoSource>> sources;
};

void keep(HRVideoSource *source)
{
    static Remainder remainder;
    auto &sources = remainder.sources;
    sources.erase(std::remove(sources.begin(), sources.end(), nullptr), sources.end());
    sources.emplace_back(source);
}

} // namespace

void retireSource(std::unique_ptr<HRVideoSource> source)
{
    HRVideoSource *retired = source.get();
    retired->setParent(nullptr);
    // Freeing a long clip takes a while, too. Connected before it is asked whether the thread has
    // ended by itself, so that no end is missed.
    QObject::connect(
        retired, &QThread::finished, retired, [retired] { retired->dropClip(); },
        Qt::DirectConnection);
    QObject::connect(retired, &QThread::finished, retired, &QObject::deleteLater);
    const bool hasEnded = retired->isFinished();
    if (hasEnded || stopThread(retired, retiredCount == 0 ? patience : 0))
        return;
    ++retiredCount;
    QObject::connect(retired, &QObject::destroyed, [] { --retiredCount; });
    keep(source.release());
}

bool areRetiredSourcesMany()
{
    return retiredCount >= mostRetired;
}

} // namespace Hintreels
