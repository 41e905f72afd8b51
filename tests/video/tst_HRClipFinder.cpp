// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipFinder_p.h"

#include "support/MessageGuard.h"
#include "support/TestClip.h"
#include "video/HRVideoComponent.h"

#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

using namespace Hintreels;

namespace {

/// Knows clips by their names, and notes what it is asked for.
class FakeFinder : public HRClipFinder
{
public:
    using HRClipFinder::HRClipFinder;

    QString findClip(const QString &source) override
    {
        asked.append(source);
        return clips.value(source);
    }
    int largestPicture() const override { return 1; }
    bool isDecodingPaused() const override { return paused; }

    QHash<QString, QString> clips;
    QStringList asked;
    bool paused = false;
};

} // namespace

class tst_HRClipFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void of_findsTheWindowsOwn();
    void item_showsWhatTheFinderNames();
    void item_keepsItsSource_whereNoneIsFound();
    void item_takesNoSource_inAWindowWithoutFinder();
    void item_decodesNothing_inAWindowThatPauses();

private:
    MessageGuard m_guard;
    QTemporaryDir m_directory;
};

void tst_HRClipFinder::of_findsTheWindowsOwn()
{
    QQuickWindow window;
    QQuickWindow other;
    const FakeFinder finder(&window);
    QCOMPARE(HRClipFinder::of(&window), &finder);
    QCOMPARE(HRClipFinder::of(&other), nullptr);
    QCOMPARE(HRClipFinder::of(nullptr), nullptr);
}

void tst_HRClipFinder::item_showsWhatTheFinderNames()
{
    QQuickWindow window;
    auto *finder = new FakeFinder(&window);
    finder->clips = { { "pen", TestClip{}.write(m_directory.filePath("pen.mp4")) } };
    auto *item = new HRVideoComponent(window.contentItem());

    item->setSource("pen");
    QCOMPARE(finder->asked, QStringList("pen"));
    QTRY_COMPARE(item->loadProgress(), 1.0);
}

void tst_HRClipFinder::item_keepsItsSource_whereNoneIsFound()
{
    QQuickWindow window;
    auto *finder = new FakeFinder(&window);
    auto *item = new HRVideoComponent(window.contentItem());

    item->setSource("none");
    QCOMPARE(finder->asked, QStringList("none"));
    QCOMPARE(item->source(), QString("none"));
}

void tst_HRClipFinder::item_takesNoSource_inAWindowWithoutFinder()
{
    QQuickWindow window;
    auto *item = new HRVideoComponent(window.contentItem());
    item->setSource("pen");
    QCOMPARE(item->source(), QString());
}

void tst_HRClipFinder::item_decodesNothing_inAWindowThatPauses()
{
    QQuickWindow window;
    auto *finder = new FakeFinder(&window);
    finder->clips = { { "pen", TestClip{}.write(m_directory.filePath("paused.mp4")) } };
    finder->paused = true;
    auto *item = new HRVideoComponent(window.contentItem());
    item->setSource("pen");

    // The same clip beside it shows when the paused one would have come this far.
    QQuickWindow second;
    auto *other = new FakeFinder(&second);
    other->clips = finder->clips;
    auto *running = new HRVideoComponent(second.contentItem());
    running->setSource("pen");
    QTRY_COMPARE(running->loadProgress(), 1.0);
    QVERIFY(item->loadProgress() < 1.0);

    item->setDecodingPaused(false);
    QTRY_COMPARE(item->loadProgress(), 1.0);
}

QTEST_MAIN(tst_HRClipFinder)
#include "tst_HRClipFinder.moc"
