// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoSourceFFMPEG.h"

#include "support/MessageGuard.h"
#include "support/MisleadingNames.h"
#include "support/Pauses.h"
#include "support/SignalCounter.h"
#include "support/TestClip.h"
#include "support/TestFile.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

using namespace Hintreels;

class tst_HRVideoSourceFFMPEG : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newSource_hasNothingOpen();
    void clip_isDecodedWholeAndClosed();
    void clip_isDecodedAgain_afterAnother();
    void clip_knowsItsFacts_whileItIsOpen();
    void thread_tellsEachAction_data();
    void thread_tellsEachAction();
    void failure_leavesOneMessageAndIdles_data();
    void failure_leavesOneMessageAndIdles();
    void clipWithoutPictures_isTold_afterItsEnd();
    void clipThatGrowsTooLarge_isTold_afterItsEnd();
    void clipWithoutPictures_isNotTold_whenAskedToStop();
    void messages_areOneLine_data();
    void messages_areOneLine();
    void emptySource_closesInSilence();
    void closeAction_closesTheClip();
    void quitAction_endsTheThread();
    void seekAction_idles_whenNothingIsOpen();
    void changeSetPosition_resetsTheClock_whenNothingIsOpen();
    void changeSetPosition_goesOnFromThere_whileOpen();
    void readers_doNotWaitForADecodedPicture();
    void quit_isQuick_atAnyMoment();
    void setSource_survivesHammering();

private:
    QString path(const QString &name) const { return m_directory.filePath(name); }
    QUrl clip(const QString &name, int pictures = 8);
    QByteArray growingClip();

    QTemporaryDir m_directory;
    QUrl m_clip;
};

namespace {

/// A running source with its spies.
struct Decoding
{
    Decoding()
        : loaded(&source, &HRVideoSource::sourceLoaded)
        , ended(&source, &HRVideoSource::streamEnded)
    {
        source.start();
    }

    bool isSettled() { return source.action() == HRVideoSource::idleAction; }

    HRVideoSourceFFMPEG source;
    SignalCounter loaded;
    SignalCounter ended;
};

/// A GIF of one pixel, compressed by codes of an impossible length.
QString unreadableClip(const QString &path)
{
    return writeFile(path,
        QByteArray::fromHex("47494638396101000100800000000000ffffff"
                            "2c0000000001000100000f024401003b"));
}

/// A source that the test drives itself, without the thread.
class DrivenSource : public HRVideoSourceFFMPEG
{
public:
    ~DrivenSource() override { quit(); }

    using HRVideoSourceFFMPEG::loadSource;
};

} // namespace

void tst_HRVideoSourceFFMPEG::initTestCase()
{
    m_clip = clip("clip.mp4");
}

QUrl tst_HRVideoSourceFFMPEG::clip(const QString &name, int pictures)
{
    TestClip encoded;
    encoded.rate = 25;
    encoded.pictures = pictures;
    return QUrl::fromLocalFile(encoded.write(path(name)));
}

/// Its last pictures have more than a megapixel.
QByteArray tst_HRVideoSourceFFMPEG::growingClip()
{
    TestClip encoded;
    const QByteArray small = contentOf(encoded.write(path("small.h264")));
    encoded.size = QSize(1600, 1000);
    return small + contentOf(encoded.write(path("large.h264")));
}

void tst_HRVideoSourceFFMPEG::newSource_hasNothingOpen()
{
    HRVideoSourceFFMPEG source;
    QCOMPARE(source.objectName(), QString("FFMPEG"));
    QVERIFY(!source.isOpen());
    QCOMPARE(source.frameWidth(), 200.0);
    QCOMPARE(source.frameHeight(), 150.0);
    QCOMPARE(source.duration(), 0.0);
    QCOMPARE(source.timeBase(), 0.0);
    QCOMPARE(source.frameRate(), 0.0);
    QCOMPARE(source.progress(), 0.0);
    QCOMPARE(source.position(), size_t(0));
    const double now = double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
    QVERIFY(qAbs(source.getTime() - now) < 60.0);
}

void tst_HRVideoSourceFFMPEG::clip_isDecodedWholeAndClosed()
{
    MessageGuard messages;
    Decoding decoding;
    QVERIFY(decoding.source.setSource(m_clip));
    QTRY_COMPARE(decoding.ended.count(), 1);
    QTRY_VERIFY(decoding.isSettled());
    QCOMPARE(decoding.loaded.count(), 1);
    QVERIFY(!decoding.source.isOpen());
    QCOMPARE(decoding.source.frameWidth(), 200.0);
    QCOMPARE(decoding.source.frameHeight(), 150.0);
    QCOMPARE(decoding.source.frameRate(), 25.0);
    QCOMPARE(decoding.source.position(), size_t(0));
    QCOMPARE(decoding.source.totalFrameCount(), size_t(8));
    for (unsigned i = 0; i < 8; ++i) {
        const HRVideoFrame picture = decoding.source.getFrame(i);
        QCOMPARE(TestClip::numberOf(picture), int(i));
        QCOMPARE(picture.pts(), i * 0.04);
        QCOMPARE(picture.format(), QImage::Format_RGB32);
    }
    QCOMPARE(decoding.source.progress(), 7 * 0.04 / decoding.source.duration());
    // What the thread has said by its end has been heard.
    decoding.source.quit();
    QCoreApplication::processEvents();
    QCOMPARE(decoding.ended.count(), 1);
}

void tst_HRVideoSourceFFMPEG::clip_isDecodedAgain_afterAnother()
{
    Decoding decoding;
    const QUrl other = clip("other.mp4", 5);
    QVERIFY(decoding.source.setSource(m_clip));
    QTRY_COMPARE(decoding.ended.count(), 1);
    QVERIFY(!decoding.source.setSource(m_clip));
    QVERIFY(decoding.source.setSource(other));
    QTRY_COMPARE(decoding.ended.count(), 2);
    QCOMPARE(decoding.source.totalFrameCount(), size_t(5));
    // The clock runs on from clip to clip.
    QCOMPARE(decoding.source.getFrame(0).pts(), 8 * 0.04);
    QVERIFY(decoding.source.setSource(m_clip));
    QTRY_COMPARE(decoding.ended.count(), 3);
    QCOMPARE(decoding.source.totalFrameCount(), size_t(8));
}

void tst_HRVideoSourceFFMPEG::clip_knowsItsFacts_whileItIsOpen()
{
    DrivenSource source;
    SignalCounter loaded(&source, &HRVideoSource::sourceLoaded);
    source.changeSetSource(m_clip);
    QVERIFY(source.loadSource());
    QCOMPARE(loaded.count(), 1);
    QVERIFY(source.isOpen());
    QCOMPARE(source.frameWidth(), 64.0);
    QCOMPARE(source.frameHeight(), 48.0);
    QCOMPARE(source.frameRate(), 25.0);
    QCOMPARE(source.duration(), 0.32);
    QVERIFY(source.timeBase() >= 0.0);
    source.close();
    QVERIFY(!source.isOpen());
    QCOMPARE(source.frameWidth(), 200.0);
}

void tst_HRVideoSourceFFMPEG::thread_tellsEachAction_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QVector<int>>("actions");
    QTest::newRow("clip") << m_clip << QVector<int>{ 1, 4, 4, 5, 5 };
    QTest::newRow("no clip") << QUrl("file:///missing.mp4") << QVector<int>{ 1, 4, 5, 5, 5 };
}

void tst_HRVideoSourceFFMPEG::thread_tellsEachAction()
{
    QFETCH(QUrl, url);
    MessageGuard messages;
    QVector<int> actions; // of the source's thread, until that has ended
    HRVideoSourceFFMPEG source;
    connect(
        &source, &HRVideoSource::actionChanged, this, [&] { actions.append(source.action()); },
        Qt::DirectConnection);
    SignalCounter told(&source, &HRVideoSource::actionChanged);
    QVERIFY(source.setSource(url));
    source.start();
    QTRY_COMPARE(told.count(), 5);
    source.quit();
    QTEST(actions, "actions");
    messages.takeMessages();
}

void tst_HRVideoSourceFFMPEG::failure_leavesOneMessageAndIdles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << path("missing.mp4") << "Could not open media at: %1";
    QTest::newRow("percent in the name") << path("100%1.mp4") << "Could not open media at: %1";
    TestClip header;
    header.codec = "mpeg4";
    header.options = "";
    header.pictures = 0;
    header.fileOptions = "movflags=empty_moov+frag_keyframe";
    QTest::newRow("header alone") << header.write(path("header.mp4"))
                                  << "Could not get a swscale context for %1";
}

void tst_HRVideoSourceFFMPEG::failure_leavesOneMessageAndIdles()
{
    QFETCH(QString, file);
    QFETCH(QString, message);
    MessageGuard messages;
    Decoding decoding;
    SignalCounter actions(&decoding.source, &HRVideoSource::actionChanged);
    QVERIFY(decoding.source.setSource(QUrl::fromLocalFile(file)));
    QStringList seen;
    QTRY_VERIFY(!(seen += messages.takeMessages()).isEmpty());
    QCOMPARE(seen, QStringList{ message.arg(file) });
    QTRY_VERIFY(decoding.isSettled());
    QCOMPARE(decoding.loaded.count(), 0);
    QCOMPARE(decoding.ended.count(), 0);
    QCOMPARE(decoding.source.totalFrameCount(), size_t(0));

    // The next good clip plays.
    QVERIFY(decoding.source.setSource(m_clip));
    QTRY_COMPARE(decoding.ended.count(), 1);
}

void tst_HRVideoSourceFFMPEG::clipWithoutPictures_isTold_afterItsEnd()
{
    const QString file = unreadableClip(path("unreadable.gif"));
    MessageGuard messages;
    Decoding decoding;
    QStringList seenAtTheEnd{ "nothing" };
    connect(
        &decoding.source, &HRVideoSource::streamEnded, this,
        [&] { seenAtTheEnd = messages.takeMessages(); }, Qt::DirectConnection);
    QVERIFY(decoding.source.setSource(QUrl::fromLocalFile(file)));
    QTRY_COMPARE(decoding.ended.count(), 1);
    QStringList seen;
    QTRY_VERIFY(!(seen += messages.takeMessages()).isEmpty());
    QCOMPARE(seen, QStringList{ "Could not decode any picture in media at: " + file });
    QCOMPARE(seenAtTheEnd, QStringList());
    QCOMPARE(decoding.loaded.count(), 1);
    QCOMPARE(decoding.source.totalFrameCount(), size_t(0));
}

void tst_HRVideoSourceFFMPEG::clipThatGrowsTooLarge_isTold_afterItsEnd()
{
    const QString file = writeFile(path("grows.h264"), growingClip());
    MessageGuard messages;
    Decoding decoding;
    decoding.source.setLargestPicture(1);
    QVERIFY(decoding.source.setSource(QUrl::fromLocalFile(file)));
    QTRY_COMPARE(decoding.ended.count(), 1);
    QStringList seen;
    QTRY_VERIFY(!(seen += messages.takeMessages()).isEmpty());
    QCOMPARE(seen, QStringList{ "Could not allocate rgb frame in " + file });
    QVERIFY(decoding.source.totalFrameCount() > 0);
}

void tst_HRVideoSourceFFMPEG::clipWithoutPictures_isNotTold_whenAskedToStop()
{
    const QString file = unreadableClip(path("unreadable.gif"));
    MessageGuard messages;
    Decoding decoding;
    connect(
        &decoding.source, &HRVideoSource::sourceLoaded, this,
        [&] { decoding.source.setShouldQuit(); }, Qt::DirectConnection);
    QVERIFY(decoding.source.setSource(QUrl::fromLocalFile(file)));
    QVERIFY(decoding.source.wait(5000));
    QCOMPARE(decoding.ended.count(), 0);
}

void tst_HRVideoSourceFFMPEG::messages_areOneLine_data()
{
    addMisleadingNames();
}

void tst_HRVideoSourceFFMPEG::messages_areOneLine()
{
    QFETCH(QString, name);
    QFETCH(QString, told);
    const QVector<QPair<QString, QString>> failures{
        { "Could not open media at: %1", path(name) },
        { "Could not allocate rgb frame in %1", writeFile(path(name + ".h264"), growingClip()) },
        { "Could not decode any picture in media at: %1", unreadableClip(path(name + ".gif")) },
    };
    for (const auto &failure : failures) {
        MessageGuard messages;
        Decoding decoding;
        decoding.source.setLargestPicture(1);
        QVERIFY(decoding.source.setSource(QUrl::fromLocalFile(failure.second)));
        QStringList seen;
        QTRY_VERIFY(!(seen += messages.takeMessages()).isEmpty());
        QCOMPARE(
            seen, QStringList{ failure.first.arg(QString(failure.second).replace(name, told)) });
    }
}

void tst_HRVideoSourceFFMPEG::emptySource_closesInSilence()
{
    MessageGuard messages;
    DrivenSource source;
    source.changeSetSource(m_clip);
    QVERIFY(source.loadSource());
    source.changeSetSource(QUrl());
    QVERIFY(!source.loadSource());
    QVERIFY(!source.isOpen());
}

void tst_HRVideoSourceFFMPEG::closeAction_closesTheClip()
{
    DrivenSource source;
    source.changeSetSource(m_clip);
    QVERIFY(source.loadSource());
    source.clearChanges();
    source.setAction(HRVideoSource::closeAction);
    source.start();
    QTRY_VERIFY(!source.isOpen());
    QTRY_COMPARE(source.action(), HRVideoSource::idleAction);
    QCOMPARE(source.totalFrameCount(), size_t(0));
}

void tst_HRVideoSourceFFMPEG::quitAction_endsTheThread()
{
    HRVideoSourceFFMPEG source;
    source.start();
    source.setAction(HRVideoSource::quitAction);
    QVERIFY(source.wait(1000));
}

void tst_HRVideoSourceFFMPEG::seekAction_idles_whenNothingIsOpen()
{
    Decoding decoding;
    SignalCounter actions(&decoding.source, &HRVideoSource::actionChanged);
    decoding.source.setAction(HRVideoSource::seekAction);
    QTRY_COMPARE(actions.count(), 2);
    QVERIFY(decoding.isSettled());
}

void tst_HRVideoSourceFFMPEG::changeSetPosition_resetsTheClock_whenNothingIsOpen()
{
    Decoding decoding;
    SignalCounter position(&decoding.source, &HRVideoSource::positionChanged);
    QVERIFY(decoding.source.setSource(m_clip));
    QTRY_COMPARE(decoding.ended.count(), 1);
    decoding.source.changeSetPosition(3);
    QCOMPARE(position.count(), 1);
    QCOMPARE(decoding.source.progress(), 0.0);
    QVERIFY(decoding.source.setSource(clip("again.mp4", 3)));
    QTRY_COMPARE(decoding.ended.count(), 2);
    QCOMPARE(decoding.source.getFrame(0).pts(), 0.0);
}

void tst_HRVideoSourceFFMPEG::changeSetPosition_goesOnFromThere_whileOpen()
{
    TestClip encoded;
    encoded.rate = 25;
    encoded.pictures = 20;
    encoded.options = "g=1:crf=12"; // every picture can be started from
    DrivenSource source;
    SignalCounter ended(&source, &HRVideoSource::streamEnded);
    source.changeSetSource(QUrl::fromLocalFile(encoded.write(path("positions.mp4"))));
    QVERIFY(source.loadSource());
    source.changeSetPosition(15);
    source.start();
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(source.totalFrameCount(), size_t(5));
    QCOMPARE(TestClip::numberOf(source.getFrame(0)), 15);
    QCOMPARE(source.getFrame(0).pts(), 0.6);
}

void tst_HRVideoSourceFFMPEG::readers_doNotWaitForADecodedPicture()
{
    TestClip large;
    large.codec = "ffv1";
    large.options = "";
    large.size = QSize(2400, 1600);
    large.pictures = 10;
    Decoding decoding;
    QVERIFY(decoding.source.setSource(QUrl::fromLocalFile(large.write(path("large.mkv")))));
    QTRY_VERIFY(decoding.source.isOpen());
    int asked = 0;
    for (; decoding.source.isOpen() && asked < 5000; ++asked)
        decoding.source.frameWidth();
    // Who waits for the decoder gets an answer or two a picture.
    QVERIFY2(asked > 200, qPrintable(QString::number(asked)));
}

void tst_HRVideoSourceFFMPEG::quit_isQuick_atAnyMoment()
{
    MessageGuard messages;
    std::mt19937 random(3);
    TestClip encoded;
    encoded.size = QSize(640, 360);
    encoded.pictures = 50;
    const QUrl url = QUrl::fromLocalFile(encoded.write(path("quit.mp4")));
    qint64 longest = 0;
    for (int i = 0; i < 40; ++i) {
        Decoding decoding;
        decoding.source.setSource(url);
        const size_t pictures = random() % 20;
        QVERIFY(lookUntil([&] { return decoding.source.loadedFrameCount() >= pictures; }));
        QElapsedTimer timer;
        timer.start();
        decoding.source.quit();
        longest = qMax(longest, timer.elapsed());
    }
    QVERIFY2(longest < 1000, qPrintable(QString("%1 ms").arg(longest)));
}

void tst_HRVideoSourceFFMPEG::setSource_survivesHammering()
{
    MessageGuard messages;
    Decoding decoding;
    const QUrl other = clip("hammer.mp4", 30);
    for (int i = 0; i < 400; ++i) {
        const QUrl asked = i % 2 ? m_clip : other;
        const bool comes = decoding.source.setSource(asked);
        if (i % 7 == 0)
            decoding.source.setAction(HRVideoSource::decodeAction);
        decoding.source.getFrame(unsigned(i) % 8);
        if (comes && i % 40 == 0)
            QVERIFY(lookUntil([&] { return decoding.source.source() == asked; }));
    }
    const QUrl last = clip("last.mp4", 12);
    QVERIFY(decoding.source.setSource(last));
    QTRY_VERIFY(decoding.source.source() == last && decoding.isSettled());
    QTRY_COMPARE(decoding.source.totalFrameCount(), size_t(12));
}

QTEST_GUILESS_MAIN(tst_HRVideoSourceFFMPEG)
#include "tst_HRVideoSourceFFMPEG.moc"
