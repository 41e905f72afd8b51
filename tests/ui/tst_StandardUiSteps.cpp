// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestReader.h"
#include "ui/StandardUiFixture.h"

#include <QQuickItemGrabResult>

using namespace Hintreels;

namespace {

const QByteArray twoCaptions = R"(WEBVTT

00:01.000 --> 00:02.000
First a dot

00:04.000 --> 00:05.000
Then a line
)";

/// A hint with a clip of 5.8 s, for a reader who wants less motion.
struct StepsFixture : StandardUiFixture
{
    explicit StepsFixture(const QByteArray &captions)
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.mp4\" "
                            "width=\"64\" alt=\"A pen\"/></hintreel>")
    {
        TestClip recording;
        recording.pictures = 58;
        recording.rate = 10;
        recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
        packages.write("Test.hintreels/Resources/clip.vtt", captions);
        context.set(readerSettingsKey, reader.asValue());
        context.set(reducedMotionKey, true);
    }

    /// Waits until all of the clip is there.
    void show()
    {
        StandardUiFixture::show();
        QTRY_VERIFY(hasItem("clip"));
        const auto *video = item("clip")->findChild<QQuickItem *>();
        QTRY_VERIFY(video->property("decoded").toBool());
    }

    /// The picture that a still shows; grabbing does not see what is scrolled out of sight.
    int pictureOf(const QString &still)
    {
        const QSharedPointer<QQuickItemGrabResult> grab = item(still)->grabToImage();
        if (!grab)
            return -1;
        QSignalSpy ready(grab.data(), &QQuickItemGrabResult::ready);
        view()->update();
        return QTest::qWaitFor([&] { return !ready.isEmpty(); }) ? TestClip::numberOf(grab->image())
                                                                 : -1;
    }

    TestReader reader;
};

} // namespace

/// The stills that stand for a clip where nothing is to move.
class tst_StandardUiSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_showThePicturesOfTheirCaptions();
    void steps_scrollWithThePage();
    void steps_leaveTheClipToItsReader();
    void steps_areLeftOut_data();
    void steps_areLeftOut();
};

void tst_StandardUiSteps::steps_showThePicturesOfTheirCaptions()
{
    StepsFixture f(twoCaptions);
    f.show();

    QTRY_COMPARE(f.pictureOf("still0"), 10);
    QTRY_COMPARE(f.pictureOf("still1"), 40);
    QVERIFY(!f.hasItem("still2"));
    QCOMPARE(f.item("clip")->property("time").toReal(), 0.0);
    QStringList words;
    for (const QQuickItem *item : itemsBelow(f.root())) {
        const QString text = item->property("text").toString();
        if (item->isVisible() && (text.startsWith("First") || text.startsWith("Then")))
            words.append(text);
    }
    QCOMPARE(words, (QStringList{ "First a dot", "Then a line" }));
    QCOMPARE(f.troubles(), QStringList());
}

void tst_StandardUiSteps::steps_scrollWithThePage()
{
    StepsFixture f(twoCaptions);
    f.show();
    const auto topOf = [&f](const QString &name) {
        return f.item(name)->mapToItem(f.item("blocks"), QPointF()).y();
    };
    QVERIFY(topOf("clip") < topOf("still0"));
    QVERIFY(topOf("still0") < topOf("still1"));
    const qreal end = topOf("still1") + f.item("still1")->height();
    QVERIFY(f.item("page")->property("contentHeight").toReal() > end);
}

void tst_StandardUiSteps::steps_leaveTheClipToItsReader()
{
    StepsFixture f(twoCaptions);
    f.show();

    f.click(f.item("clipButton"));

    QTRY_VERIFY(f.item("clip")->property("time").toReal() > 1.1);
    QTRY_COMPARE(f.pictureOf("still0"), 10);
}

void tst_StandardUiSteps::steps_areLeftOut_data()
{
    QTest::addColumn<QByteArray>("captions");
    QTest::addColumn<bool>("reducedMotion");
    QTest::addColumn<bool>("captionsShown");
    QTest::newRow("motion is welcome") << twoCaptions << false << true;
    QTest::newRow("captions are not") << twoCaptions << true << false;
    QTest::newRow("no captions") << QByteArray("WEBVTT\n") << true << true;
    QTest::newRow("a single caption")
        << QByteArray("WEBVTT\n\n00:00.000 --> 00:05.000\nAll\n") << true << true;
}

void tst_StandardUiSteps::steps_areLeftOut()
{
    QFETCH(QByteArray, captions);
    QFETCH(bool, reducedMotion);
    QFETCH(bool, captionsShown);
    StepsFixture f(captions);
    f.context.set(reducedMotionKey, reducedMotion);
    f.reader.settings.setCaptionsShown(captionsShown);
    f.show();
    QVERIFY(!f.hasItem("still0"));
    QCOMPARE(f.item("clip")->property("wanted").toBool(), !reducedMotion);
}

QTEST_MAIN(tst_StandardUiSteps)
#include "tst_StandardUiSteps.moc"
