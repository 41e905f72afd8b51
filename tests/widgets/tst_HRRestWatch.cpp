// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRRestWatch_p.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

constexpr int farOff = 100'000; // ms

/// A window that may have tooltips, and notes where it was told to show one.
class Window : public QWidget
{
public:
    Window()
    {
        setAttribute(Qt::WA_AlwaysShowToolTips);
        inner.setGeometry(10, 10, 50, 50);
    }

    QWidget inner{ this };
    QVector<QPoint> told;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ToolTip)
            told.append(static_cast<QHelpEvent *>(event)->pos());
        return QWidget::event(event);
    }
};

struct Fixture
{
    void move(QWidget &widget, const QPoint &position, Qt::MouseButtons buttons = {})
    {
        const QMouseEvent event(QEvent::MouseMove, position, Qt::NoButton, buttons, {});
        watch.follow(&widget, event);
    }
    void type(int key, Qt::KeyboardModifiers modifiers = {})
    {
        watch.holdsBack(QKeyEvent(QEvent::KeyPress, key, modifiers));
    }
    /// What the desktop says.
    bool holdsToolTipBack()
    {
        const QHelpEvent event(QEvent::ToolTip, QPoint(), QPoint());
        return watch.holdsBack(event);
    }

    int delay = farOff;
    Window window;
    int asked = 0;
    bool waitsForCtrl = false;
    HRRestWatch watch{ [this] {
                          ++asked;
                          return delay;
                      },
        [this] { return waitsForCtrl; } };
};

} // namespace

class tst_HRRestWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolTip_comesAfterTheDelay();
    void toolTip_waits_whileThePointerHasNotRestedLongEnough();
    void toolTip_isTheDesktops_withoutADelay();
    void delay_isAskedOnceForARunOfMoves_data();
    void delay_isAskedOnceForARunOfMoves();
    void rest_isWhereThePointerIs();
    void rest_ends_data();
    void rest_ends();
    void ctrl_bringsNone_data();
    void ctrl_bringsNone();
    void window_mayGoMeanwhile();
};

void tst_HRRestWatch::toolTip_comesAfterTheDelay()
{
    Fixture f;
    f.delay = 1;
    f.move(f.window, QPoint(5, 5));
    QTRY_COMPARE(f.window.told, QVector<QPoint>{ QPoint(5, 5) });
    QVERIFY(!f.holdsToolTipBack());
}

void tst_HRRestWatch::toolTip_waits_whileThePointerHasNotRestedLongEnough()
{
    Fixture f;
    QVERIFY(!f.holdsToolTipBack());
    f.move(f.window, QPoint(5, 5));
    QVERIFY(f.holdsToolTipBack());
}

void tst_HRRestWatch::toolTip_isTheDesktops_withoutADelay()
{
    Fixture f;
    f.delay = HRRestWatch::desktopsDelay;
    f.move(f.window, QPoint(5, 5));
    QVERIFY(!f.holdsToolTipBack());
}

void tst_HRRestWatch::delay_isAskedOnceForARunOfMoves_data()
{
    QTest::addColumn<QEvent::Type>("between");
    QTest::addColumn<int>("asked");
    QTest::newRow("on and on") << QEvent::MouseMove << 1;
    QTest::newRow("in another widget") << QEvent::Enter << 2;
    QTest::newRow("after a tooltip") << QEvent::ToolTip << 2;
}

// The reader may have changed it meanwhile; moves come too often to look each time.
void tst_HRRestWatch::delay_isAskedOnceForARunOfMoves()
{
    QFETCH(QEvent::Type, between);
    Fixture f;
    f.move(f.window, QPoint(5, 5));
    f.watch.holdsBack(QEvent(between));
    f.move(f.window, QPoint(6, 6));
    QTEST(f.asked, "asked");
}

// A move comes to the innermost widget first, then to those around it.
void tst_HRRestWatch::rest_isWhereThePointerIs()
{
    Fixture f;
    f.delay = 1;
    f.move(f.window, QPoint(5, 5));
    f.move(f.window, QPoint(7, 7));
    f.move(f.window.inner, QPoint(2, 3));
    f.move(f.window, QPoint(12, 13));
    QTRY_COMPARE(f.window.told, QVector<QPoint>{ QPoint(12, 13) }); // handed on by the inner one
}

void tst_HRRestWatch::rest_ends_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("leaves") << QEvent::Leave;
    QTest::newRow("presses") << QEvent::MouseButtonPress;
    QTest::newRow("scrolls") << QEvent::Wheel;
    QTest::newRow("types") << QEvent::KeyPress;
    QTest::newRow("goes elsewhere") << QEvent::FocusOut;
}

void tst_HRRestWatch::rest_ends()
{
    QFETCH(QEvent::Type, type);
    Fixture f;
    f.move(f.window, QPoint(5, 5));
    if (type == QEvent::KeyPress)
        f.type(Qt::Key_A);
    else
        QVERIFY(!f.watch.holdsBack(QEvent(type)));
    QVERIFY(!f.holdsToolTipBack());

    f.move(f.window, QPoint(5, 5));
    f.move(f.window, QPoint(6, 6), Qt::LeftButton);
    QVERIFY(!f.holdsToolTipBack());
}

void tst_HRRestWatch::ctrl_bringsNone_data()
{
    QTest::addColumn<bool>("waitsForCtrl");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    QTest::newRow("where the reader does not ask so") << false << int(Qt::Key_Control) << ctrl;
    QTest::newRow("with Shift") << true << int(Qt::Key_Control) << (ctrl | Qt::ShiftModifier);
    QTest::newRow("with a letter") << true << int(Qt::Key_C) << ctrl;
}

// Nothing comes later where no time runs; a tooltip of the desktop's would be held back then.
void tst_HRRestWatch::ctrl_bringsNone()
{
    QFETCH(bool, waitsForCtrl);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    Fixture f;
    f.waitsForCtrl = waitsForCtrl;
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    QCursor::setPos(f.window.mapToGlobal(QPoint(3, 4)));
    QTRY_COMPARE(QCursor::pos(), f.window.mapToGlobal(QPoint(3, 4)));
    f.type(Qt::Key_Control, waitsForCtrl ? Qt::ControlModifier : Qt::NoModifier);
    QCOMPARE(f.holdsToolTipBack(), waitsForCtrl);

    f.type(key, modifiers);

    QVERIFY(!f.holdsToolTipBack());
}

void tst_HRRestWatch::window_mayGoMeanwhile()
{
    int delay = 1;
    HRRestWatch watch([&delay] { return delay; }, [] { return false; });
    auto gone = std::make_unique<Window>();
    Window stays;
    const QMouseEvent move(QEvent::MouseMove, QPoint(5, 5), Qt::NoButton, {}, {});
    watch.follow(gone.get(), move);
    gone.reset();
    const QHelpEvent toolTip(QEvent::ToolTip, QPoint(), QPoint());
    QTRY_VERIFY(!watch.holdsBack(toolTip));
    QVERIFY(stays.told.isEmpty());
}

QTEST_MAIN(tst_HRRestWatch)
#include "tst_HRRestWatch.moc"
