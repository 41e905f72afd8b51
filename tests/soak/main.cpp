// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRPackageIndex.h"
#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "soak/Footprint.h"
#include "support/TestClip.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

using namespace Hintreels;

// Shows hints, round after round, in one process, and looks whether it holds on to more and more.

namespace {

constexpr int samples = 10;

// What may be left of noise: buffers that grow to their size late, the order of allocations.
constexpr qint64 heapSlack = 256 * 1024; // bytes; the smallest allocation in 20,000 rounds is above
constexpr qint64 residentSlack = 8 * 1024 * 1024;

/// A host with hints of all kinds.
class Host
{
public:
    Host()
        : m_index(&m_context, {})
    {
        m_packages.writeControl("Test", "en.xml",
            "<hintreel key='text' title='Text'><text>**Bold** and [a link](http://a)</text>"
            "<note>Note</note><keys press='Ctrl+P'/></hintreel>"
            "<hintreel key='list' title='List'><text>- one\n- two</text></hintreel>"
            "<hintreel key='clip' title='Clip'><video source='clip.mp4'/></hintreel>",
            "search='Standard' locale='en_US'");
        m_packages.write(
            "Test.hintreels/Resources/clip.vtt", "WEBVTT\n\n00:00.000 --> 00:01.000\nA line\n");
        TestClip().write(m_packages.path() + "/Test.hintreels/Resources/clip.mp4");
        m_context.set(hideDelayKey, 0); // never
        m_context.set(hideAnimationDurationKey, 0);
        m_context.set(persistentDirectoryKey, m_databases.path());
        m_interface = std::make_unique<HRInterface>(m_context,
            QStringList{ m_packages.path(), HINTREELS_SOURCE_DIR "/packages" }, &m_index);
    }

    /// One round; most are of the kind that a reader's pointer makes most, now and then a dear one.
    void live(int round)
    {
        show(round % 2 == 0 ? "text" : "list");
        if (round % 10 == 0)
            show("nothing");
        if (round % 20 == 0)
            popup()->hide();
        if (round % 100 == 50)
            show("clip");
        if (round % 200 == 150)
            replacePopup();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    HRWidget *popup() const { return m_interface->manager()->widget(); }

    void show(const char *key) { m_interface->show(key, QPoint(40, 40), nullptr); }

    void replacePopup()
    {
        delete popup();
        m_interface->translateString("Tip", "StandardUI");
        m_interface->keys();
    }

    TestPackages m_packages;
    QTemporaryDir m_databases;
    HRContext m_context;
    HRPackageIndex m_index;
    std::unique_ptr<HRInterface> m_interface;
};

void print(int round, const Footprint &now)
{
    std::printf("%7d %9lld %9lld %11d %7d %7d %6d %11d\n", round, now.heap / 1024,
        now.resident / 1024, now.descriptors, now.threads, now.objects, now.timers,
        now.connections);
    std::fflush(stdout);
}

bool grew(const Footprint &first, const Footprint &last)
{
    return last.heap > first.heap + heapSlack || last.resident > first.resident + residentSlack
        || last.descriptors != first.descriptors || last.threads != first.threads
        || last.objects != first.objects || last.timers != first.timers
        || last.connections != first.connections;
}

} // namespace

int main(int argc, char **argv)
{
    watchObjects();
    QApplication application(argc, argv);
    const int rounds = argc > 1 ? QByteArray(argv[1]).toInt() : 0;
    // A sample is taken after rounds of all kinds, always in the same state: a popup has hidden.
    const int step = rounds / samples / 200 * 200;
    if (step == 0) {
        std::fprintf(stderr, "usage: hintreels_soak ROUNDS, 2000 or more\n");
        return 2;
    }
    Host host;
    std::printf("%7s %9s %9s %11s %7s %7s %6s %11s\n", "rounds", "heap kB", "memory kB",
        "descriptors", "threads", "objects", "timers", "connections");
    QElapsedTimer timer;
    timer.start();
    Footprint first{};
    Footprint last{};
    for (int sample = 1; sample <= samples; ++sample) {
        for (int round = 1; round <= step; ++round)
            host.live(round);
        last = Footprint::now();
        print(sample * step, last);
        // What is made once is there after the first two.
        if (sample == 2)
            first = last;
    }
    std::printf("%d rounds in %.1f s\n", samples * step, double(timer.elapsed()) / 1000);
    const bool isGrowing = grew(first, last);
    std::printf(isGrowing ? "it holds on to more and more\n" : "constant\n");
    return isGrowing ? 1 : 0;
}
