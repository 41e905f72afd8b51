// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupFit_p.h"

#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHBoxLayout>
#include <QtTest>

using namespace Hintreels;

namespace {

const QRect screen(0, 0, 800, 600);

struct Fixture
{
    explicit Fixture(const QByteArray &qml = rectangleQml(200, 80, "red"))
    {
        popup.setView(new HRView(nullptr, nullptr));
        if (!qml.isEmpty())
            popup.view()->setSource(QUrl::fromLocalFile(packages.write("Popup.qml", qml)));
    }

    QColor background() const { return popup.palette().color(QPalette::Window); }

    TestPackages packages;
    HRWidget popup{ nullptr, nullptr, nullptr };
};

} // namespace

/// On popups that hosts have put together themselves; tst_HRWidget has those of the manager.
class tst_popupFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void popup_takesTheSizeOfItsContent_data();
    void popup_takesTheSizeOfItsContent();
    void popup_isFixed_aroundItsContent_data();
    void popup_isFixed_aroundItsContent();
    void popup_keepsSizeAndColor_withoutContent_data();
    void popup_keepsSizeAndColor_withoutContent();
    void background_isTheSeams_data();
    void background_isTheSeams();
};

void tst_popupFit::popup_takesTheSizeOfItsContent_data()
{
    QTest::addColumn<bool>("hasContainer");
    QTest::newRow("with a container") << true;
    QTest::newRow("without a container") << false;
}

void tst_popupFit::popup_takesTheSizeOfItsContent()
{
    QFETCH(bool, hasContainer);
    Fixture f;
    QWidget container(&f.popup);
    f.popup.setFixedSize(20, 20);
    QVERIFY(!fitsContent(f.popup));
    takeContentSize(f.popup, hasContainer ? &container : nullptr);
    QVERIFY(fitsContent(f.popup));
    QCOMPARE(f.popup.size(), QSize(201, 81));
    QCOMPARE(container.minimumSize(), hasContainer ? QSize(200, 80) : QSize(0, 0));
}

void tst_popupFit::popup_isFixed_aroundItsContent_data()
{
    QTest::addColumn<bool>("hasContainer");
    QTest::addColumn<bool>("hasLayout");
    QTest::newRow("container in a layout") << true << true;
    QTest::newRow("container") << true << false;
    QTest::newRow("neither") << false << false;
}

void tst_popupFit::popup_isFixed_aroundItsContent()
{
    QFETCH(bool, hasContainer);
    QFETCH(bool, hasLayout);
    Fixture f;
    QWidget container(&f.popup);
    if (hasLayout) {
        auto *layout = new QHBoxLayout(&f.popup);
        layout->setContentsMargins(3, 4, 0, 0);
        layout->addWidget(&container);
    }
    fitToContent(f.popup, hasContainer ? &container : nullptr, screen);
    QCOMPARE(f.popup.minimumSize(), QSize(201, 81));
    QCOMPARE(f.popup.maximumSize(), QSize(201, 81));
    if (hasContainer)
        QCOMPARE(container.maximumSize(), QSize(200, 80));
    if (hasLayout)
        QCOMPARE(container.pos(), QPoint(3, 4));
}

void tst_popupFit::popup_keepsSizeAndColor_withoutContent_data()
{
    QTest::addColumn<bool>("hasView");
    QTest::newRow("view without a scene") << true;
    QTest::newRow("no view") << false;
}

void tst_popupFit::popup_keepsSizeAndColor_withoutContent()
{
    QFETCH(bool, hasView);
    Fixture f{ QByteArray() };
    if (!hasView)
        f.popup.setView(nullptr);
    f.popup.resize(30, 20);
    const QColor color = f.background();
    takeContentSize(f.popup, nullptr);
    fitToContent(f.popup, nullptr, screen);
    matchBackground(f.popup);
    QCOMPARE(f.popup.size(), QSize(30, 20));
    QCOMPARE(f.popup.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(sizeAroundContent(f.popup), QSize(30, 20));
    QVERIFY(fitsContent(f.popup));
    QCOMPARE(f.background(), color);
}

void tst_popupFit::background_isTheSeams_data()
{
    QTest::addColumn<QByteArray>("root");
    QTest::addColumn<QColor>("background");
    QTest::newRow("seam") << QByteArray("Rectangle { color: 'red'; property color seam: 'blue' }")
                          << QColor(Qt::blue);
    QTest::newRow("color of the item")
        << QByteArray("Rectangle { color: 'red' }") << QColor(Qt::red);
    QTest::newRow("color of the view") << QByteArray("Item {}") << QColor(Qt::green);
}

void tst_popupFit::background_isTheSeams()
{
    QFETCH(QByteArray, root);
    Fixture f("import QtQuick 2.15\n" + root);
    f.popup.view()->setColor(Qt::green);
    matchBackground(f.popup);
    QTEST(f.background(), "background");
    matchBackground(f.popup);
    QTEST(f.background(), "background");
}

QTEST_MAIN(tst_popupFit)
#include "tst_popupFit.moc"
