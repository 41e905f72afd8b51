// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRHoverFilter_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

// Neither over a widget nor near the popup.
const QPoint farAway(700, 700);

/// A filter with a popup that shows, and the tool tips that it asks for.
struct Fixture
{
    Fixture()
    {
        popup->setView(new HRView(nullptr, nullptr));
        popup->setGeometry(100, 100, 200, 100);
        popup->show();
    }

    bool send(QEvent::Type type, const QPoint &globalPos = farAway)
    {
        QMouseEvent event(type, QPointF(1, 1), globalPos, Qt::LeftButton, Qt::LeftButton, {});
        return filter.filter(&beside, event);
    }
    bool isTimeRunning() const { return popup->findChild<QTimer *>()->isActive(); }

    std::unique_ptr<HRWidget> popup = std::make_unique<HRWidget>(nullptr, nullptr, nullptr);
    QWidget beside;
    QVector<QPair<QObject *, QPoint>> asked;
    bool answer = false;
    HRHoverFilter filter{ [this] { return popup.get(); },
        [this](QObject *object, const QPoint &position) {
            asked.append({ object, position });
            return answer;
        } };
};

} // namespace

class tst_HRHoverFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCursor::setPos(farAway); }
    void filter_asksForToolTip_andPassesTheAnswerOn_data();
    void filter_asksForToolTip_andPassesTheAnswerOn();
    void filter_hidesPopup_data();
    void filter_hidesPopup();
    void filter_doesNothing_withoutPopup();
    void followPointer_tellsThePopup();
    void followPointer_leavesHiddenPopup();
    void followButton_hides_outsideOnly_data();
    void followButton_hides_outsideOnly();
    void followButton_keepsPopupThatStaysOpen();
};

void tst_HRHoverFilter::filter_asksForToolTip_andPassesTheAnswerOn_data()
{
    QTest::addColumn<bool>("answer");
    QTest::newRow("shown") << true;
    QTest::newRow("not shown") << false;
}

void tst_HRHoverFilter::filter_asksForToolTip_andPassesTheAnswerOn()
{
    QFETCH(bool, answer);
    Fixture f;
    f.answer = answer;
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(30, 40));
    QCOMPARE(f.filter.filter(&f.beside, event), answer);
    const QVector<QPair<QObject *, QPoint>> expected{ { &f.beside, QPoint(30, 40) } };
    QCOMPARE(f.asked, expected);
    QVERIFY(f.popup->isVisible());
}

void tst_HRHoverFilter::filter_hidesPopup_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hides");
    QTest::newRow("press") << int(QEvent::MouseButtonPress) << true;
    QTest::newRow("release") << int(QEvent::MouseButtonRelease) << true;
    QTest::newRow("deactivation") << int(QEvent::ApplicationDeactivate) << true;
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick) << false;
    QTest::newRow("move") << int(QEvent::MouseMove) << false;
    QTest::newRow("activation") << int(QEvent::ApplicationActivate) << false;
}

void tst_HRHoverFilter::filter_hidesPopup()
{
    QFETCH(int, type);
    QFETCH(bool, hides);
    Fixture f;
    QVERIFY(!f.send(QEvent::Type(type)));
    QCOMPARE(f.popup->isVisible(), !hides);
    QVERIFY(f.asked.isEmpty());
}

void tst_HRHoverFilter::filter_doesNothing_withoutPopup()
{
    Fixture f;
    f.popup.reset();
    for (const QEvent::Type type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
             QEvent::ApplicationDeactivate, QEvent::MouseMove })
        QVERIFY(!f.send(type));
}

void tst_HRHoverFilter::followPointer_tellsThePopup()
{
    Fixture f;
    QVERIFY(f.isTimeRunning());
    f.send(QEvent::MouseMove, f.popup->geometry().center());
    QVERIFY(!f.isTimeRunning());
    f.send(QEvent::MouseMove, farAway);
    QVERIFY(f.isTimeRunning());
}

void tst_HRHoverFilter::followPointer_leavesHiddenPopup()
{
    Fixture f;
    f.popup->hide();
    f.filter.followPointer(farAway);
    QVERIFY(!f.isTimeRunning());
}

void tst_HRHoverFilter::followButton_hides_outsideOnly_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("hides");
    QTest::newRow("nothing") << "nothing" << false;
    QTest::newRow("no widget") << "object" << false;
    QTest::newRow("the popup") << "popup" << false;
    QTest::newRow("inside of it") << "child" << false;
    QTest::newRow("beside it") << "beside" << true;
}

void tst_HRHoverFilter::followButton_hides_outsideOnly()
{
    QFETCH(QString, target);
    QFETCH(bool, hides);
    Fixture f;
    const QObject object;
    const QWidget child(f.popup.get());
    const QMap<QString, const QObject *> targets{ { "nothing", nullptr }, { "object", &object },
        { "popup", f.popup.get() }, { "child", &child }, { "beside", &f.beside } };
    f.filter.followButton(targets.value(target));
    QCOMPARE(f.popup->isVisible(), !hides);
}

void tst_HRHoverFilter::followButton_keepsPopupThatStaysOpen()
{
    Fixture f;
    f.popup->view()->setStayOpen(true);
    f.filter.followButton(&f.beside);
    QVERIFY(f.popup->isVisible());
    f.popup->setView(nullptr);
    f.filter.followButton(&f.beside);
    QVERIFY(!f.popup->isVisible());
}

QTEST_MAIN(tst_HRHoverFilter)
#include "tst_HRHoverFilter.moc"
