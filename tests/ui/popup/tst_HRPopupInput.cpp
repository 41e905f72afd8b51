// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPopupInput_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QKeyEvent>
#include <QtTest>

using namespace Hintreels;

namespace {

const QPoint corner(100, 100); // of the popup
const QPoint inside(120, 110);
const QPoint outside(90, 110);

const char *nameOf(QEvent::Type type)
{
    return QMetaEnum::fromType<QEvent::Type>().valueToKey(type);
}

/// Notes what the pointer does in it.
class Scene : public HRView
{
public:
    Scene()
        : HRView(nullptr, nullptr)
    {
    }

    QList<QByteArray> heard;

protected:
    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove: {
            const QPoint position = static_cast<QMouseEvent *>(event)->pos();
            heard.append(QByteArray(nameOf(event->type())) + ' ' + QByteArray::number(position.x())
                + ',' + QByteArray::number(position.y()));
            return true;
        }
        case QEvent::Wheel: {
            const auto *wheel = static_cast<QWheelEvent *>(event);
            const QPoint position = wheel->position().toPoint();
            heard.append("Wheel " + QByteArray::number(position.x()) + ','
                + QByteArray::number(position.y()) + " by "
                + QByteArray::number(wheel->angleDelta().y()));
            return true;
        }
        case QEvent::Leave:
            heard.append("Leave");
            return true;
        default:
            return HRView::event(event);
        }
    }
};

/// A popup beside a window of the host's, in which a menu is open.
struct Fixture
{
    Fixture()
    {
        scene->setPosition(corner);
        popup.setView(scene);
        scene->setPosition(corner);
        popup.setGeometry(QRect(corner, QSize(200, 80)));
    }

    bool pointer(QEvent::Type type, const QPoint &position, Qt::MouseButtons buttons = Qt::NoButton,
        const QObject *watched = nullptr)
    {
        const QMouseEvent event(
            type, position, position, position, Qt::LeftButton, buttons, Qt::NoModifier);
        return input.take(watched ? *watched : host, event);
    }

    bool wheel(const QPoint &position)
    {
        const QWheelEvent event(position, position, QPoint(), QPoint(0, 120), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        return input.take(host, event);
    }

    QWidget host;
    Scene *scene = new Scene;
    HRWidget popup{ nullptr, nullptr, nullptr };
    HRPopupInput input{ popup };
};

} // namespace

class tst_HRPopupInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void events_insideThePopup_areItsOwn_data();
    void events_insideThePopup_areItsOwn();
    void events_beside_areTheHosts_data();
    void events_beside_areTheHosts();
    void wheel_turnsWhatIsUnderIt();
    void press_hasThePointer_untilItsRelease();
    void otherEvents_areTheHosts();
    void view_isToldOnce_thatThePointerLeft();
    void itsOwnEvents_arePassedOver();
    void popupWithoutView_takesNothing();
};

void tst_HRPopupInput::events_insideThePopup_areItsOwn_data()
{
    QTest::addColumn<int>("type");
    for (const QEvent::Type type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
             QEvent::MouseButtonDblClick, QEvent::MouseMove })
        QTest::newRow(nameOf(type)) << int(type);
}

void tst_HRPopupInput::events_insideThePopup_areItsOwn()
{
    QFETCH(int, type);
    Fixture f;
    QVERIFY(f.pointer(QEvent::Type(type), inside));
    QCOMPARE(
        f.scene->heard, QList<QByteArray>{ QByteArray(nameOf(QEvent::Type(type))) + " 20,10" });
}

void tst_HRPopupInput::events_beside_areTheHosts_data()
{
    events_insideThePopup_areItsOwn_data();
}

void tst_HRPopupInput::events_beside_areTheHosts()
{
    QFETCH(int, type);
    Fixture f;
    QVERIFY(!f.pointer(QEvent::Type(type), outside, Qt::LeftButton));
    QVERIFY(!f.pointer(QEvent::Type(type), outside, Qt::LeftButton));
    QVERIFY(f.scene->heard.isEmpty());
}

void tst_HRPopupInput::wheel_turnsWhatIsUnderIt()
{
    Fixture f;
    QVERIFY(!f.wheel(outside));
    QVERIFY(f.scene->heard.isEmpty());
    QVERIFY(f.wheel(inside));
    QCOMPARE(f.scene->heard, QList<QByteArray>{ "Wheel 20,10 by 120" });
}

void tst_HRPopupInput::press_hasThePointer_untilItsRelease()
{
    for (const QEvent::Type press : { QEvent::MouseButtonPress, QEvent::MouseButtonDblClick }) {
        Fixture f;
        QVERIFY(f.pointer(press, inside, Qt::LeftButton));
        QVERIFY(f.pointer(QEvent::MouseMove, outside, Qt::LeftButton));
        QVERIFY(f.pointer(QEvent::MouseButtonRelease, outside));
        QVERIFY(!f.pointer(QEvent::MouseMove, outside));
        QCOMPARE(f.scene->heard,
            QList<QByteArray>({ QByteArray(nameOf(press)) + " 20,10", "MouseMove -10,10",
                "MouseButtonRelease -10,10", "Leave" }));
    }
}

void tst_HRPopupInput::otherEvents_areTheHosts()
{
    Fixture f;
    const QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QVERIFY(!f.input.take(f.host, key));
    QVERIFY(f.scene->heard.isEmpty());
}

void tst_HRPopupInput::view_isToldOnce_thatThePointerLeft()
{
    Fixture f;
    f.pointer(QEvent::MouseMove, inside);
    f.pointer(QEvent::MouseMove, outside);
    f.pointer(QEvent::MouseMove, outside);
    QCOMPARE(f.scene->heard, QList<QByteArray>({ "MouseMove 20,10", "Leave" }));
}

// What is handed on comes by once more.
void tst_HRPopupInput::itsOwnEvents_arePassedOver()
{
    Fixture f;
    const QWidget child(&f.popup);
    for (const QObject *own : { static_cast<const QObject *>(f.scene),
             static_cast<const QObject *>(&f.popup), static_cast<const QObject *>(&child) })
        QVERIFY(!f.pointer(QEvent::MouseMove, inside, Qt::NoButton, own));
    QVERIFY(f.scene->heard.isEmpty());
}

void tst_HRPopupInput::popupWithoutView_takesNothing()
{
    Fixture f;
    f.popup.setView(nullptr);
    QVERIFY(!f.pointer(QEvent::MouseMove, inside));
}

QTEST_MAIN(tst_HRPopupInput)
#include "tst_HRPopupInput.moc"
