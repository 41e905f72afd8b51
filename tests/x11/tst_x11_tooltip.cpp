// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QToolTip>
#include <QtTest>

using namespace Hintreels;

namespace {

const QPoint farAway(1000, 700);

/// A host whose popup goes for nothing but tool tips.
struct Host : HintHost
{
    explicit Host(bool givesWay = true)
        : HintHost([givesWay](HRContext &context) {
            context.set(hideDelayKey, 0);
            context.set(hostToolTipsKey, givesWay);
        })
    {
    }
};

/// Shows Qt's tool tip for a widget, as hosts do.
void showToolTip(QWidget &widget)
{
    QToolTip::showText(widget.mapToGlobal(widget.rect().center()), "tool tip", &widget);
}

} // namespace

/// Qt's own tool tip beside the popup, on a real X server with a window manager.
class tst_x11_tooltip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toolTip_isHidden_forTheSamePart();
    void toolTip_takesPopupAway_forAnotherPart();
    void toolTip_leavesPopupThatItsUiKeepsOpen();
    void toolTip_isGone_whenPopupComes();
    void toolTip_isSeenBesidePopup_withoutTheSetting();
};

void tst_x11_tooltip::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_tooltip::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_x11_tooltip::toolTip_isHidden_forTheSamePart()
{
    Host host;
    QVERIFY(host.hover(host.red));
    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
    showToolTip(host.red);
    QTRY_VERIFY(!QToolTip::isVisible());
    QVERIFY(host.popup().isVisible());
    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
}

void tst_x11_tooltip::toolTip_takesPopupAway_forAnotherPart()
{
    Host host;
    QVERIFY(host.hover(host.red));
    showToolTip(host.plain);
    QVERIFY(QToolTip::isVisible());
    QVERIFY(!host.popup().isVisible());
}

void tst_x11_tooltip::toolTip_leavesPopupThatItsUiKeepsOpen()
{
    Host host;
    QVERIFY(host.hover(host.red));
    host.popup().view()->setStayOpen(true);
    showToolTip(host.plain);
    QVERIFY(QToolTip::isVisible());
    QVERIFY(host.popup().isVisible());
}

void tst_x11_tooltip::toolTip_isGone_whenPopupComes()
{
    Host host;
    showToolTip(host.red);
    QVERIFY(QToolTip::isVisible());
    host.show(host.red, host.red.mapToGlobal(QPoint(5, 5)));
    QVERIFY(host.popup().isVisible());
    QVERIFY(!QToolTip::isVisible());
}

void tst_x11_tooltip::toolTip_isSeenBesidePopup_withoutTheSetting()
{
    Host host(false);
    QVERIFY(host.hover(host.red));
    for (QPushButton *widget : { &host.red, &host.plain }) {
        showToolTip(*widget);
        QVERIFY(QToolTip::isVisible());
        QVERIFY(host.popup().isVisible());
    }
}

QTEST_MAIN(tst_x11_tooltip)
#include "tst_x11_tooltip.moc"
