// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestReader.h"
#include "ui/StandardUiFixture.h"

using namespace Hintreels;

namespace {

const QString reason = QStringLiteral("Flashes quickly, so it does not play by itself");

/// A hint with a clip that is black and white in turn, five times a second for six seconds.
struct FlashFixture : StandardUiFixture
{
    explicit FlashFixture(const QByteArray &attributes = {}, int pictures = 58)
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.mp4\" "
            + attributes + "/></hintreel>")
    {
        TestClip recording;
        recording.pictures = pictures;
        recording.rate = 10;
        recording.write(
            packages.path() + "/Test.hintreels/Resources/clip.mp4", &TestClip::blinking);
        context.set(readerSettingsKey, reader.asValue());
    }

    /// Waits until all of the clip is known.
    void show()
    {
        StandardUiFixture::show();
        QTRY_VERIFY(hasItem("clip"));
        const auto *painted = item("clip")->findChild<QQuickItem *>();
        QTRY_VERIFY(painted->property("decoded").toBool());
        QTRY_VERIFY(is("shown"));
    }

    bool is(const char *property) const { return item("clip")->property(property).toBool(); }
    qreal time() const { return item("clip")->property("time").toReal(); }

    TestReader reader;
};

} // namespace

/// WCAG 2.2, 2.3.1: a clip that flashes waits for a reader who asks for it.
class tst_StandardUiFlashes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clip_restsAtItsFirstPicture_andSaysWhy();
    void clip_plays_whenItsReaderAsks();
    void clip_rests_whenSettingsChange();
    void clip_rests_whereOnlyItsLoopFlashes_data();
    void clip_rests_whereOnlyItsLoopFlashes();
};

void tst_StandardUiFlashes::clip_restsAtItsFirstPicture_andSaysWhy()
{
    FlashFixture f;
    f.show();

    QVERIFY(f.is("flashing"));
    QVERIFY(!f.is("wanted"));
    QTRY_COMPARE(f.time(), 0.0);
    QCOMPARE(f.item("clipButton")->property("name").toString(), QString("Play"));
    QVERIFY(f.item("flashing")->isVisible());
    QCOMPARE(f.text("flashing"), reason);
    QCOMPARE(f.troubles(), QStringList());
}

void tst_StandardUiFlashes::clip_plays_whenItsReaderAsks()
{
    FlashFixture f;
    f.show();
    QTRY_COMPARE(f.time(), 0.0);

    f.click(f.item("clipButton"));

    QTRY_VERIFY(f.time() > 0.9); // the fourth flash is at 0.8 s
    QVERIFY(f.is("wanted"));
    QVERIFY(f.item("flashing")->isVisible());
}

void tst_StandardUiFlashes::clip_rests_whenSettingsChange()
{
    FlashFixture f;
    f.reader.settings.setClips(HRReaderSettings::clipsOnRequest);
    f.show();

    f.reader.settings.setClips(HRReaderSettings::clipsByThemselves);

    QVERIFY(!f.is("wanted"));
}

void tst_StandardUiFlashes::clip_rests_whereOnlyItsLoopFlashes_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<bool>("flashes");
    QTest::newRow("once") << QByteArray() << false;
    QTest::newRow("over and over") << QByteArray("loop=\"true\"") << true;
}

void tst_StandardUiFlashes::clip_rests_whereOnlyItsLoopFlashes()
{
    QFETCH(QByteArray, attributes);
    QFETCH(bool, flashes);
    FlashFixture f(attributes, 2);
    f.show();

    QCOMPARE(f.is("flashing"), flashes);
    QCOMPARE(f.item("flashing")->isVisible(), flashes);
    if (flashes)
        QVERIFY(!f.is("wanted"));
    else
        QTRY_VERIFY(f.is("ended"));
}

QTEST_MAIN(tst_StandardUiFlashes)
#include "tst_StandardUiFlashes.moc"
