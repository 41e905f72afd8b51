// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRMediaDemuxer_p.h"

#include "support/TestClip.h"
#include "video/mediaFile_p.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace Hintreels;

class tst_HRMediaDemuxer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void open_refusesWhatNamesOtherFiles_data();
    void open_refusesWhatNamesOtherFiles();
    void open_refusesWhatIsNoRegularFile_data();
    void open_refusesWhatIsNoRegularFile();
    void open_takesTheNameAsAPath_data();
    void open_takesTheNameAsAPath();
    void open_endsEarly_whenAskedToStop();
    void readPacket_givesUp_whereNoPictureEnds();
    void readPacket_goesOn_afterMuchWasRead();
    void chooseVideoStream_refusesSoundAlone();
    void readPacket_deliversTheChosenStreamToItsEnd();
    void readPacket_passesOverOtherStreams();
    void seek_startsAnew();
    void facts_comeFromTheStreamOrTheFile_data();
    void facts_comeFromTheStreamOrTheFile();
    void quotient_isZero_whenTheDenominatorIs();

private:
    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir m_directory;
    QString m_clip;
};

namespace {

bool neverStop()
{
    return false;
}

int packetCount(HRMediaDemuxer *demuxer)
{
    const HRFFmpegHandle<AVPacket> packet(av_packet_alloc());
    int count = 0;
    for (; demuxer->readPacket(packet.get()); ++count)
        av_packet_unref(packet.get());
    return count;
}

/// Writes a clip's packets twice, into streams of their own.
void writeTwice(const QString &clip, const QString &path)
{
    const HRFFmpegHandle<AVFormatContext> input = openMediaFile(clip, "mov,mp4");
    const AVStream *source = input->streams[0];
    const QByteArray name = path.toUtf8();
    AVFormatContext *output = nullptr;
    avformat_alloc_output_context2(&output, nullptr, nullptr, name.constData());
    for (int i = 0; i < 2; ++i) {
        AVStream *stream = avformat_new_stream(output, nullptr);
        avcodec_parameters_copy(stream->codecpar, source->codecpar);
        stream->codecpar->codec_tag = 0;
    }
    if (avio_open(&output->pb, name.constData(), AVIO_FLAG_WRITE) < 0
        || avformat_write_header(output, nullptr) < 0)
        qFatal("the file cannot be written");
    const HRFFmpegHandle<AVPacket> packet(av_packet_alloc());
    while (av_read_frame(input.get(), packet.get()) >= 0) {
        for (int i = 0; i < 2; ++i) {
            const HRFFmpegHandle<AVPacket> copy(av_packet_clone(packet.get()));
            copy->stream_index = i;
            av_packet_rescale_ts(copy.get(), source->time_base, output->streams[i]->time_base);
            av_write_frame(output, copy.get());
        }
        av_packet_unref(packet.get());
    }
    av_write_trailer(output);
    avio_closep(&output->pb);
    avformat_free_context(output);
}

/// One second of silence, 8 bits at 8000 a second.
QByteArray sound()
{
    return QByteArray::fromHex("52494646641f000057415645666d7420100000000100010040"
                               "1f0000401f00000100080064617461401f0000")
        + QByteArray(8000, char(0x80));
}

} // namespace

void tst_HRMediaDemuxer::initTestCase()
{
    av_log_set_level(AV_LOG_QUIET);
    m_clip = TestClip().write(m_directory.filePath("clip.mp4"));
    // Whoever opens this one waits for ever.
    QCOMPARE(mkfifo(qPrintable(m_directory.filePath("pipe.mp4")), 0600), 0);
}

QString tst_HRMediaDemuxer::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_directory.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

void tst_HRMediaDemuxer::open_refusesWhatNamesOtherFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QByteArray hls = "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n";
    const QByteArray dash
        = "<?xml version=\"1.0\"?><MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" "
          "type=\"static\" mediaPresentationDuration=\"PT1S\"><Period><AdaptationSet "
          "mimeType=\"video/mp4\"><Representation id=\"1\" bandwidth=\"1\"><BaseURL>";
    const QByteArray dashEnd = "</BaseURL></Representation></AdaptationSet></Period></MPD>";
    QTest::newRow("HLS names a clip") << "hls.mp4" << hls + "clip.mp4\n#EXT-X-ENDLIST\n";
    QTest::newRow("HLS names a pipe") << "hls.m3u8" << hls + "pipe.mp4\n#EXT-X-ENDLIST\n";
    QTest::newRow("HLS names itself") << "self.m3u8" << hls + "self.m3u8\n";
    QTest::newRow("HLS names the network") << "net.mp4" << hls + "http://127.0.0.1:9/x.ts\n";
    QTest::newRow("ffconcat names a clip") << "list.mp4"
                                           << QByteArray("ffconcat version 1.0\n"
                                                         "file clip.mp4\n");
    QTest::newRow("ffconcat names itself") << "list.ffconcat"
                                           << QByteArray("ffconcat version 1.0\n"
                                                         "file list.ffconcat\n");
    QTest::newRow("ffconcat names a pipe") << "pipes.ffconcat"
                                           << QByteArray("ffconcat version 1.0\n"
                                                         "file pipe.mp4\n");
    QTest::newRow("DASH names a clip") << "dash.mpd" << dash + "clip.mp4" + dashEnd;
    QTest::newRow("DASH as a clip") << "dash.mp4" << dash + "pipe.mp4" + dashEnd;
    QTest::newRow("session description")
        << "session.sdp"
        << QByteArray("v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\n"
                      "t=0 0\nm=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n");
    QTest::newRow("redirection") << "go.rtsp" << QByteArray("rtsp://127.0.0.1:9/x");
    QTest::newRow("pattern in the name") << "clip%03d.png" << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("subtitle index") << "subs.idx" << QByteArray("# VobSub index file, v7\n");
    QTest::newRow("text") << "text.mp4" << QByteArray("What you see is what you get.\n");
    QTest::newRow("text for a terminal") << "text.ans" << QByteArray("\x1b[31mred\n");
    QTest::newRow("empty") << "empty.mp4" << QByteArray();
    QTest::newRow("zeros") << "zeros.mp4" << QByteArray(5000, '\0');
}

void tst_HRMediaDemuxer::open_refusesWhatNamesOtherFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(!demuxer.open(write(name, content)));
    QVERIFY(!demuxer.isOpen());
}

void tst_HRMediaDemuxer::open_refusesWhatIsNoRegularFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << m_directory.filePath("missing.mp4");
    QTest::newRow("directory") << m_directory.path();
    QTest::newRow("pipe") << m_directory.filePath("pipe.mp4");
    QTest::newRow("device") << "/dev/zero";
    QTest::newRow("the kernel's log, which blocks") << "/proc/kmsg";
    QTest::newRow("nothing") << QString();
    QTest::newRow("network") << "http://127.0.0.1:9/clip.mp4";
    QTest::newRow("data") << "data:video/mp4;base64,AAAA";
}

void tst_HRMediaDemuxer::open_refusesWhatIsNoRegularFile()
{
    QFETCH(QString, path);
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(!demuxer.open(path));
}

void tst_HRMediaDemuxer::open_takesTheNameAsAPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("like a URL") << "http:x.mp4";
    QTest::newRow("like a protocol") << "concat:a|b.mp4";
    QTest::newRow("like a pattern") << "clip%03d.mp4";
    QTest::newRow("percent") << "100%25.mp4";
    QTest::newRow("spaces and letters") << QString::fromUtf8("ä ö 日本.mp4");
    QTest::newRow("no suffix") << "clip";
    QTest::newRow("another suffix") << "clip.m3u8";
}

void tst_HRMediaDemuxer::open_takesTheNameAsAPath()
{
    QFETCH(QString, name);
    QVERIFY(QFile::copy(m_clip, m_directory.filePath(name)));
    QVERIFY(QDir::setCurrent(m_directory.path()));
    for (const QString &path : { name, m_directory.filePath(name) }) {
        HRMediaDemuxer demuxer(neverStop);
        QVERIFY(demuxer.open(path));
        QVERIFY(demuxer.findStreams(64'000'000));
        QVERIFY(demuxer.chooseVideoStream());
    }
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

void tst_HRMediaDemuxer::open_endsEarly_whenAskedToStop()
{
    HRMediaDemuxer demuxer([] { return true; });
    QVERIFY(
        !demuxer.open(m_clip) || !demuxer.findStreams(64'000'000) || packetCount(&demuxer) == 0);
}

void tst_HRMediaDemuxer::readPacket_givesUp_whereNoPictureEnds()
{
    TestClip clip;
    clip.pictures = 60;
    QFile encoded(clip.write(m_directory.filePath("encoded.h264")));
    QVERIFY(encoded.open(QIODevice::ReadOnly));
    const QByteArray content = encoded.readAll();
    QFile file(write("gap.h264", content));
    QVERIFY(file.resize(200'000'000)); // zeros that take no room on the disk
    QVERIFY(file.open(QIODevice::Append));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();

    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(file.fileName()));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(demuxer.chooseVideoStream());
    QCOMPARE(packetCount(&demuxer), clip.pictures);
}

void tst_HRMediaDemuxer::readPacket_goesOn_afterMuchWasRead()
{
    TestClip raw;
    raw.codec = "rawvideo";
    raw.options = "";
    raw.size = QSize(2400, 1600);
    raw.pictures = 16;
    const QString path = raw.write(m_directory.filePath("raw.nut"));
    QVERIFY(QFileInfo(path).size() > 70'000'000);
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(path));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(demuxer.chooseVideoStream());
    QCOMPARE(packetCount(&demuxer), raw.pictures);
}

void tst_HRMediaDemuxer::chooseVideoStream_refusesSoundAlone()
{
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(write("sound.wav", sound())));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(!demuxer.chooseVideoStream());
}

void tst_HRMediaDemuxer::readPacket_deliversTheChosenStreamToItsEnd()
{
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(m_clip));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(demuxer.chooseVideoStream());
    QCOMPARE(packetCount(&demuxer), TestClip().pictures);
}

void tst_HRMediaDemuxer::readPacket_passesOverOtherStreams()
{
    const QString path = m_directory.filePath("twice.mkv");
    writeTwice(m_clip, path);
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(path));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(demuxer.chooseVideoStream());
    QCOMPARE(packetCount(&demuxer), TestClip().pictures);
}

void tst_HRMediaDemuxer::seek_startsAnew()
{
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(m_clip));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(demuxer.chooseVideoStream());
    packetCount(&demuxer);
    demuxer.seek(0, AVSEEK_FLAG_BACKWARD);
    QCOMPARE(packetCount(&demuxer), TestClip().pictures);
}

void tst_HRMediaDemuxer::facts_comeFromTheStreamOrTheFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("duration");
    QTest::newRow("known to the stream") << "facts.mp4" << 0.5;
    QTest::newRow("known to the file") << "facts.mkv" << 0.5;
    QTest::newRow("known to nobody") << "facts.h264" << 0.0;
}

void tst_HRMediaDemuxer::facts_comeFromTheStreamOrTheFile()
{
    QFETCH(QString, name);
    TestClip clip;
    clip.rate = 20;
    clip.pictures = 10;
    HRMediaDemuxer demuxer(neverStop);
    QVERIFY(demuxer.open(clip.write(m_directory.filePath(name))));
    QVERIFY(demuxer.findStreams(64'000'000));
    QVERIFY(demuxer.chooseVideoStream());
    QTEST(demuxer.duration(), "duration");
    QCOMPARE(demuxer.frameRate(), 20.0);
}

void tst_HRMediaDemuxer::quotient_isZero_whenTheDenominatorIs()
{
    QCOMPARE(quotient({ 1, 4 }), 0.25);
    QCOMPARE(quotient({ 0, 1 }), 0.0);
    QCOMPARE(quotient({ 0, 0 }), 0.0);
    QCOMPARE(quotient({ 1, 0 }), 0.0);
}

QTEST_GUILESS_MAIN(tst_HRMediaDemuxer)
#include "tst_HRMediaDemuxer.moc"
