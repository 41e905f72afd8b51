// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/heapTrim_p.h"

#include <QFile>
#include <QtTest>

#include <array>
#include <cstdlib>
#include <cstring>
#include <thread>

using namespace Hintreels;

class tst_heapTrim : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trimHeap_returnsWhatAnEndedThreadHasLeft();
};

namespace {

constexpr size_t megabyte = 1024 * 1024;
constexpr size_t small = 112; // bytes; glibc joins what is so small to nothing before it must
constexpr size_t keptSmall = 7; // as many of a size glibc keeps for the thread that freed them

/// Without the code of libraries, in megabytes.
double ownMegabytes()
{
    QFile file("/proc/self/smaps_rollup");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read the memory of this process");
    const QByteArray text = file.readAll();
    const QByteArray name("Anonymous:");
    const int start = text.indexOf(name) + name.size();
    return text.mid(start, text.indexOf("kB", start) - start).trimmed().toDouble() / 1024;
}

using Pieces = std::array<void *, keptSmall + 12 + 1>;

/// What a thread has allocated, with something small before and behind what is large.
Pieces allocateInAThread()
{
    Pieces pieces{};
    std::thread([&pieces] {
        for (size_t i = 0; i < pieces.size(); ++i) {
            const bool isLarge = i >= keptSmall && i + 1 < pieces.size();
            pieces.at(i) = std::malloc(isLarge ? 4 * megabyte : small);
            std::memset(pieces.at(i), 1, isLarge ? 4 * megabyte : small);
        }
    }).join();
    return pieces;
}

} // namespace

void tst_heapTrim::trimHeap_returnsWhatAnEndedThreadHasLeft()
{
    // From now on glibc keeps pieces up to that size in heaps, and shrinks those by twice as much.
    void *volatile largest = std::malloc(8 * megabyte);
    std::free(largest);
    const double before = ownMegabytes();
    const Pieces pieces = allocateInAThread();
    for (void *piece : pieces)
        std::free(piece);
    QVERIFY(ownMegabytes() > before + 40);

    trimHeap();

    QVERIFY2(ownMegabytes() < before + 20, qPrintable(QString::number(ownMegabytes() - before)));
}

QTEST_GUILESS_MAIN(tst_heapTrim)
#include "tst_heapTrim.moc"
