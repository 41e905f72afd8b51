// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/PopupFixture.h"

#include <QQmlContext>

#include <limits>

using namespace Hintreels;

class tst_HRWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasSlotsInOrder();
    void window_isToolTip_unlessEmbedded_data();
    void window_isToolTip_unlessEmbedded();
    void setView_replacesView();
    void setView_givesFocusToNobody();
    void popupWithoutView_showsAndHides();
    void popupWithoutManager_isNotReserved();
    void showWithContent_doesNothing_withoutContent();
    void showWithContent_showsContentAtPosition();
    void showWithContent_staysOnScreen_whateverThePosition_data();
    void showWithContent_staysOnScreen_whateverThePosition();
    void showWithContent_freesContentShownBefore();
    void showWithContent_keepsSameContent();
    void showWithContent_setsContextProperties();
    void showWithContent_isSilent_whenContentIsReplaced();
    void popup_hasItsContentsSize_beforeItIsShown();
    void popup_takesTheSizeOfNewContentAtOnce_whileVisible();
    void popup_paintsItself_onceItsContentIsPainted();
    void popup_matchesColorOfItsContent();
    void popup_staysOnScreen_whenContentGrows();
    void hide_releasesOverrideCursors();
    void findVisibleGeometry_tellsWhetherItMoved();
    void reposition_movesPopupOntoScreen();
    void popup_survives_whatOthersDelete_data();
    void popup_survives_whatOthersDelete();
    void popup_deletesViewOnce_whicheverGoesFirst_data();
    void popup_deletesViewOnce_whicheverGoesFirst();
};

void tst_HRWidget::metaObject_hasSlotsInOrder()
{
    const QMetaObject &meta = HRWidget::staticMetaObject;
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QByteArrayList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        slotNames.append(meta.method(i).methodSignature());
    }
    QCOMPARE(slotNames,
        (QByteArrayList{ "showWithContent(QObject*,QPoint,HRXmlElement*,QString)", "reposition()",
            "hideAnimated()", "hideAnimationFinished()", "showAnimated()", "setTimer()",
            "contentReservedChanged()", "contentResized()", "findVisibleGeometry(QRect,bool*)",
            "findVisibleGeometry(QRect)" }));
}

void tst_HRWidget::window_isToolTip_unlessEmbedded_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("by default") << false;
    QTest::newRow("embedded") << true;
}

void tst_HRWidget::window_isToolTip_unlessEmbedded()
{
    QFETCH(bool, embedded);
    PopupFixture f({ { embeddedPopupKey, embedded } });
    const HRWidget popup(f.host->manager(), nullptr, nullptr);
    QCOMPARE(popup.windowType() == Qt::ToolTip, !embedded);
    QVERIFY(popup.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(!popup.findChild<QTimer *>()->isActive());
}

void tst_HRWidget::setView_replacesView()
{
    HRWidget popup(nullptr, nullptr, nullptr);
    const QPointer<HRView> first = new HRView(nullptr, nullptr);
    popup.setView(first);
    popup.setView(first);
    QCOMPARE(popup.view(), first.data());
    popup.setView(new HRView(nullptr, nullptr));
    QVERIFY(!first);
    popup.setView(nullptr);
    QVERIFY(!popup.view());
    popup.setTimer();
    popup.contentReservedChanged();
    popup.contentResized();
    popup.hideAnimationFinished();
}

void tst_HRWidget::setView_givesFocusToNobody()
{
    HRWidget popup(nullptr, nullptr, nullptr);
    popup.setView(new HRView(nullptr, nullptr));
    QVERIFY(popup.view()->flags() & Qt::WindowDoesNotAcceptFocus);
    QCOMPARE(popup.view()->position(), QPoint(0, 0));
}

void tst_HRWidget::popupWithoutView_showsAndHides()
{
    HRWidget popup(nullptr, nullptr, nullptr);
    QWidget container(&popup);
    popup.SetContainerWidget(nullptr);
    popup.SetContainerWidget(&container); // which has no layout to stand in
    HRXmlElement content;
    popup.showWithContent(nullptr, showPosition, &content, "/");
    QVERIFY(!popup.isVisible());
    popup.show();
    QVERIFY(popup.isVisible());
    QVERIFY(popup.updatesEnabled());
    QVERIFY(popup.findChild<QTimer *>()->isActive());
    popup.hideAnimationFinished();
    QVERIFY(!popup.isVisible());
    QVERIFY(!popup.findChild<QTimer *>()->isActive());
}

void tst_HRWidget::popupWithoutManager_isNotReserved()
{
    HRWidget popup(nullptr, nullptr, nullptr);
    popup.setView(new HRView(nullptr, nullptr));
    popup.contentReservedChanged();
    popup.view()->setReserved(true);
    QCOMPARE(popup.windowType(), Qt::ToolTip);
    QVERIFY(popup.view()->flags() & Qt::WindowDoesNotAcceptFocus);
    QVERIFY(!popup.isVisible());
}

void tst_HRWidget::showWithContent_doesNothing_withoutContent()
{
    PopupFixture f;
    HRXmlElement *content = f.show();
    f.popup->hide();
    f.popup->showWithContent(nullptr, showPosition, nullptr, "/");
    QVERIFY(!f.popup->isVisible());
    QCOMPARE(f.popup->view()->content(), content);
}

void tst_HRWidget::showWithContent_showsContentAtPosition()
{
    PopupFixture f;
    HRXmlElement *content = f.show();
    QCOMPARE(content->attribute("key"), QString("pen"));
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.popup->pos(), showPosition);
    QCOMPARE(f.popup->windowOpacity(), 1.0);
    QCOMPARE(f.popup->referenceWidget(), &f.reference);
    QCOMPARE(f.popup->view()->packageRoot().path(), f.packages.path() + "/Tools.hintreels");
}

void tst_HRWidget::showWithContent_staysOnScreen_whateverThePosition_data()
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    QTest::addColumn<QPoint>("position");
    QTest::newRow("far right and down") << QPoint(largest, largest);
    QTest::newRow("far left and up") << QPoint(smallest, smallest);
}

void tst_HRWidget::showWithContent_staysOnScreen_whateverThePosition()
{
    QFETCH(QPoint, position);
    PopupFixture f;
    f.show();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const bool isVisible : { true, false }) {
        f.popup->setVisible(isVisible);
        f.popup->showWithContent(&f.reference, position, f.popup->view()->content(), QString());
        QVERIFY(screen.contains(f.popup->frameGeometry()));
    }
}

void tst_HRWidget::showWithContent_freesContentShownBefore()
{
    PopupFixture f;
    const QPointer<HRXmlElement> first = f.show();
    const QPointer<QObject> root = first->parent();
    auto *second = new HRXmlElement;
    f.popup->showWithContent(nullptr, showPosition, second, f.packages.path());
    QVERIFY(!first);
    QVERIFY(!root);
    QCOMPARE(f.popup->view()->content(), second);
}

void tst_HRWidget::showWithContent_keepsSameContent()
{
    PopupFixture f;
    const QPointer<HRXmlElement> content = f.show();
    f.popup->showWithContent(&f.reference, QPoint(200, 200), content, f.packages.path());
    QVERIFY(content);
    QCOMPARE(f.popup->pos(), QPoint(200, 200));
}

void tst_HRWidget::showWithContent_setsContextProperties()
{
    PopupFixture f;
    HRXmlElement *content = f.show();
    QQmlContext *context = f.popup->view()->rootContext();
    QCOMPARE(context->contextProperty("hintreel").value<QObject *>(), content);
    QCOMPARE(context->contextProperty("dataLocation").toString(),
        f.packages.path() + "/Tools.hintreels");
    QCOMPARE(context->contextProperty("hintreelView").value<QObject *>(), f.popup->view());
}

void tst_HRWidget::showWithContent_isSilent_whenContentIsReplaced()
{
    PopupFixture f;
    f.show("pen");
    f.host->messages.clear();
    f.show("ink");
    f.popup->hide();
    f.show("pen");
    QCOMPARE(f.root()->property("key").toString(), QString("pen"));
    QCOMPARE(f.host->takeMessages(messageDebug), QStringList());
}

void tst_HRWidget::popup_hasItsContentsSize_beforeItIsShown()
{
    PopupFixture f;
    f.show("pen");
    QTRY_COMPARE(f.popup->size(), f.around(200, 80));
    f.popup->hide();
    f.show("large");
    QCOMPARE(f.popup->width(), f.around(300, 80).width());
    QTRY_COMPARE(f.popup->size(), f.around(300, 80));
}

void tst_HRWidget::popup_takesTheSizeOfNewContentAtOnce_whileVisible()
{
    PopupFixture f;
    f.show();
    QTRY_COMPARE(f.popup->size(), f.around(200, 80));

    f.show("large");

    QCOMPARE(f.popup->size(), f.around(300, 80));
}

void tst_HRWidget::popup_paintsItself_onceItsContentIsPainted()
{
    PopupFixture f;
    f.show();
    QVERIFY(!f.popup->updatesEnabled());
    QTRY_VERIFY(f.popup->updatesEnabled());

    f.show("large");
    QVERIFY(!f.popup->updatesEnabled());
    QTRY_VERIFY(f.popup->updatesEnabled());
}

void tst_HRWidget::popup_matchesColorOfItsContent()
{
    PopupFixture f;
    f.show("pen");
    QCOMPARE(f.popup->palette().color(QPalette::Window), QColor("red"));
    f.show("large");
    QCOMPARE(f.popup->palette().color(QPalette::Window), QColor("blue"));
    f.show("ink");
    QCOMPARE(f.popup->palette().color(QPalette::Window), QColor(0, 255, 0));
}

void tst_HRWidget::popup_staysOnScreen_whenContentGrows()
{
    PopupFixture f;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    f.show("pen", screen.bottomRight());
    QTRY_COMPARE(f.popup->size(), f.around(200, 80));
    QCOMPARE(f.popup->frameGeometry().bottomRight(), screen.bottomRight());

    f.root()->setHeight(180);

    QTRY_COMPARE(f.popup->size(), f.around(200, 180));
    QCOMPARE(f.popup->frameGeometry().bottomRight(), screen.bottomRight());
    const auto *container = f.popup->layout()->itemAt(0)->widget();
    QCOMPARE(container->geometry(), QRect(0, 0, 200, 180));
}

void tst_HRWidget::hide_releasesOverrideCursors()
{
    PopupFixture f;
    f.show();
    f.popup->view()->setOverrideCursor("IBeamCursor");
    QVERIFY(QGuiApplication::overrideCursor());
    f.popup->hide();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_HRWidget::findVisibleGeometry_tellsWhetherItMoved()
{
    HRWidget popup(nullptr, nullptr, nullptr);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    bool moved = true;
    QCOMPARE(popup.findVisibleGeometry(QRect(10, 10, 50, 50), &moved), QRect(10, 10, 50, 50));
    QVERIFY(!moved);
    const QRect outside(screen.right(), 10, 50, 50);
    QCOMPARE(popup.findVisibleGeometry(outside, &moved).right(), screen.right());
    QVERIFY(moved);
    QCOMPARE(popup.findVisibleGeometry(outside).right(), screen.right());
}

void tst_HRWidget::reposition_movesPopupOntoScreen()
{
    PopupFixture f;
    f.show("pen", QPoint(-50, 100));
    QCOMPARE(f.popup->frameGeometry().left(), 0);
    f.popup->move(100, -30);
    f.popup->reposition();
    QCOMPARE(f.popup->pos(), QPoint(100, 0));
}

void tst_HRWidget::popup_survives_whatOthersDelete_data()
{
    QTest::addColumn<QString>("deleted");
    for (const char *name : { "reference", "content", "view", "container" })
        QTest::newRow(name) << name;
}

void tst_HRWidget::popup_survives_whatOthersDelete()
{
    QFETCH(QString, deleted);
    PopupFixture f;
    auto *reference = new QWidget;
    f.host->show("pen", showPosition, reference);
    f.popup = f.host->manager()->widget();
    const QMap<QString, QObject *> objects{ { "reference", reference },
        { "content", f.popup->view()->content() }, { "view", f.popup->view() },
        { "container", f.popup->layout()->itemAt(0)->widget() } };

    // Who deletes an element alone keeps its root.
    const std::unique_ptr<QObject> root(
        deleted == "content" ? f.popup->view()->content()->parent() : nullptr);
    delete objects.value(deleted);

    f.popup->checkMousePosition(farAway);
    f.popup->setTimer();
    f.popup->contentResized();
    f.popup->reposition();
    f.popup->hideAnimated();
    QVERIFY(!f.popup->isVisible());
    if (deleted != "reference")
        delete reference;
}

void tst_HRWidget::popup_deletesViewOnce_whicheverGoesFirst_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("shown") << true;
    QTest::newRow("never shown") << false;
}

void tst_HRWidget::popup_deletesViewOnce_whicheverGoesFirst()
{
    QFETCH(bool, shown);
    auto *popup = new HRWidget(nullptr, nullptr, nullptr);
    const QPointer<HRView> view = new HRView(nullptr, nullptr);
    popup->SetContainerWidget(QWidget::createWindowContainer(view, popup));
    popup->setView(view);
    popup->setVisible(shown);
    delete popup;
    QVERIFY(!view);
}

QTEST_MAIN(tst_HRWidget)
#include "tst_HRWidget.moc"
