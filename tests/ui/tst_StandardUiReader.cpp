// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestReader.h"
#include "ui/StandardUiFixture.h"

using namespace Hintreels;

namespace {

const QByteArray hint = R"(
<hintreel key="key" title="Pen" documentation="pen">
    <summary>Draws a line.</summary>
    <video source="clip.mp4" loop="true"/>
    <text>Hold Shift, and the line is straight, at one of eight angles. ![a](good.png)</text>
    <picture source="good.png">The result</picture>
</hintreel>)";

const QByteArray captions = "WEBVTT\n\n00:00.000 --> 00:09.000\nHold Shift\n";

/// A hint with everything, a reader, and the pointer away from the popup.
struct ReaderFixture : StandardUiFixture
{
    explicit ReaderFixture(const QByteArray &entry = hint)
        : StandardUiFixture(entry)
    {
        TestClip().write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
        packages.write("Test.hintreels/Resources/clip.en_US.vtt", captions);
        context.set(readerSettingsKey, reader.asValue());
        context.set(nativeDismissalKey, true);
        QCursor::setPos(700, 700);
    }

    int blocks() const { return item("blocks")->property("made").toInt(); }
    bool hasClip() const { return hasItem("clip"); }
    bool clipIsWanted() const { return item("clip")->property("wanted").toBool(); }
    /// The popup has its content's size, one pixel more, and the title bar of this platform.
    bool fits() const
    {
        const int titleBar = popup->geometry().top() - popup->frameGeometry().top();
        return popup->size() == root()->size().toSize() + QSize(1, 1 + titleBar);
    }

    TestReader reader;
};

} // namespace

class tst_StandardUiReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hint_showsAsMuchAsItsReaderWants_atOnce();
    void hint_beginsSmall_andGrowsForAKey();
    void hint_growsWhereThePointerRests();
    void hint_growsWhenItIsPinned();
    void hint_isSmallAgain_whenItComesBack();
    void hint_beginsSmall_onceItWasSeenInFull();
    void clip_playsAsItsReaderWants_atOnce();
    void clip_repeats_onlyWhereItMay_data();
    void clip_repeats_onlyWhereItMay();
    void captions_areShown_whereTheReaderWantsThem();
    void text_isAsLargeAsItsReaderWants_atOnce();
};

void tst_StandardUiReader::hint_showsAsMuchAsItsReaderWants_atOnce()
{
    ReaderFixture f;
    f.show();
    QTRY_VERIFY(f.hasClip());
    const QSizeF full = f.root()->size();
    QVERIFY(f.item("documentation")->isVisible());

    f.reader.settings.setDetail(HRReaderSettings::textDetail);
    QTRY_COMPARE(f.blocks(), 1);
    QTRY_VERIFY(!f.hasClip());
    QTRY_VERIFY(f.root()->height() < full.height());
    QCOMPARE(f.root()->width(), full.width());
    QTRY_VERIFY(f.fits());

    f.reader.settings.setDetail(HRReaderSettings::summaryDetail);
    QTRY_COMPARE(f.blocks(), 0);
    QVERIFY(!f.item("documentation")->isVisible());
    QCOMPARE(f.text("summary"), QString("Draws a line."));
    QVERIFY(f.root()->width() < full.width());
    QTRY_VERIFY(f.fits());

    f.reader.settings.setDetail(HRReaderSettings::fullDetail);
    QTRY_VERIFY(f.hasClip());
    QTRY_COMPARE(f.root()->size(), full);
    QTRY_VERIFY(f.fits());
    QCOMPARE(f.troubles(), QStringList());
}

void tst_StandardUiReader::hint_beginsSmall_andGrowsForAKey()
{
    ReaderFixture f;
    f.reader.settings.setStartsSmall(true);
    f.show();
    QCOMPARE(f.blocks(), 0);
    const QSizeF small = f.root()->size();
    QCOMPARE(small, f.sizeAtOnce);

    QWidget hostsWindow;
    QKeyEvent shift(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
    f.host->manager()->eventFilter(&hostsWindow, &shift);

    QTRY_VERIFY(f.hasClip());
    QVERIFY(f.root()->width() > small.width());
    QTRY_VERIFY(f.fits());
}

void tst_StandardUiReader::hint_growsWhereThePointerRests()
{
    ReaderFixture f;
    f.reader.settings.setStartsSmall(true);
    f.show();
    QCOMPARE(f.blocks(), 0);

    QCursor::setPos(f.popup->mapToGlobal(QPoint(10, 10)));

    QTRY_VERIFY(f.hasClip());
}

void tst_StandardUiReader::hint_growsWhenItIsPinned()
{
    ReaderFixture f;
    f.reader.settings.setStartsSmall(true);
    f.show();
    f.view()->setReserved(true);
    QTRY_VERIFY(f.hasClip());
}

void tst_StandardUiReader::hint_isSmallAgain_whenItComesBack()
{
    ReaderFixture f;
    f.reader.settings.setStartsSmall(true);
    f.show();
    QCursor::setPos(f.popup->mapToGlobal(QPoint(10, 10)));
    QTRY_VERIFY(f.hasClip());
    QCursor::setPos(700, 700);
    f.popup->hide();

    f.show();

    QCOMPARE(f.blocks(), 0);
}

void tst_StandardUiReader::hint_beginsSmall_onceItWasSeenInFull()
{
    ReaderFixture f;
    f.reader.settings.setSeenLimit(1);
    f.show();
    QTRY_VERIFY(f.hasClip());
    f.popup->hide();
    f.show();
    QCOMPARE(f.blocks(), 0);
    f.popup->hide();

    f.reader.settings.forgetSeen();
    f.show();
    QTRY_VERIFY(f.hasClip());
}

void tst_StandardUiReader::clip_playsAsItsReaderWants_atOnce()
{
    ReaderFixture f;
    f.reader.settings.setClips(HRReaderSettings::clipsOnRequest);
    f.show();
    QTRY_VERIFY(f.hasClip());
    QVERIFY(!f.clipIsWanted());

    f.reader.settings.setClips(HRReaderSettings::clipsByThemselves);
    QVERIFY(f.clipIsWanted());

    f.reader.settings.setClips(HRReaderSettings::clipsOnRequest);
    QVERIFY(!f.clipIsWanted());
    f.click(f.item("clip"));
    QVERIFY(f.clipIsWanted());
}

void tst_StandardUiReader::clip_repeats_onlyWhereItMay_data()
{
    QTest::addColumn<int>("clips");
    QTest::addColumn<bool>("reducedMotion");
    QTest::addColumn<bool>("repeats");
    QTest::newRow("by itself") << int(HRReaderSettings::clipsByThemselves) << false << true;
    QTest::newRow("once") << int(HRReaderSettings::clipsOnce) << false << false;
    QTest::newRow("without motion") << int(HRReaderSettings::clipsByThemselves) << true << false;
}

void tst_StandardUiReader::clip_repeats_onlyWhereItMay()
{
    QFETCH(int, clips);
    QFETCH(bool, reducedMotion);
    ReaderFixture f;
    f.context.set(reducedMotionKey, reducedMotion);
    f.reader.settings.setClips(HRReaderSettings::Clips(clips));
    f.show();
    QTRY_VERIFY(f.hasClip());
    QTEST(f.item("clip")->property("loop").toBool(), "repeats");
    QCOMPARE(f.clipIsWanted(), !reducedMotion);
}

void tst_StandardUiReader::captions_areShown_whereTheReaderWantsThem()
{
    ReaderFixture f;
    f.show();
    QTRY_VERIFY(f.hasClip());
    QTRY_VERIFY(f.item("clipCaption")->isVisible());
    f.reader.settings.setCaptionsShown(false);
    QVERIFY(!f.item("clipCaption")->isVisible());
}

void tst_StandardUiReader::text_isAsLargeAsItsReaderWants_atOnce()
{
    ReaderFixture f;
    f.show();
    const auto size
        = [&f] { return f.item("summary")->property("font").value<QFont>().pixelSize(); };
    const int before = size();
    const qreal width = f.root()->width();

    f.reader.settings.setTextSize(200);

    QVERIFY(qAbs(size() - 2 * before) <= 1);
    QVERIFY(qAbs(f.root()->width() - 2 * width) <= 28);
    QTRY_VERIFY(f.fits());
}

QTEST_MAIN(tst_StandardUiReader)
#include "tst_StandardUiReader.moc"
