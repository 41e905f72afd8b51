// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/popup/PopupFixture.h"

using namespace Hintreels;

class tst_HRWidgetReserved : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reserve_makesWindowOfItsOwn();
    void reserve_fillsWindowOfHost_data();
    void reserve_fillsWindowOfHost();
    void reserve_leavesItsPart_andNeedsNoContent();
    void reserve_doesNothing_withoutConsent();
    void reservedPopup_neverHidesByItself();
    void reservedPopup_deletesItself_whenClosed();
};

void tst_HRWidgetReserved::reserve_makesWindowOfItsOwn()
{
    PopupFixture f;
    HRXmlElement *content = f.show();
    content->setProperty("title", "Dynamic");
    const QPointer<HRWidget> reserved = f.popup;

    reserved->view()->setReserved(true);

    QVERIFY(f.host->manager()->widget() != reserved);
    QVERIFY(reserved->isVisible());
    QCOMPARE(reserved->parentWidget(), &f.reference);
    const Qt::WindowFlags flags
        = Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint;
    QCOMPARE(reserved->windowFlags() & ~Qt::WindowSystemMenuHint, flags);
    QVERIFY(reserved->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(reserved->windowTitle(), QString("Dynamic"));
    QCOMPARE(reserved->pos(), showPosition);
    QVERIFY(!(reserved->view()->flags() & Qt::WindowDoesNotAcceptFocus));
}

void tst_HRWidgetReserved::reserve_fillsWindowOfHost_data()
{
    QTest::addColumn<bool>("hasLayout");
    QTest::newRow("with a layout") << true;
    QTest::newRow("without a layout") << false;
}

void tst_HRWidgetReserved::reserve_fillsWindowOfHost()
{
    QFETCH(bool, hasLayout);
    PopupFixture f;
    QWidget window;
    if (hasLayout)
        (new QHBoxLayout(&window))->setContentsMargins(0, 0, 0, 0);
    f.host->window = &window;
    f.show();
    QTRY_COMPARE(f.popup->size(), f.around(200, 80));

    f.popup->view()->setReserved(true);

    QVERIFY(window.isVisible());
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.popup->parentWidget(), &window);
    QCOMPARE(window.windowTitle(), QString("Pen"));
    QCOMPARE(window.pos(), showPosition);
    QCOMPARE(window.layout()->itemAt(0)->widget(), f.popup.data());
    QCOMPARE(window.width(), 201);
}

void tst_HRWidgetReserved::reserve_leavesItsPart_andNeedsNoContent()
{
    PopupFixture f({ { placementKey, int(placementBeside) } });
    QWidget window;
    window.setWindowTitle("before");
    f.host->window = &window;
    const std::unique_ptr<QObject> root(f.show()->parent()); // nobody's, once it is taken away
    QVERIFY(HRWidgetPrivate::of(*f.popup).standsBeside());
    f.popup->view()->setContent(nullptr);
    f.popup->view()->setReserved(true);
    QVERIFY(!HRWidgetPrivate::of(*f.popup).standsBeside());
    QCOMPARE(f.popup->parentWidget(), &window);
    QCOMPARE(window.windowTitle(), QString("before"));
}

void tst_HRWidgetReserved::reserve_doesNothing_withoutConsent()
{
    PopupFixture f;
    f.show();
    HRWidget other(f.host->manager(), nullptr, nullptr);
    other.setView(new HRView(f.host->manager(), nullptr));
    other.view()->setReserved(true);
    QVERIFY(f.host->windowRequests.isEmpty());
    QVERIFY(!other.isVisible());
    QCOMPARE(other.windowType(), Qt::ToolTip);
}

void tst_HRWidgetReserved::reservedPopup_neverHidesByItself()
{
    PopupFixture f({ { hideDelayKey, shortTime } });
    f.show();
    f.popup->view()->setReserved(true);
    QVERIFY(!f.timer()->isActive());
    f.popup->setTimer();
    f.popup->checkMousePosition(farAway);
    QVERIFY(!f.timer()->isActive());
    f.popup->hideAnimated();
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidgetReserved::reservedPopup_deletesItself_whenClosed()
{
    PopupFixture f;
    const QPointer<HRXmlElement> content = f.show();
    f.popup->view()->setReserved(true);
    f.popup->close();
    QTRY_VERIFY(!f.popup);
    QVERIFY(!content);
}

QTEST_MAIN(tst_HRWidgetReserved)
#include "tst_HRWidgetReserved.moc"
