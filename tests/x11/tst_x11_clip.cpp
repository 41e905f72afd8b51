// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"
#include "x11/RealInput.h"

#include <QPushButton>

using namespace Hintreels;

namespace {

constexpr int lastPicture = 57;

/// A host whose button has a hint with a clip of 5.8 s, each picture in a colour of its own.
struct ClipHost : StandardUiFixture
{
    ClipHost()
        : StandardUiFixture(
            "<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.mp4\"/></hintreel>")
    {
        TestClip recording;
        recording.size = QSize(320, 180);
        recording.pictures = lastPicture + 1;
        recording.rate = 10;
        recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
        context.set(applicationFilterKey, true);
        start();
        button.setObjectName("key");
        button.setGeometry(20, 20, 100, 30);
        window.setGeometry(100, 100, 300, 200);
    }

    /// Rests the pointer on the button until its hint is there and the clip has begun.
    bool hover()
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        RealInput::movePointer(button.mapToGlobal(QPoint(5, 5)));
        QTest::qWait(50);
        RealInput::movePointer(button.mapToGlobal(QPoint(10, 10)));
        return QTest::qWaitFor([this] {
            popup = host->manager()->widget();
            return popup && popup->isVisible() && picture() > 2 && picture() < lastPicture / 2;
        });
    }

    /// A point of an item on the screen, as fractions of its size.
    QPoint pointOf(const QString &name, qreal x, qreal y) const
    {
        const QQuickItem *target = item(name);
        const QPointF point(x * target->width(), y * target->height());
        return popup->mapToGlobal(target->mapToScene(point).toPoint());
    }

    /// Number of the picture that the screen shows, seen beside button and line.
    int picture() const
    {
        const QRect area(pointOf("clip", 0.25, 0.25), QSize(8, 8));
        return TestClip::numberOf(RealInput::screenshot().copy(area));
    }

    QString buttonName() const { return item("clipButton")->property("name").toString(); }

    QWidget window;
    QPushButton button{ "draw", &window };
};

} // namespace

class tst_x11_clip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clip_playsOnTheScreen();
    void click_pausesAndGoesOn();
    void line_leadsToItsPicture_whenPressedAndDragged();
    void button_playsAgain_afterTheEnd();
};

void tst_x11_clip::clip_playsOnTheScreen()
{
    ClipHost host;
    QVERIFY(host.hover());

    const int seen = host.picture();
    QTRY_VERIFY(host.picture() > seen + 2);
    QTRY_VERIFY_WITH_TIMEOUT(host.picture() == lastPicture, 10000);
}

void tst_x11_clip::click_pausesAndGoesOn()
{
    ClipHost host;
    QVERIFY(host.hover());

    RealInput::click(host.pointOf("clip", 0.5, 0.3));
    QTRY_COMPARE(host.buttonName(), QString("Play"));
    QTest::qWait(200); // for a picture on its way
    const int paused = host.picture();
    QTest::qWait(500);
    QCOMPARE(host.picture(), paused);

    RealInput::click(host.pointOf("clipButton", 0.5, 0.5));
    QTRY_VERIFY(host.picture() > paused + 2);
}

void tst_x11_clip::line_leadsToItsPicture_whenPressedAndDragged()
{
    ClipHost host;
    QVERIFY(host.hover());
    RealInput::click(host.pointOf("clip", 0.5, 0.3));
    QTRY_COMPARE(host.buttonName(), QString("Play"));

    RealInput::click(host.pointOf("progressLine", 0.5, 0.5));
    QTRY_VERIFY(qAbs(host.picture() - lastPicture / 2) <= 1);

    RealInput::movePointer(host.pointOf("progressLine", 0.5, 0.5));
    RealInput::press();
    RealInput::movePointer(host.pointOf("progressLine", 0.75, 0.5));
    QTRY_VERIFY(qAbs(host.picture() - lastPicture * 3 / 4) <= 2);
    RealInput::release();
}

void tst_x11_clip::button_playsAgain_afterTheEnd()
{
    ClipHost host;
    QVERIFY(host.hover());

    RealInput::click(host.pointOf("progressLine", 0.9, 0.5));
    QTRY_COMPARE(host.buttonName(), QString("Play again"));
    QTRY_COMPARE(host.picture(), lastPicture);

    RealInput::click(host.pointOf("clipButton", 0.5, 0.5));
    QTRY_VERIFY(host.picture() < 20);
    QTRY_VERIFY(host.picture() > 22);
}

QTEST_MAIN(tst_x11_clip)
#include "tst_x11_clip.moc"
