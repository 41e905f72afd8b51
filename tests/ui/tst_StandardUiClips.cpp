// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/ClipThreads.h"
#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"

#include <QAccessible>
#include <QQuickPaintedItem>

using namespace Hintreels;

namespace {

/// A hint whose only block is a clip, in the fixture's package.
struct ClipFixture : StandardUiFixture
{
    explicit ClipFixture(const QByteArray &attributes = {}, const TestClip &recording = TestClip())
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.mp4\" "
            + attributes + "/></hintreel>")
    {
        recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
    }

    /// Waits for the clip to be measured, which on a busy machine is not done at once.
    void show()
    {
        StandardUiFixture::show();
        QTRY_VERIFY(hasItem("clip"));
        sizeAtOnce = root()->size();
    }

    QQuickItem *clip() const { return item("clip"); }
    QQuickPaintedItem *painted() const { return clip()->findChild<QQuickPaintedItem *>(); }
    bool wanted() const { return clip()->property("wanted").toBool(); }
    bool isDecoded() const { return painted()->property("decoded").toBool(); }
    bool ended() const { return clip()->property("ended").toBool(); }
    qreal time() const { return clip()->property("time").toReal(); }
    /// Number of the picture on show, in a clip of 30 pictures a second.
    int picture() const { return qRound(30 * time()); }
    qreal progress() const { return clip()->property("progress").toReal(); }
    QString buttonName() const { return item("clipButton")->property("name").toString(); }
};

/// A clip below a text that fills more than the popup.
struct FarClipFixture : StandardUiFixture
{
    explicit FarClipFixture(const TestClip &recording)
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\"><text>"
            + QByteArray("A paragraph among many.\n\n").repeated(100)
            + "</text><video source=\"clip.mp4\"/></hintreel>")
    {
        recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
    }

    /// Waits for the clip to have its place.
    void show()
    {
        StandardUiFixture::show();
        QTRY_VERIFY(item("blocks")->childItems()[1]->height() > 40);
        paint();
    }

    QQuickItem *page() const { return item("page"); }
    qreal lowest() const { return page()->property("contentHeight").toReal() - page()->height(); }
    void scrollTo(qreal y)
    {
        page()->setProperty("contentY", y);
        paint();
    }
    qreal time() const { return item("clip")->property("time").toReal(); }
};

const QByteArray gifWithoutAPicture
    = QByteArray::fromHex("47494638396101000100800000000000ffffff2c0000000001000100000f024401003b");

TestClip longClip()
{
    TestClip clip;
    clip.pictures = 58;
    clip.rate = 10;
    return clip;
}

/// Shows another clip and waits until it has played for a while: what still moves has moved by
/// then.
void letAnotherClipPlay()
{
    ClipFixture other({}, longClip());
    other.show();
    QTRY_VERIFY(other.time() > 0.3);
}

} // namespace

class tst_StandardUiClips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void video_playsOnceThrough_thenOffersReplay();
    void video_playsAgain_whenItLoops();
    void video_pausesAndGoesOn_whenClicked();
    void video_goesWhereItsLineIsPressed();
    void video_waitsForTheReader_whenMotionIsReduced();
    void video_rests_whenThePopupIsHidden();
    void video_isTakenDown_whenThePopupStaysHidden();
    void video_isPaintedNoLargerThanShown_data();
    void video_isPaintedNoLargerThanShown();
    void video_isMade_whenItComesIntoSight();
    void video_playsWhileItIsInSight();
    void video_staysPaused_whenItComesBackIntoSight();
    void video_hasAButtonThatLeavesItInSight_data();
    void video_hasAButtonThatLeavesItInSight();
    void video_goes_whenItHasNoPicture();
    void video_keepsItsAspect_whenItIsWide();
    void video_showsTheCaptionOfItsPicture();
    void video_keepsToTheTimesOfItsFile();
    void video_isReachedByKeyboard_whenDetached();
    void video_isReachedByScreenReaders_whilePlaying();
};

void tst_StandardUiClips::video_playsOnceThrough_thenOffersReplay()
{
    ClipFixture fixture;
    fixture.show();
    QCOMPARE(fixture.buttonName(), QString("Pause"));

    QTRY_VERIFY(fixture.ended());
    QTRY_COMPARE(fixture.picture(), 7);
    QCOMPARE(fixture.buttonName(), QString("Play again"));

    fixture.click(fixture.item("clipButton"));
    QCOMPARE(fixture.buttonName(), QString("Pause"));
    QTRY_VERIFY(fixture.time() < 0.1);
    QTRY_VERIFY(fixture.ended());
    QCOMPARE(fixture.troubles(), QStringList());
}

void tst_StandardUiClips::video_playsAgain_whenItLoops()
{
    ClipFixture fixture("loop=\"true\"");
    fixture.show();

    for (int round = 0; round < 2; ++round) {
        QTRY_VERIFY(fixture.time() > 0.15);
        QTRY_VERIFY(fixture.time() < 0.1);
    }
    QVERIFY(!fixture.ended());
}

void tst_StandardUiClips::video_pausesAndGoesOn_whenClicked()
{
    ClipFixture fixture({}, longClip());
    fixture.show();
    QTRY_VERIFY(fixture.time() > 0.2);

    fixture.click(fixture.clip());
    QCOMPARE(fixture.buttonName(), QString("Play"));
    letAnotherClipPlay(); // a picture may be on its way
    const qreal pausedAt = fixture.time();
    letAnotherClipPlay();
    QCOMPARE(fixture.time(), pausedAt);

    fixture.click(fixture.item("clipButton"));
    QTRY_VERIFY(fixture.time() > pausedAt + 0.2);
}

void tst_StandardUiClips::video_goesWhereItsLineIsPressed()
{
    ClipFixture fixture({}, longClip());
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    QTRY_VERIFY(fixture.isDecoded());

    fixture.click(fixture.item("progressLine"));
    QTRY_VERIFY(qAbs(fixture.progress() - 0.5) < 0.05);
    QTRY_VERIFY(qAbs(fixture.time() - 2.9) < 0.2);
    QVERIFY(!fixture.wanted());
}

void tst_StandardUiClips::video_waitsForTheReader_whenMotionIsReduced()
{
    ClipFixture fixture("loop=\"true\"");
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    letAnotherClipPlay();
    QCOMPARE(fixture.time(), 0.0);
    QCOMPARE(fixture.buttonName(), QString("Play"));

    fixture.click(fixture.clip());

    QTRY_VERIFY(fixture.ended());
    QTRY_COMPARE(fixture.picture(), 7);
}

void tst_StandardUiClips::video_rests_whenThePopupIsHidden()
{
    ClipFixture fixture({}, longClip());
    fixture.show();
    QTRY_VERIFY(fixture.time() > 0.1);

    fixture.popup->hide();
    letAnotherClipPlay(); // a picture may be on its way
    const qreal restingAt = fixture.progress();
    letAnotherClipPlay();

    QCOMPARE(fixture.progress(), restingAt);
}

void tst_StandardUiClips::video_isTakenDown_whenThePopupStaysHidden()
{
    ClipFixture fixture({}, longClip());
    fixture.show();
    const QPointer<QQuickItem> first = fixture.clip();
    QTRY_VERIFY(fixture.time() > 0.1);
    QVERIFY(!clipThreads().isEmpty());

    fixture.popup->hide();
    QCoreApplication::processEvents();
    fixture.popup->show();
    fixture.paint();
    QVERIFY(first); // the reader is back in a moment

    fixture.popup->hide();
    QTRY_VERIFY(!first);
    QTRY_COMPARE(clipThreads(), QStringList());
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);

    fixture.popup->show();
    QTRY_VERIFY(fixture.hasItem("clip"));
    QTRY_VERIFY(fixture.time() > 0.1);
    QCOMPARE(fixture.troubles(), QStringList());
}

void tst_StandardUiClips::video_isPaintedNoLargerThanShown_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("larger than the popup") << QSize(1280, 720);
    QTest::newRow("smaller") << QSize(64, 48);
}

// A hidden window keeps what was painted in it.
void tst_StandardUiClips::video_isPaintedNoLargerThanShown()
{
    QFETCH(QSize, size);
    TestClip recording;
    recording.size = size;

    ClipFixture fixture({}, recording);
    fixture.show();

    QTRY_VERIFY(fixture.painted());
    const QSize shown = fixture.clip()->size().toSize();
    QTRY_COMPARE(fixture.painted()->textureSize(), shown.boundedTo(size));
}

void tst_StandardUiClips::video_isMade_whenItComesIntoSight()
{
    FarClipFixture fixture{ TestClip() };
    fixture.show();
    QVERIFY(!fixture.hasItem("clip"));

    fixture.scrollTo(fixture.lowest());
    QTRY_VERIFY(fixture.hasItem("clip"));
    QTRY_VERIFY(fixture.item("clip")->property("shown").toBool());

    const QPointer<QQuickItem> clip = fixture.item("clip");
    fixture.scrollTo(0);
    QVERIFY(clip);
}

void tst_StandardUiClips::video_playsWhileItIsInSight()
{
    FarClipFixture fixture(longClip());
    fixture.show();

    fixture.scrollTo(fixture.lowest() - fixture.item("blocks")->childItems()[1]->height());
    QTRY_VERIFY(fixture.hasItem("clip")); // of which the upper edge is in sight
    QTRY_VERIFY(fixture.item("clip")->property("shown").toBool());
    letAnotherClipPlay();
    QCOMPARE(fixture.time(), 0.0);

    fixture.scrollTo(fixture.lowest());
    QTRY_VERIFY(fixture.time() > 0.1);

    fixture.scrollTo(0);
    letAnotherClipPlay(); // a picture may be on its way
    const qreal restingAt = fixture.time();
    letAnotherClipPlay();
    QCOMPARE(fixture.time(), restingAt);

    fixture.scrollTo(fixture.lowest());
    QTRY_VERIFY(fixture.time() > restingAt);
    QCOMPARE(fixture.troubles(), QStringList());
}

void tst_StandardUiClips::video_staysPaused_whenItComesBackIntoSight()
{
    FarClipFixture fixture(longClip());
    fixture.show();
    fixture.scrollTo(fixture.lowest());
    QTRY_VERIFY(fixture.hasItem("clip"));
    QTRY_VERIFY(fixture.time() > 0.1);
    fixture.click(fixture.item("clip"));
    letAnotherClipPlay(); // a picture may be on its way
    const qreal pausedAt = fixture.time();

    fixture.scrollTo(0);
    fixture.scrollTo(fixture.lowest());
    letAnotherClipPlay();

    QCOMPARE(fixture.time(), pausedAt);
    QCOMPARE(fixture.item("clipButton")->property("name").toString(), QString("Play"));
}

void tst_StandardUiClips::video_hasAButtonThatLeavesItInSight_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("inTheMiddle");

    QTest::newRow("large clip") << QSize(320, 180) << true;
    QTest::newRow("small clip") << QSize(100, 88) << false;
    QTest::newRow("tiny clip") << QSize(32, 32) << false;
    QTest::newRow("low clip") << QSize(320, 60) << false;
}

void tst_StandardUiClips::video_hasAButtonThatLeavesItInSight()
{
    QFETCH(QSize, size);
    QFETCH(bool, inTheMiddle);
    TestClip recording;
    recording.size = size;
    recording.pictures = 2;
    ClipFixture fixture({}, recording);
    fixture.show();
    QTRY_VERIFY(fixture.ended());

    const QQuickItem *button = fixture.item("clipButton");
    const QRectF whole(QPointF(), fixture.clip()->size());
    const QRectF place(button->position(), button->size());
    QVERIFY(whole.contains(place));
    QCOMPARE(place.contains(whole.center()), inTheMiddle);
    QVERIFY(place.width() * place.height() < whole.width() * whole.height() / 8);
}

/// A header may promise pictures that never come.
void tst_StandardUiClips::video_goes_whenItHasNoPicture()
{
    StandardUiFixture fixture("<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.gif\">"
                              "Caption</video><text>Text</text></hintreel>"
                              "<hintreel key=\"plain\" title=\"Pen\"><text>Text</text></hintreel>");
    fixture.packages.write("Test.hintreels/Resources/clip.gif", gifWithoutAPicture);
    fixture.show("plain");
    const int height = fixture.view()->height();
    fixture.show();
    QStringList told;
    QTRY_VERIFY((told += fixture.guard.takeMessages()).join(' ').contains("Could not decode any"));

    QTRY_COMPARE(fixture.view()->height(), height);
    QVERIFY(!fixture.hasItem("clip"));
}

void tst_StandardUiClips::video_keepsItsAspect_whenItIsWide()
{
    TestClip wide;
    wide.size = QSize(1200, 300);
    wide.pictures = 2;
    ClipFixture fixture({}, wide);
    fixture.show();

    const QQuickItem *clip = fixture.clip();
    QVERIFY(clip->width() < fixture.root()->width());
    QVERIFY(qAbs(clip->width() / clip->height() - 4) < 0.1);
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);
    QTRY_VERIFY(clip->property("shown").toBool());
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);
}

void tst_StandardUiClips::video_showsTheCaptionOfItsPicture()
{
    ClipFixture fixture;
    fixture.packages.write("Test.hintreels/Resources/clip.vtt",
        "WEBVTT\n\n00:00.000 --> 00:00.010\nFirst\n\n00:00.200 --> 00:09.000\nLast\n");
    fixture.packages.write("Test.hintreels/Resources/clip.de_DE.vtt",
        "WEBVTT\n\n00:00.000 --> 00:00.010\nZuerst\n\n00:00.200 --> 00:09.000\nZuletzt\n");
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    const QQuickItem *caption = fixture.item("clipCaption");
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    QTRY_COMPARE(caption->property("text").toString(), QString("First"));
    QVERIFY(!caption->isVisible()); // it is the first of the steps below

    fixture.click(fixture.clip());
    QTRY_VERIFY(fixture.ended());
    QTRY_COMPARE(caption->property("text").toString(), QString("Last"));
    QVERIFY(caption->isVisible());

    fixture.popup->hide();
    fixture.host->context().set(localeKey, "de_DE");
    fixture.show();
    QTRY_COMPARE(fixture.text("clipCaption"), QString("Zuerst"));
}

void tst_StandardUiClips::video_keepsToTheTimesOfItsFile()
{
    TestClip varying;
    varying.rate = 100;
    varying.times = { 0, 300, 305, 990 };
    varying.pictures = varying.times.size();
    ClipFixture fixture({}, varying);
    fixture.context.set(reducedMotionKey, true);
    fixture.packages.write("Test.hintreels/Resources/clip.vtt",
        "WEBVTT\n\n00:00.000 --> 00:03.000\nFirst\n\n00:03.050 --> 00:09.000\nThird\n");
    fixture.show();
    QTRY_VERIFY(fixture.isDecoded());
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    QTRY_VERIFY(fixture.painted()->property("length").toDouble() > 3.05);
    QTRY_COMPARE(fixture.text("clipCaption"), QString("First"));

    fixture.click(fixture.item("progressLine")); // in the middle

    QTRY_COMPARE(qRound(100 * fixture.time()), 305);
    QTRY_COMPARE(fixture.text("clipCaption"), QString("Third"));

    fixture.painted()->setProperty("position", 1);
    QTRY_COMPARE(qRound(100 * fixture.time()), 300);
    QTRY_VERIFY(qAbs(fixture.progress() - 0.3) < 0.05);
}

void tst_StandardUiClips::video_isReachedByKeyboard_whenDetached()
{
    ClipFixture fixture({}, longClip());
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    QTRY_VERIFY(fixture.isDecoded());
    HRView *view = fixture.view();
    view->setReserved(true);
    view->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), view);

    QTest::keyClick(view, Qt::Key_Tab);
    QTest::keyClick(view, Qt::Key_Space);
    QVERIFY(fixture.wanted());
    QTest::keyClick(view, Qt::Key_Space);
    QVERIFY(!fixture.wanted());

    const qreal before = fixture.progress();
    QTest::keyClick(view, Qt::Key_Tab);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(view, Qt::Key_Right);
    QVERIFY(fixture.progress() > before + 0.1);
}

void tst_StandardUiClips::video_isReachedByScreenReaders_whilePlaying()
{
    ClipFixture fixture("alt=\"A line\"", longClip());
    fixture.show();
    QTRY_VERIFY(fixture.time() > 0.1); // the button is out of sight

    const auto accessible = [&](const QString &name) {
        return QAccessible::queryAccessibleInterface(fixture.item(name));
    };
    for (const char *name : { "clipButton", "progressLine" }) {
        QVERIFY(accessible(name));
        QVERIFY(!accessible(name)->state().invisible);
    }
    QCOMPARE(accessible("clipButton")->text(QAccessible::Name), QString("Pause"));
    QCOMPARE(accessible("progressLine")->text(QAccessible::Name), QString("Position in the clip"));
    QAccessibleValueInterface *position = accessible("progressLine")->valueInterface();
    QVERIFY(position);
    QVERIFY(position->currentValue().toReal() > 0.0);
    QCOMPARE(position->maximumValue().toReal(), 1.0);
    accessible("clipButton")
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(fixture.buttonName(), QString("Play"));
}

QTEST_MAIN(tst_StandardUiClips)
#include "tst_StandardUiClips.moc"
