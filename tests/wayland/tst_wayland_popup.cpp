// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidget.h"
#include "wayland/WestonHost.h"
#include "x11/RealInput.h"

#include <QtTest>

using namespace Hintreels;

/// The popup beside the pointer, on a real Wayland compositor.
class tst_wayland_popup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void popup_paintsItsContent_whenPointerRestsOnWidget();
};

void tst_wayland_popup::init()
{
    restPointerElsewhere();
}

void tst_wayland_popup::popup_paintsItsContent_whenPointerRestsOnWidget()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    QCOMPARE(host.popup().size(), QSize(201, 121));
}

QTEST_MAIN(tst_wayland_popup)
#include "tst_wayland_popup.moc"
