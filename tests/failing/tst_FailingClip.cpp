// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "failing/FailingCalls.h"
#include "support/Descriptors.h"
#include "support/MessageGuard.h"
#include "support/SignalCounter.h"
#include "support/TestClip.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Hintreels;

/// Lets each call for a clip fail once, the n-th in the n-th decoding.
class tst_FailingClip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void clip_endsOrIsRefused_data();
    void clip_endsOrIsRefused();

private:
    QUrl clip(const char *name, const char *codec, const char *format, const char *options);

    QTemporaryDir m_directory;
    QMap<QByteArray, QUrl> m_clips;
    QUrl m_next; // what is decoded after a disturbed clip
};

namespace {

constexpr int pictures = 4;

/// A source at work, with what it tells.
struct Decoding
{
    Decoding() { source.start(); }

    bool hasToldAnEnd()
    {
        told += messages.takeMessages();
        return ended.count() + told.size() > 0;
    }

    bool decodes(const QUrl &clip)
    {
        ended.clear();
        source.setSource(clip);
        return QTest::qWaitFor([this] { return ended.count() == 1; })
            && source.totalFrameCount() == pictures;
    }

    MessageGuard messages;
    HRVideoSourceFFMPEG source;
    SignalCounter ended{ &source, &HRVideoSource::streamEnded };
    QStringList told;
};

/// The kinds of failure that a clip may have, with the file's path behind them.
bool isKnown(const QString &message)
{
    const QRegExp known("Could not (open|find|allocate|get|decode) .+");
    return known.exactMatch(message);
}

} // namespace

void tst_FailingClip::initTestCase()
{
    m_clips.insert("h264", clip("h264.mp4", "libx264", "yuv420p", "crf=12:preset=veryfast:bf=2"));
    m_clips.insert("vp9", clip("vp9.webm", "libvpx-vp9", "yuv420p", "b=200000"));
    m_clips.insert("vp8", clip("vp8.webm", "libvpx", "yuv420p", "b=200000"));
    m_clips.insert("gif", clip("gif.gif", "gif", "rgb8", ""));
    m_next = clip("next.mp4", "libx264", "yuv420p", "crf=12:preset=veryfast");
}

QUrl tst_FailingClip::clip(
    const char *name, const char *codec, const char *format, const char *options)
{
    TestClip encoded;
    encoded.size = QSize(320, 240); // a picture is above 64 kB
    encoded.pictures = pictures;
    encoded.codec = codec;
    encoded.format = format;
    encoded.options = options;
    return QUrl::fromLocalFile(encoded.write(m_directory.filePath(name)));
}

void tst_FailingClip::clip_endsOrIsRefused_data()
{
    QTest::addColumn<QUrl>("clip");
    QTest::addColumn<int>("call");
    for (auto clip = m_clips.cbegin(); clip != m_clips.cend(); ++clip) {
        const char *name = clip.key().constData();
        QTest::addRow("%s, open", name) << *clip << int(failingOpen);
        QTest::addRow("%s, read", name) << *clip << int(failingRead);
        QTest::addRow("%s, stat", name) << *clip << int(failingStat);
        // FFmpeg 5.1 itself ends the program when it cannot have memory for the tiles of VP9.
        if (clip.key() != "vp9")
            QTest::addRow("%s, allocation", name) << *clip << int(failingAllocation);
    }
}

void tst_FailingClip::clip_endsOrIsRefused()
{
    QFETCH(QUrl, clip);
    QFETCH(int, call);
    const QStringList descriptors = openDescriptors();
    long calls = 0;
    for (long number = 0; number <= calls; ++number) {
        {
            Decoding decoding;
            FailingCalls failing(FailingCallKind(call), number);
            decoding.source.setSource(clip);
            QTRY_VERIFY(decoding.hasToldAnEnd());
            calls = qMax(calls, failing.end());
            QVERIFY(calls > 0);
            for (const QString &message : qAsConst(decoding.told))
                QVERIFY2(isKnown(message), qPrintable(message));
            QVERIFY(decoding.source.totalFrameCount() <= pictures);
            QVERIFY(decoding.decodes(m_next));
            decoding.hasToldAnEnd();
        }
        QCOMPARE(openDescriptors(), descriptors);
    }
}

QTEST_MAIN(tst_FailingClip)
#include "tst_FailingClip.moc"
