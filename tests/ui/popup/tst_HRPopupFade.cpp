// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPopupFade_p.h"

#include <QPropertyAnimation>
#include <QWidget>
#include <QtTest>

using namespace Hintreels;

namespace {

constexpr int shortFade = 50; // ms
constexpr int longFade = 60000; // ms

struct Fixture
{
    QWidget window;
    HRPopupFade fade{ &window };
    int ended = 0;

    Fixture() { window.setWindowOpacity(1.0); }
    void fadeTo(qreal opacity, int duration)
    {
        fade.fade(window.windowOpacity(), opacity, duration, [this] { ++ended; });
    }
};

} // namespace

class tst_HRPopupFade : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void animation_isChildOfWindow();
    void fade_reachesOpacityAndTells();
    void fade_startsWhereItIsTold();
    void fade_replacesRunningFade_whichTellsNobody();
    void stop_leavesOpacity_andTellsNobody();
    void isFadingOut_tellsDirection();
};

void tst_HRPopupFade::animation_isChildOfWindow()
{
    Fixture f;
    const auto *animation = f.window.findChild<QPropertyAnimation *>();
    QVERIFY(animation);
    QCOMPARE(animation->targetObject(), &f.window);
    QCOMPARE(animation->propertyName(), QByteArray("windowOpacity"));
}

void tst_HRPopupFade::fade_reachesOpacityAndTells()
{
    Fixture f;
    f.fadeTo(0.0, shortFade);
    QVERIFY(f.fade.isRunning());
    QTRY_COMPARE(f.ended, 1);
    QVERIFY(!f.fade.isRunning());
    QCOMPARE(f.window.windowOpacity(), 0.0);
}

void tst_HRPopupFade::fade_startsWhereItIsTold()
{
    Fixture f;
    f.fade.fade(0.1, 1.0, longFade, [] {});
    const auto *animation = f.window.findChild<QPropertyAnimation *>();
    QCOMPARE(animation->startValue().toReal(), 0.1);
    QCOMPARE(qRound(f.window.windowOpacity() * 10), 1);
}

void tst_HRPopupFade::fade_replacesRunningFade_whichTellsNobody()
{
    Fixture f;
    int firstEnded = 0;
    f.fade.fade(1.0, 0.5, longFade, [&] { ++firstEnded; });
    f.fadeTo(1.0, shortFade);
    QTRY_COMPARE(f.ended, 1);
    QCOMPARE(firstEnded, 0);
}

void tst_HRPopupFade::stop_leavesOpacity_andTellsNobody()
{
    Fixture f;
    f.fadeTo(0.0, longFade);
    f.fade.stop();
    QVERIFY(!f.fade.isRunning());
    f.fade.stop();
    QVERIFY(f.window.windowOpacity() > 0.5);

    // Nor does the next fade tell those who wait for this one.
    int nextEnded = 0;
    f.fade.fade(1.0, 0.5, shortFade, [&] { ++nextEnded; });
    QTRY_COMPARE(nextEnded, 1);
    QCOMPARE(f.ended, 0);
}

void tst_HRPopupFade::isFadingOut_tellsDirection()
{
    Fixture f;
    QVERIFY(!f.fade.isFadingOut());
    f.fadeTo(1.0, longFade);
    QVERIFY(!f.fade.isFadingOut());
    f.fadeTo(0.0, longFade);
    QVERIFY(f.fade.isFadingOut());
    f.fade.stop();
    QVERIFY(!f.fade.isFadingOut());
}

QTEST_MAIN(tst_HRPopupFade)
#include "tst_HRPopupFade.moc"
