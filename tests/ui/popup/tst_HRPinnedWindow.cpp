// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPinnedWindow_p.h"

#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QApplication>
#include <QLayout>
#include <QQuickItem>
#include <QtTest>

using namespace Hintreels;

namespace {

/// A window that other windows belong to, and a reference in each of them.
struct Windows
{
    QWidget main;
    QWidget inMain{ &main };
    QWidget dialog{ &main, Qt::Dialog };
    QWidget inDialog{ &dialog };
    QWidget menu{ &inMain, Qt::Popup };
    QWidget inMenu{ &menu };
    QWidget subMenu{ &menu, Qt::Popup };
    QWidget inSubMenu{ &subMenu };
    QWidget looseMenu{ nullptr, Qt::Popup };
    QWidget inLooseMenu{ &looseMenu };
    QWidget active;
};

using Member = QWidget Windows::*;

} // namespace

Q_DECLARE_METATYPE(Member)

/// What a hint's own window knows by itself; tst_x11_pinned has the window manager's part.
class tst_HRPinnedWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void window_belongsToTheReferences_data();
    void window_belongsToTheReferences();
    void window_belongsToNone_whereNoneIsActive();
    void window_isAsLargeAsItsContent();
    void window_leavesAPopupAlone_thatIsElsewhere();
};

void tst_HRPinnedWindow::window_belongsToTheReferences_data()
{
    QTest::addColumn<Member>("reference");
    QTest::addColumn<Member>("window");
    QTest::newRow("in a window") << &Windows::inMain << &Windows::main;
    QTest::newRow("window") << &Windows::main << &Windows::main;
    QTest::newRow("in a dialog") << &Windows::inDialog << &Windows::dialog;
    QTest::newRow("in a menu") << &Windows::inMenu << &Windows::main;
    QTest::newRow("in a menu of a menu") << &Windows::inSubMenu << &Windows::main;
    QTest::newRow("in a menu of nobody") << &Windows::inLooseMenu << &Windows::active;
}

void tst_HRPinnedWindow::window_belongsToTheReferences()
{
    QFETCH(Member, reference);
    QFETCH(Member, window);
    Windows windows;
    QApplication::setActiveWindow(&windows.active);
    const HRWidget popup(nullptr, nullptr, &(windows.*reference));
    QCOMPARE(windowFor(popup), &(windows.*window));
}

void tst_HRPinnedWindow::window_belongsToNone_whereNoneIsActive()
{
    QApplication::setActiveWindow(nullptr);
    const HRWidget popup(nullptr, nullptr, nullptr);
    QVERIFY(!windowFor(popup));
}

void tst_HRPinnedWindow::window_isAsLargeAsItsContent()
{
    TestPackages packages;
    auto *popup = new HRWidget(nullptr, nullptr, nullptr);
    popup->setView(new HRView(nullptr, nullptr));
    popup->view()->setSource(
        QUrl::fromLocalFile(packages.write("Popup.qml", rectangleQml(200, 80))));
    HRPinnedWindow window(*popup, nullptr);
    window.layout()->addWidget(popup);
    window.resize(50, 50);
    window.show();
    QCOMPARE(window.size(), QSize(200, 80));
    QCOMPARE(popup->size(), QSize(200, 80));

    popup->view()->rootObject()->setWidth(300);
    Q_EMIT popup->view()->contentSizeChanged();
    QCOMPARE(window.size(), QSize(300, 80));
    QCOMPARE(popup->size(), QSize(300, 80));
}

void tst_HRPinnedWindow::window_leavesAPopupAlone_thatIsElsewhere()
{
    auto popup = std::make_unique<HRWidget>(nullptr, nullptr, nullptr);
    popup->setView(new HRView(nullptr, nullptr));
    popup->resize(30, 20);
    HRPinnedWindow window(*popup, nullptr);
    window.show();
    window.resize(50, 60);
    QCOMPARE(popup->size(), QSize(30, 20));
    popup.reset();
    window.resize(70, 80);
    QCOMPARE(window.size(), QSize(70, 80));
}

QTEST_MAIN(tst_HRPinnedWindow)
#include "tst_HRPinnedWindow.moc"
