// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/hostToolTip_p.h"

#include <QLabel>
#include <QToolTip>
#include <QtTest>

using namespace Hintreels;

namespace {

/// Keeps a tool tip hidden as soon as it is shown.
class Keeper : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && isHostToolTip(*watched))
            keepHidden(static_cast<QWidget &>(*watched));
        return false;
    }
};

QWidget *shownToolTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (isHostToolTip(*window) && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

class tst_hostToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { hideHostToolTips(); }
    void isHostToolTip_knowsQtsOwn();
    void isToolTipOf_looksAtPlaceAndPointer_data();
    void isToolTipOf_looksAtPlaceAndPointer();
    void hideHostToolTips_hidesAtOnce();
    void keepHidden_isForOneToolTip();
};

void tst_hostToolTip::isHostToolTip_knowsQtsOwn()
{
    QToolTip::showText(QPoint(100, 100), "text");
    QVERIFY(shownToolTip());
    const QLabel label;
    const QWidget window(nullptr, Qt::ToolTip);
    QVERIFY(!isHostToolTip(label));
    QVERIFY(!isHostToolTip(window));
}

void tst_hostToolTip::isToolTipOf_looksAtPlaceAndPointer_data()
{
    QTest::addColumn<QRect>("part");
    QTest::addColumn<QRect>("toolTip");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("isPartOfIt");
    const QRect part(100, 100, 80, 30);
    const QRect below(122, 136, 60, 20);
    QTest::newRow("at the pointer") << part << below << QPoint(120, 115) << true;
    QTest::newRow("at the part, with the pointer in the popup")
        << part << below << QPoint(150, 300) << true;
    QTest::newRow("at the part, with the pointer on the way")
        << part << below << QPoint(150, 190) << true;
    QTest::newRow("far away, with the pointer in the part")
        << part << QRect(500, 500, 60, 20) << QPoint(120, 115) << false;
    QTest::newRow("near the part, with the pointer on the next")
        << part << QRect(192, 136, 60, 20) << QPoint(190, 115) << false;
    QTest::newRow("no part") << QRect() << below << QPoint(120, 115) << false;
}

void tst_hostToolTip::isToolTipOf_looksAtPlaceAndPointer()
{
    QFETCH(QRect, part);
    QFETCH(QRect, toolTip);
    QFETCH(QPoint, pointer);
    QTEST(isToolTipOf(part, toolTip, QRect(100, 200, 200, 160), pointer), "isPartOfIt");
}

void tst_hostToolTip::hideHostToolTips_hidesAtOnce()
{
    QToolTip::showText(QPoint(100, 100), "text");
    QVERIFY(QToolTip::isVisible());
    hideHostToolTips();
    QVERIFY(!QToolTip::isVisible());
}

void tst_hostToolTip::keepHidden_isForOneToolTip()
{
    {
        Keeper keeper;
        qApp->installEventFilter(&keeper);
        QToolTip::showText(QPoint(100, 100), "kept hidden");
        const QWidget *toolTip = shownToolTip();
        QVERIFY(toolTip && !toolTip->windowHandle()->isVisible());
        QTRY_VERIFY(!QToolTip::isVisible());
    }
    QToolTip::showText(QPoint(100, 100), "shown");
    const QWidget *toolTip = shownToolTip();
    QVERIFY(toolTip && toolTip->windowHandle()->isVisible());
}

QTEST_MAIN(tst_hostToolTip)
#include "tst_hostToolTip.moc"
