// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "failing/FailingCalls.h"
#include "support/ClipThreads.h"
#include "support/Descriptors.h"
#include "support/Promises.h"
#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"

#include <QtTest>

#include <memory>

using namespace Hintreels;

/// Lets each call of a show fail once, the n-th in the n-th show.
class tst_FailingShow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void show_showsItOrNothing_data();
    void show_showsItOrNothing();
};

namespace {

/// A hint with one of everything.
struct Place
{
    Place()
    {
        packages.writeControl("Test", "test.xml",
            "<hintreel key='pen' title='Pen'><text>**Draws**</text><picture source='pen.png'/>"
            "<keys press='Ctrl+P'/><video source='pen.mp4'/></hintreel>",
            "search='Standard' locale='en_US'");
        packages.write("Test.hintreels/Resources/pen.png", png());
        packages.write(
            "Test.hintreels/Resources/pen.vtt", "WEBVTT\n\n00:00.000 --> 00:01.000\nA line\n");
        TestClip().write(packages.path() + "/Test.hintreels/Resources/pen.mp4");
        context.set(hideDelayKey, 0); // never
    }

    std::unique_ptr<RecordingHost> makeHost()
    {
        return std::make_unique<RecordingHost>(
            context, QStringList{ packages.path(), HINTREELS_SOURCE_DIR "/packages" });
    }

    TestPackages packages;
    HRContext context;
};

bool showPen(HRInterface &host)
{
    return host.show("pen", QPoint(50, 50), nullptr);
}

QString shownKey(const HRInterface &host)
{
    const HRWidget *popup = host.manager()->widget();
    const bool isShown = popup && popup->isVisible() && popup->view()->content();
    return isShown ? popup->view()->content()->attribute("key") : QString();
}

/// Shows the hint in a new host with one call failing, then again with none.
/// @return how many calls could have failed
long show(Place &place, FailingCallKind call, long number)
{
    const auto host = place.makeHost();
    FailingCalls calls(call, number);
    const bool isShown = showPen(*host);
    QCoreApplication::processEvents();
    const long seen = calls.end();
    require(shownKey(*host) == (isShown ? "pen" : QString()), "a popup shows it or hides");
    require(showPen(*host) && shownKey(*host) == "pen", "the next show works");
    delete host->manager()->widget();
    require(QTest::qWaitFor([] { return clipThreads().isEmpty(); }), "the clip's threads end");
    return seen;
}

} // namespace

void tst_FailingShow::initTestCase()
{
    dropMessages();
}

void tst_FailingShow::show_showsItOrNothing_data()
{
    QTest::addColumn<int>("call");
    QTest::newRow("open") << int(failingOpen);
    QTest::newRow("read") << int(failingRead);
    QTest::newRow("stat") << int(failingStat);
}

void tst_FailingShow::show_showsItOrNothing()
{
    QFETCH(int, call);
    Place place;
    long calls = show(place, FailingCallKind(call), 0);
    QVERIFY(calls > 0);
    const QStringList descriptors = openDescriptors();
    for (long number = 1; number <= calls; ++number) {
        calls = qMax(calls, show(place, FailingCallKind(call), number));
        QCOMPARE(openDescriptors(), descriptors);
    }
}

QTEST_MAIN(tst_FailingShow)
#include "tst_FailingShow.moc"
