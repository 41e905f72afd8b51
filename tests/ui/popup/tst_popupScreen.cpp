// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupScreen_p.h"

#include <QScreen>
#include <QtTest>

using namespace Hintreels;

class tst_popupScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void screen_isFound_alsoBesideAll_data();
    void screen_isFound_alsoBesideAll();
    void area_isWhatCanBeSeen();
    void area_isNull_whereNothingCanBeSeen();
};

void tst_popupScreen::screen_isFound_alsoBesideAll_data()
{
    QTest::addColumn<bool>("hasReference");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("position") << false << QPoint(50, 50);
    QTest::newRow("position beside the screen") << false << QPoint(-50000, 50);
    QTest::newRow("reference") << true << QPoint(50, 50);
    QTest::newRow("reference beside the screen") << true << QPoint(-50000, 50);
}

void tst_popupScreen::screen_isFound_alsoBesideAll()
{
    QFETCH(bool, hasReference);
    QFETCH(QPoint, position);
    QWidget reference;
    reference.setGeometry(QRect(position, QSize(20, 20)));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(!screen.isEmpty());
    QCOMPARE(availableGeometry(hasReference ? &reference : nullptr, position), screen);
}

void tst_popupScreen::area_isWhatCanBeSeen()
{
    QWidget window;
    window.setGeometry(100, 100, 300, 200);
    QWidget widget(&window);
    widget.setGeometry(-20, 150, 100, 100);
    window.show();
    const QPoint corner = window.mapToGlobal(QPoint(0, 150));
    QCOMPARE(visibleArea(&widget), QRect(corner, QSize(80, 50)));
}

void tst_popupScreen::area_isNull_whereNothingCanBeSeen()
{
    QVERIFY(visibleArea(nullptr).isNull());
    QWidget window;
    QWidget widget(&window);
    QVERIFY(visibleArea(&widget).isNull());
    window.show();
    widget.move(-5000, 0);
    QVERIFY(visibleArea(&widget).isNull());
}

QTEST_MAIN(tst_popupScreen)
#include "tst_popupScreen.moc"
