// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"
#include "x11/QuickToolTips.h"
#include "x11/RealInput.h"

#include <QPointer>
#include <QPushButton>

#include <algorithm>

using namespace Hintreels;

namespace {

constexpr int lastPicture = 57;
constexpr int picturesPerSecond = 10;
constexpr int longTime = 20000; // ms: other programs may keep the processor busy
constexpr int hideDelay = 300; // ms
const QPoint farAway(1200, 750);

/// A host whose button has a hint with a clip of 5.8 s, each picture in a colour of its own.
struct ClipHost : StandardUiFixture
{
    explicit ClipHost(const QByteArray &blocks = "<video source=\"clip.mp4\"/>")
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\">" + blocks + "</hintreel>")
    {
        TestClip recording;
        recording.size = QSize(320, 180);
        recording.pictures = lastPicture + 1;
        recording.rate = picturesPerSecond;
        recording.fileOptions = "movflags=faststart";
        clip = recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
        context.set(applicationFilterKey, true);
        button.setObjectName("key");
        button.setGeometry(20, 20, 100, 30);
        window.setGeometry(100, 100, 300, 200);
    }

    /// Rests the pointer on the button until its hint is there.
    bool hover()
    {
        if (!host)
            start();
        window.show();
        if (!QTest::qWaitForWindowActive(&window, longTime))
            return false;
        RealInput::movePointer(button.mapToGlobal(QPoint(5, 5)));
        RealInput::movePointer(button.mapToGlobal(QPoint(10, 10)));
        return QTest::qWaitFor(
            [this] {
                popup = host->manager()->widget();
                return popup && popup->isVisible();
            },
            longTime);
    }

    /// The same, until the clip plays.
    bool hoverAndPlay()
    {
        return hover() && QTest::qWaitFor([this] { return isMoving(); }, longTime);
    }

    bool isMoving() const { return picture() > 2 && picture() < lastPicture; }

    /// Whether the picture stays the same for some periods.
    bool standsStill() const
    {
        const int seen = picture();
        constexpr int somePeriods = 5 * 1000 / picturesPerSecond;
        return !QTest::qWaitFor([&] { return picture() != seen; }, somePeriods);
    }

    /// A point of an item on the screen, as fractions of its size.
    QPoint pointOf(const QString &name, qreal x, qreal y) const
    {
        const QQuickItem *target = item(name);
        const QPointF point(x * target->width(), y * target->height());
        return popup->mapToGlobal(target->mapToScene(point).toPoint());
    }

    QImage screenshot(const QString &name) const
    {
        const QRect area(pointOf(name, 0, 0), pointOf(name, 1, 1));
        return RealInput::screenshot().copy(area);
    }

    /// Number of the picture that the screen shows, seen beside button and line; -1 before the clip
    /// is made, which happens when it comes into sight.
    int picture() const
    {
        if (!hasItem("clip"))
            return -1;
        const QRect area(pointOf("clip", 0.25, 0.25), QSize(8, 8));
        return TestClip::numberOf(RealInput::screenshot().copy(area));
    }

    QString buttonName() const { return item("clipButton")->property("name").toString(); }

    QString clip; ///< path of the file
    QWidget window;
    QPushButton button{ "draw", &window };
};

/// Whether an image has a pixel as white as letters on a clip are; no picture is as bright.
bool hasLetters(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) > 245)
                return true;
        }
    }
    return false;
}

} // namespace

class tst_x11_clip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void clip_playsToItsLastPicture();
    void clip_waitsAtItsFirstPicture_whenMotionIsReduced();
    void clip_waitsAtItsFirstPicture_whenItFlashes();
    void press_pausesAndGoesOn_data();
    void press_pausesAndGoesOn();
    void line_leadsToItsPicture_whenPressedAndDragged();
    void button_playsAgain_afterTheEnd();
    void clip_rests_whileItsPopupIsHidden();
    void caption_comesWithItsPicture();
    void clip_leavesNoHole_whenItCannotBePlayed_data();
    void clip_leavesNoHole_whenItCannotBePlayed();
};

void tst_x11_clip::initTestCase()
{
    QApplication::setStyle(new QuickToolTips);
}

void tst_x11_clip::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_clip::clip_playsToItsLastPicture()
{
    ClipHost host;
    QVERIFY(host.hoverAndPlay());

    const int seen = host.picture();
    QTRY_VERIFY_WITH_TIMEOUT(host.picture() > seen + 2, longTime);
    QTRY_COMPARE_WITH_TIMEOUT(host.picture(), lastPicture, longTime);
    QVERIFY(host.standsStill());
}

void tst_x11_clip::clip_waitsAtItsFirstPicture_whenMotionIsReduced()
{
    ClipHost host;
    host.context.set(reducedMotionKey, true);
    QVERIFY(host.hover());
    QTRY_COMPARE_WITH_TIMEOUT(host.picture(), 0, longTime);
    QVERIFY(host.standsStill());

    RealInput::click(host.pointOf("clipButton", 0.5, 0.5));
    QTRY_VERIFY_WITH_TIMEOUT(host.isMoving(), longTime);
}

void tst_x11_clip::clip_waitsAtItsFirstPicture_whenItFlashes()
{
    ClipHost host;
    TestClip blinking;
    blinking.size = QSize(320, 180);
    blinking.pictures = lastPicture + 1;
    blinking.rate = picturesPerSecond;
    blinking.write(host.clip, &TestClip::blinking);
    QVERIFY(host.hover());
    QTRY_VERIFY_WITH_TIMEOUT(host.hasItem("clip"), longTime);
    QTRY_VERIFY_WITH_TIMEOUT(host.item("flashing")->isVisible(), longTime);
    QTRY_COMPARE_WITH_TIMEOUT(host.item("clip")->property("time").toReal(), 0.0, longTime);
    QTRY_VERIFY_WITH_TIMEOUT(host.picture() < 0 && host.standsStill(), longTime); // black

    RealInput::click(host.pointOf("clipButton", 0.5, 0.5));
    QTRY_VERIFY_WITH_TIMEOUT(host.item("clip")->property("time").toReal() > 1.0, longTime);
}

void tst_x11_clip::press_pausesAndGoesOn_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QPointF>("point");
    QTest::newRow("picture") << "clip" << QPointF(0.5, 0.3);
    QTest::newRow("button") << "clipButton" << QPointF(0.5, 0.5);
}

void tst_x11_clip::press_pausesAndGoesOn()
{
    QFETCH(QString, target);
    QFETCH(QPointF, point);
    ClipHost host;
    QVERIFY(host.hoverAndPlay());

    RealInput::click(host.pointOf(target, point.x(), point.y()));
    QTRY_COMPARE_WITH_TIMEOUT(host.buttonName(), QString("Play"), longTime);
    QTRY_VERIFY_WITH_TIMEOUT(host.standsStill(), longTime); // once a picture on its way is there
    const int paused = host.picture();
    QVERIFY(paused < lastPicture);

    RealInput::click(host.pointOf(target, point.x(), point.y()));
    QTRY_COMPARE_WITH_TIMEOUT(host.buttonName(), QString("Pause"), longTime);
    QTRY_VERIFY_WITH_TIMEOUT(host.picture() > paused + 2, longTime);
}

void tst_x11_clip::line_leadsToItsPicture_whenPressedAndDragged()
{
    ClipHost host;
    QVERIFY(host.hoverAndPlay());
    RealInput::click(host.pointOf("clip", 0.5, 0.3));
    QTRY_COMPARE_WITH_TIMEOUT(host.buttonName(), QString("Play"), longTime);

    RealInput::movePointer(host.pointOf("progressLine", 0.5, 0.5));
    RealInput::press();
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(host.picture() - lastPicture / 2) <= 2, longTime);
    for (const qreal fraction : { 0.75, 0.2 }) {
        RealInput::movePointer(host.pointOf("progressLine", fraction, 0.5));
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(host.picture() - lastPicture * fraction) <= 2, longTime);
    }
    RealInput::release();

    QVERIFY(host.standsStill());
    RealInput::click(host.pointOf("clipButton", 0.5, 0.5));
    QTRY_VERIFY_WITH_TIMEOUT(host.picture() > lastPicture * 0.2 + 5, longTime);
}

void tst_x11_clip::button_playsAgain_afterTheEnd()
{
    ClipHost host;
    QVERIFY(host.hoverAndPlay());
    RealInput::click(host.pointOf("progressLine", 0.9, 0.5));
    QTRY_COMPARE_WITH_TIMEOUT(host.buttonName(), QString("Play again"), longTime);
    QTRY_COMPARE_WITH_TIMEOUT(host.picture(), lastPicture, longTime);

    RealInput::click(host.pointOf("clipButton", 0.5, 0.5));
    QTRY_VERIFY_WITH_TIMEOUT(host.isMoving(), longTime);
    QTRY_COMPARE_WITH_TIMEOUT(host.buttonName(), QString("Play again"), longTime);
}

void tst_x11_clip::clip_rests_whileItsPopupIsHidden()
{
    ClipHost host;
    host.context.set(hideDelayKey, hideDelay);
    QVERIFY(host.hoverAndPlay());

    RealInput::movePointer(farAway);
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup->isVisible(), longTime);
    // A clip goes two seconds after its popup, a third of its time: so far it would have played.
    const QPointer<const QQuickItem> clip = host.item("clip");
    const double atHiding = clip->property("progress").toDouble();
    double last = atHiding;
    const auto goes = [&] {
        last = clip ? clip->property("progress").toDouble() : last;
        return !clip;
    };
    QTRY_VERIFY_WITH_TIMEOUT(goes(), longTime);
    QVERIFY2(last < atHiding + 0.2, qPrintable(QString("%1 to %2").arg(atHiding).arg(last)));

    QVERIFY(host.hoverAndPlay());
}

void tst_x11_clip::caption_comesWithItsPicture()
{
    ClipHost host;
    host.packages.write("Test.hintreels/Resources/clip.vtt",
        "WEBVTT\n\n00:02.000 --> 00:04.000\nLet the button go.\n");
    QVERIFY(host.hoverAndPlay());
    RealInput::click(host.pointOf("clip", 0.5, 0.3));
    QTRY_COMPARE_WITH_TIMEOUT(host.buttonName(), QString("Play"), longTime);

    const QVector<QPair<qreal, bool>> expectations{ { 0.2, false }, { 0.5, true }, { 0.9, false } };
    for (const auto &[fraction, shown] : expectations) {
        RealInput::click(host.pointOf("progressLine", fraction, 0.5));
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(host.picture() - lastPicture * fraction) <= 2, longTime);
        QTRY_COMPARE_WITH_TIMEOUT(host.item("clipCaption")->isVisible(), shown, longTime);
        QTRY_COMPARE_WITH_TIMEOUT(hasLetters(host.screenshot("clipCaption")), shown, longTime);
    }
}

void tst_x11_clip::clip_leavesNoHole_whenItCannotBePlayed_data()
{
    QTest::addColumn<QByteArray>("lastWord");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("half a header") << QByteArray("moov");
    QTest::newRow("header alone") << QByteArray("mdat");
}

void tst_x11_clip::clip_leavesNoHole_whenItCannotBePlayed()
{
    QFETCH(QByteArray, lastWord);
    const QByteArray text = "<text>Draws a line.</text>";
    ClipHost plain(text);
    QVERIFY(plain.hover());
    const QSizeF size = plain.root()->size();
    delete plain.popup;
    RealInput::movePointer(farAway);

    ClipHost host(text + "<video source=\"clip.mp4\"/>");
    QFile clip(host.clip);
    QVERIFY(clip.open(QIODevice::ReadWrite));
    QVERIFY(clip.resize(clip.readAll().indexOf(lastWord) + lastWord.size()));
    QVERIFY(host.hover());
    QTRY_COMPARE_WITH_TIMEOUT(host.root()->size(), size, longTime);
    QTRY_VERIFY_WITH_TIMEOUT(host.popup->height() <= size.height() + 1, longTime);
}

QTEST_MAIN(tst_x11_clip)
#include "tst_x11_clip.moc"
