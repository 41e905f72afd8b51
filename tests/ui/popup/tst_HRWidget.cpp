// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QPropertyAnimation>
#include <QQmlContext>
#include <QQuickItem>
#include <QtTest>

#include <limits>

using namespace Hintreels;

namespace {

constexpr int shortTime = 50; // ms
constexpr int longTime = 60000; // ms
const QPoint farAway(700, 700);
const QPoint showPosition(100, 100);

const QByteArray hintQml = R"(
import QtQuick 2.15
Rectangle {
    property string key: hintreel.attribute("key")
    width: key === "large" ? 300 : 200; height: 80
    color: key === "large" ? "blue" : "red"
    property var seam: key === "ink" ? Qt.rgba(0, 1, 0, 1) : undefined
    states: State { name: "open" }
}
)";

/// A popup as the manager puts it together, with the pointer far away from it.
struct Fixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = {})
    {
        packages.write("Tools.hintreels/ui/HintreelUI.qml", hintQml);
        packages.writeControl("Tools", "en_US.xml",
            "<hintreel key='pen' title='Pen'/><hintreel key='ink'/><hintreel key='large'/>");
        HRContext context;
        context.set(hideDelayKey, longTime);
        context.set(hideAnimationDurationKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
        host->context().set(messageLevelKey, int(messageDebug));
        QCursor::setPos(farAway);
        reference.setGeometry(300, 400, 100, 40);
    }

    HRXmlElement *show(const QString &key = "pen", const QPoint &position = showPosition)
    {
        host->show(key, position - QPoint(35, 30), &reference);
        popup = host->manager()->widget();
        return popup->view()->content();
    }

    /// The popup's size around content: one pixel more, and the title bar, which this platform
    /// gives to tool tips, too.
    QSize around(int width, int height) const
    {
        const QWidget *window = popup->window();
        const int titleBar = window->geometry().top() - window->frameGeometry().top();
        return QSize(width + 1, height + 1 + titleBar);
    }

    QTimer *timer() const
    {
        for (QTimer *timer : popup->findChildren<QTimer *>())
            if (timer->isSingleShot())
                return timer;
        return nullptr;
    }
    QPropertyAnimation *animation() const { return popup->findChild<QPropertyAnimation *>(); }
    QQuickItem *root() const { return popup->view()->rootObject(); }

    TestPackages packages;
    QWidget reference;
    std::unique_ptr<RecordingHost> host;
    QPointer<HRWidget> popup;
};

} // namespace

class tst_HRWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasSlotsInOrder();
    void window_isToolTip_unlessEmbedded_data();
    void window_isToolTip_unlessEmbedded();
    void setView_replacesView();
    void setView_givesFocusToNobody();
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
    void showAnimated_fadesIn();
    void showAnimated_startsAtATenth();
    void hideAnimated_hidesAtOnce_withoutDuration();
    void hideAnimated_fadesOut();
    void hideAnimated_doesNothing_duringFade();
    void showWithContent_cancelsFadeOut_data();
    void showWithContent_cancelsFadeOut();
    void cancelHiding_leavesFadeIn();
    void fadeIn_startsTimer_whenTimeOutWasLost();
    void hide_stopsAnimationAndTimer();
    void hide_releasesOverrideCursors();
    void timer_runs_whilePointerIsAway_data();
    void timer_runs_whilePointerIsAway();
    void timer_stops_whenPointerIsOverReference();
    void timer_doesNotRun_data();
    void timer_doesNotRun();
    void timer_followsStayOpen();
    void timer_hidesPopup();
    void isSafe_countsMargin_data();
    void isSafe_countsMargin();
    void isSafe_isFalse_withoutReference();
    void findVisibleGeometry_tellsWhetherItMoved();
    void reposition_movesPopupOntoScreen();
    void detach_makesWindowOfItsOwn();
    void detach_fillsWindowOfHost_data();
    void detach_fillsWindowOfHost();
    void detach_doesNothing_withoutConsent();
    void detachedPopup_neverHidesByItself();
    void detachedPopup_deletesItself_whenClosed();
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
    Fixture f({ { embeddedPopupKey, embedded } });
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

void tst_HRWidget::showWithContent_doesNothing_withoutContent()
{
    Fixture f;
    HRXmlElement *content = f.show();
    f.popup->hide();
    f.popup->showWithContent(nullptr, showPosition, nullptr, "/");
    QVERIFY(!f.popup->isVisible());
    QCOMPARE(f.popup->view()->content(), content);
}

void tst_HRWidget::showWithContent_showsContentAtPosition()
{
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
    const QPointer<HRXmlElement> content = f.show();
    f.popup->showWithContent(&f.reference, QPoint(200, 200), content, f.packages.path());
    QVERIFY(content);
    QCOMPARE(f.popup->pos(), QPoint(200, 200));
}

void tst_HRWidget::showWithContent_setsContextProperties()
{
    Fixture f;
    HRXmlElement *content = f.show();
    QQmlContext *context = f.popup->view()->rootContext();
    QCOMPARE(context->contextProperty("hintreel").value<QObject *>(), content);
    QCOMPARE(context->contextProperty("dataLocation").toString(),
        f.packages.path() + "/Tools.hintreels");
    QCOMPARE(context->contextProperty("hintreelView").value<QObject *>(), f.popup->view());
}

void tst_HRWidget::showWithContent_isSilent_whenContentIsReplaced()
{
    Fixture f;
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
    Fixture f;
    f.show("pen");
    QTRY_COMPARE(f.popup->size(), f.around(200, 80));
    f.popup->hide();
    f.show("large");
    QCOMPARE(f.popup->width(), f.around(300, 80).width());
    QTRY_COMPARE(f.popup->size(), f.around(300, 80));
}

void tst_HRWidget::popup_takesTheSizeOfNewContentAtOnce_whileVisible()
{
    Fixture f;
    f.show();
    QTRY_COMPARE(f.popup->size(), f.around(200, 80));

    f.show("large");

    QCOMPARE(f.popup->size(), f.around(300, 80));
}

void tst_HRWidget::popup_paintsItself_onceItsContentIsPainted()
{
    Fixture f;
    f.show();
    QVERIFY(!f.popup->updatesEnabled());
    QTRY_VERIFY(f.popup->updatesEnabled());

    f.show("large");
    QVERIFY(!f.popup->updatesEnabled());
    QTRY_VERIFY(f.popup->updatesEnabled());
}

void tst_HRWidget::popup_matchesColorOfItsContent()
{
    Fixture f;
    f.show("pen");
    QCOMPARE(f.popup->palette().color(QPalette::Window), QColor("red"));
    f.show("large");
    QCOMPARE(f.popup->palette().color(QPalette::Window), QColor("blue"));
    f.show("ink");
    QCOMPARE(f.popup->palette().color(QPalette::Window), QColor(0, 255, 0));
}

void tst_HRWidget::popup_staysOnScreen_whenContentGrows()
{
    Fixture f;
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

void tst_HRWidget::showAnimated_fadesIn()
{
    Fixture f({ { showAnimationDurationKey, shortTime } });
    f.show();
    QVERIFY(f.popup->isVisible());
    QVERIFY(f.popup->windowOpacity() < 0.5);
    QCOMPARE(f.popup->size(), f.around(200, 80));
    QTRY_COMPARE(f.popup->windowOpacity(), 1.0);
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidget::showAnimated_startsAtATenth()
{
    Fixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    QCOMPARE(f.animation()->startValue().toReal(), 0.1);
    QCOMPARE(f.animation()->endValue().toReal(), 1.0);
}

void tst_HRWidget::hideAnimated_hidesAtOnce_withoutDuration()
{
    Fixture f;
    f.show();
    f.root()->setState("open");
    f.popup->hideAnimated();
    QVERIFY(!f.popup->isVisible());
    QCOMPARE(f.root()->state(), QString());
}

void tst_HRWidget::hideAnimated_fadesOut()
{
    Fixture f({ { hideAnimationDurationKey, shortTime }, { showAnimationDurationKey, shortTime } });
    f.show();
    QTRY_COMPARE(f.popup->windowOpacity(), 1.0);
    f.root()->setState("open");
    f.popup->hideAnimated();
    QVERIFY(f.popup->isVisible());
    QVERIFY(!f.timer()->isActive());
    QTRY_VERIFY(!f.popup->isVisible());
    QCOMPARE(f.root()->state(), QString());

    // The end of the next fade-in does not hide it.
    f.show();
    QTRY_COMPARE(f.popup->windowOpacity(), 1.0);
    QTest::qWait(2 * shortTime);
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidget::hideAnimated_doesNothing_duringFade()
{
    Fixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    f.popup->hideAnimated();
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Running);
}

void tst_HRWidget::showWithContent_cancelsFadeOut_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("same hint") << "pen";
    QTest::newRow("another hint") << "ink";
}

void tst_HRWidget::showWithContent_cancelsFadeOut()
{
    QFETCH(QString, key);
    Fixture f({ { hideAnimationDurationKey, 200 } });
    f.show();
    f.popup->hideAnimated();
    QTRY_VERIFY(f.popup->windowOpacity() < 0.9);

    f.show(key);

    QCOMPARE(f.popup->windowOpacity(), 1.0);
    QVERIFY(f.timer()->isActive());
    QTest::qWait(300);
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.popup->windowOpacity(), 1.0);
}

void tst_HRWidget::cancelHiding_leavesFadeIn()
{
    Fixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    f.popup->cancelHiding();
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Running);
}

void tst_HRWidget::fadeIn_startsTimer_whenTimeOutWasLost()
{
    Fixture f({ { showAnimationDurationKey, 200 }, { hideDelayKey, shortTime } });
    f.show();
    QTRY_VERIFY(!f.timer()->isActive());
    QVERIFY(f.popup->isVisible());
    QTRY_VERIFY(!f.popup->isVisible());
}

void tst_HRWidget::hide_stopsAnimationAndTimer()
{
    Fixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    QVERIFY(f.timer()->isActive());
    f.popup->hide();
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Stopped);
    QVERIFY(!f.timer()->isActive());
}

void tst_HRWidget::hide_releasesOverrideCursors()
{
    Fixture f;
    f.show();
    f.popup->view()->setOverrideCursor("IBeamCursor");
    QVERIFY(QGuiApplication::overrideCursor());
    f.popup->hide();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_HRWidget::timer_runs_whilePointerIsAway_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("runs");
    QTest::newRow("inside") << showPosition + QPoint(10, 10) << false;
    QTest::newRow("in the margin") << showPosition - QPoint(10, 10) << false;
    QTest::newRow("away") << farAway << true;
}

void tst_HRWidget::timer_runs_whilePointerIsAway()
{
    QFETCH(QPoint, pointer);
    QFETCH(bool, runs);
    Fixture f;
    QCursor::setPos(pointer);
    f.show();
    QCOMPARE(f.timer()->isActive(), runs);

    // The other way round, and back again.
    f.popup->checkMousePosition(runs ? showPosition : farAway);
    QCOMPARE(f.timer()->isActive(), !runs);
    f.popup->checkMousePosition(pointer);
    QCOMPARE(f.timer()->isActive(), runs);
    f.popup->checkMousePosition(pointer);
    QCOMPARE(f.timer()->isActive(), runs);
}

void tst_HRWidget::timer_stops_whenPointerIsOverReference()
{
    Fixture f;
    f.reference.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.reference));
    f.show();
    QVERIFY(f.timer()->isActive());
    const QPoint over = f.reference.mapToGlobal(f.reference.rect().center());
    QVERIFY(f.popup->isSafe(over));
    // No event tells of this move: the popup looks for itself.
    QCursor::setPos(over);
    QTRY_VERIFY(!f.timer()->isActive());
}

void tst_HRWidget::timer_doesNotRun_data()
{
    QTest::addColumn<QVariant>("delay");
    QTest::addColumn<bool>("stayOpen");
    QTest::newRow("stays open") << QVariant(1000) << true;
    QTest::newRow("no delay") << QVariant(0) << false;
    QTest::newRow("negative delay") << QVariant(-1.5) << false;
    QTest::newRow("not a number") << QVariant(qQNaN()) << false;
}

void tst_HRWidget::timer_doesNotRun()
{
    QFETCH(QVariant, delay);
    QFETCH(bool, stayOpen);
    Fixture f;
    f.show();
    QVERIFY(f.timer()->isActive());
    f.host->context().set(hideDelayKey, delay);
    f.popup->view()->setStayOpen(stayOpen);
    f.popup->setTimer();
    QVERIFY(!f.timer()->isActive());
}

void tst_HRWidget::timer_followsStayOpen()
{
    Fixture f;
    f.show();
    QVERIFY(f.timer()->isActive());
    f.popup->view()->setStayOpen(true);
    QVERIFY(!f.timer()->isActive());
    f.popup->view()->setStayOpen(false);
    QVERIFY(f.timer()->isActive());

    f.popup->hide();
    f.popup->view()->setStayOpen(false);
    QVERIFY(!f.timer()->isActive());
}

void tst_HRWidget::timer_hidesPopup()
{
    Fixture f({ { hideDelayKey, 80.9 } });
    f.show();
    QCOMPARE(f.timer()->interval(), 80);
    QTRY_VERIFY(!f.popup->isVisible());
}

void tst_HRWidget::isSafe_countsMargin_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("safe");
    QTest::newRow("20 outside") << QPoint(-20, -20) << true;
    QTest::newRow("21 left") << QPoint(-21, 0) << false;
    QTest::newRow("21 above") << QPoint(0, -21) << false;
}

void tst_HRWidget::isSafe_countsMargin()
{
    QFETCH(QPoint, offset);
    Fixture f;
    f.show();
    QTEST(f.popup->isSafe(f.popup->mapToGlobal(offset)), "safe");
}

void tst_HRWidget::isSafe_isFalse_withoutReference()
{
    const HRWidget popup(nullptr, nullptr, nullptr);
    // Neither there is a widget here.
    QVERIFY(!QApplication::widgetAt(farAway));
    QVERIFY(!popup.isSafe(farAway));
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
    Fixture f;
    f.show("pen", QPoint(-50, 100));
    QCOMPARE(f.popup->frameGeometry().left(), 0);
    f.popup->move(100, -30);
    f.popup->reposition();
    QCOMPARE(f.popup->pos(), QPoint(100, 0));
}

void tst_HRWidget::detach_makesWindowOfItsOwn()
{
    Fixture f;
    HRXmlElement *content = f.show();
    content->setProperty("title", "Dynamic");
    const QPointer<HRWidget> pinned = f.popup;

    pinned->view()->setReserved(true);

    QVERIFY(f.host->manager()->widget() != pinned);
    QVERIFY(pinned->isVisible());
    QCOMPARE(pinned->parentWidget(), &f.reference);
    const Qt::WindowFlags flags
        = Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint;
    QCOMPARE(pinned->windowFlags() & ~Qt::WindowSystemMenuHint, flags);
    QVERIFY(pinned->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(pinned->windowTitle(), QString("Dynamic"));
    QCOMPARE(pinned->pos(), showPosition);
    QVERIFY(!(pinned->view()->flags() & Qt::WindowDoesNotAcceptFocus));
}

void tst_HRWidget::detach_fillsWindowOfHost_data()
{
    QTest::addColumn<bool>("hasLayout");
    QTest::newRow("with a layout") << true;
    QTest::newRow("without a layout") << false;
}

void tst_HRWidget::detach_fillsWindowOfHost()
{
    QFETCH(bool, hasLayout);
    Fixture f;
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

void tst_HRWidget::detach_doesNothing_withoutConsent()
{
    Fixture f;
    f.show();
    HRWidget other(f.host->manager(), nullptr, nullptr);
    other.setView(new HRView(f.host->manager(), nullptr));
    other.view()->setReserved(true);
    QVERIFY(f.host->windowRequests.isEmpty());
    QVERIFY(!other.isVisible());
    QCOMPARE(other.windowType(), Qt::ToolTip);
}

void tst_HRWidget::detachedPopup_neverHidesByItself()
{
    Fixture f({ { hideDelayKey, shortTime } });
    f.show();
    f.popup->view()->setReserved(true);
    QVERIFY(!f.timer()->isActive());
    f.popup->setTimer();
    f.popup->checkMousePosition(farAway);
    QVERIFY(!f.timer()->isActive());
    f.popup->hideAnimated();
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidget::detachedPopup_deletesItself_whenClosed()
{
    Fixture f;
    const QPointer<HRXmlElement> content = f.show();
    f.popup->view()->setReserved(true);
    f.popup->close();
    QTRY_VERIFY(!f.popup);
    QVERIFY(!content);
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
    Fixture f;
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
