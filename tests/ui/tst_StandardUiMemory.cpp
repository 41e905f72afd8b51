// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/ClipThreads.h"
#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"
#include "ui/reader/heapTrim_p.h"

#include <unistd.h>

using namespace Hintreels;

/// In a process of its own, whose heaps nothing else has filled.
class tst_StandardUiMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenPopup_givesBackWhatAClipTook();
};

namespace {

// On a machine that has much else to do; Qt waits three times as long before it tells of a failure.
constexpr int patience = 30000; // ms

/// Of this process, in megabytes.
struct Memory
{
    double resident;
    double own; ///< of that, what no file holds

    static Memory now()
    {
        QFile file("/proc/self/statm");
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read the memory of this process");
        const QList<QByteArray> pages = file.readAll().split(' ');
        const double page = double(::sysconf(_SC_PAGESIZE)) / (1024 * 1024);
        const double resident = pages.value(1).toDouble() * page;
        return { resident, resident - pages.value(2).toDouble() * page };
    }
};

/// Shows the clip to its end, hides it and waits until it is gone.
void showClip(StandardUiFixture &fixture)
{
    fixture.show("clip");
    // It would go by itself where other programs keep the clip from its end for long enough.
    fixture.popup->view()->setStayOpen(true);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.hasItem("clip"), patience);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.item("clip")->property("ended").toBool(), patience);
    fixture.popup->hide();
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.hasItem("clip"), patience);
    QTRY_COMPARE_WITH_TIMEOUT(clipThreads(), QStringList(), patience);
}

} // namespace

void tst_StandardUiMemory::hiddenPopup_givesBackWhatAClipTook()
{
    StandardUiFixture fixture(
        "<hintreel key='plain' title='Pen'/>"
        "<hintreel key='clip' title='Pen'><video source='clip.mp4'/></hintreel>");
    TestClip recording;
    recording.size = QSize(1280, 720);
    recording.pictures = 30;
    recording.write(fixture.packages.path() + "/Test.hintreels/Resources/clip.mp4");
    showClip(fixture); // what is loaded with the first clip stays
    if (QTest::currentTestFailed())
        return;
    fixture.show("plain");
    fixture.popup->hide();
    trimHeap();
    const Memory before = Memory::now();

    showClip(fixture);

    // What the files of libraries take is left out: the system drops that when it likes.
    const auto kept = [&] { return (Memory::now().own - before.own) / before.resident; };
    QTRY_VERIFY2_WITH_TIMEOUT(kept() <= 0.1, qPrintable(QString::number(kept())), patience);
}

QTEST_MAIN(tst_StandardUiMemory)
#include "tst_StandardUiMemory.moc"
