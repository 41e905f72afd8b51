// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClip_p.h"

#include "support/TestClip.h"
#include "support/TestFile.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <numeric>
#include <random>

using namespace Hintreels;

class tst_HRClip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readPicture_deliversAllInOrder_data();
    void readPicture_deliversAllInOrder();
    void readPicture_equalsTheReference_data();
    void readPicture_equalsTheReference();
    void readPicture_keepsTheOpenedSize_whenTheStreamChangesIts();
    void readPicture_passesOverBrokenPictures();
    void readPicture_returnsNull_whenAskedToStop();
    void open_namesWhatFailed_data();
    void open_namesWhatFailed();
    void open_refusesLargePictures_data();
    void open_refusesLargePictures();
    void readPicture_ends_whenAPictureIsTooLarge_data();
    void readPicture_ends_whenAPictureIsTooLarge();
    void open_replacesWhatWasOpen();
    void seek_goesOnFromThere();
    void restart_keepsWhatTheDecoderHolds();
    void restart_startsAnew_whenTheDecoderIsDrained();
    void damagedFiles_neitherCrashNorHang_data();
    void damagedFiles_neitherCrashNorHang();

private:
    QString path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};

namespace {

bool neverStop()
{
    return false;
}

std::vector<QImage> readAll(HRClip *clip)
{
    std::vector<QImage> pictures;
    for (QImage picture = clip->readPicture(); !picture.isNull(); picture = clip->readPicture())
        pictures.push_back(picture);
    return pictures;
}

std::vector<int> numbersOf(const std::vector<QImage> &pictures)
{
    std::vector<int> numbers;
    for (const QImage &picture : pictures)
        numbers.push_back(TestClip::numberOf(picture));
    return numbers;
}

std::vector<int> upTo(int count)
{
    std::vector<int> numbers(static_cast<size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// A drawing with edges and colours, so that no two rows and columns are alike.
QImage drawing(const QSize &size, int number)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 7 + number * 9, y * 5, (x ^ y) * 3 + number));
    return picture;
}

/// The pictures of a clip as FFmpeg's libraries give them on the straight road.
class Reference
{
public:
    static std::vector<QImage> pictures(const QString &path)
    {
        Reference reference(path);
        const HRFFmpegHandle<AVPacket> packet(av_packet_alloc());
        while (av_read_frame(reference.m_input.get(), packet.get()) >= 0) {
            avcodec_send_packet(reference.m_decoder.get(), packet.get());
            av_packet_unref(packet.get());
            reference.receive();
        }
        avcodec_send_packet(reference.m_decoder.get(), nullptr);
        reference.receive();
        return reference.m_pictures;
    }

private:
    explicit Reference(const QString &path)
    {
        AVFormatContext *input = nullptr;
        if (avformat_open_input(&input, qPrintable(path), nullptr, nullptr) < 0)
            qFatal("cannot open the clip");
        m_input.reset(input);
        avformat_find_stream_info(input, nullptr);
        const AVCodecParameters *parameters = input->streams[0]->codecpar;
        const AVCodec *codec = avcodec_find_decoder(parameters->codec_id);
        m_decoder.reset(avcodec_alloc_context3(codec));
        avcodec_parameters_to_context(m_decoder.get(), parameters);
        avcodec_open2(m_decoder.get(), codec, nullptr);
    }

    void receive()
    {
        const HRFFmpegHandle<AVFrame> frame(av_frame_alloc());
        while (avcodec_receive_frame(m_decoder.get(), frame.get()) >= 0)
            m_pictures.push_back(convert(frame.get()));
    }

    static QImage convert(const AVFrame *frame)
    {
        const int stride = (frame->width + 63) / 64 * 64 * 3;
        std::vector<uint8_t> rgb(size_t(stride) * frame->height + 256);
        const HRFFmpegHandle<SwsContext> scaler(sws_getCachedContext(nullptr, frame->width,
            frame->height, AVPixelFormat(frame->format), frame->width, frame->height,
            AV_PIX_FMT_RGB24, SWS_BICUBIC, nullptr, nullptr, nullptr));
        uint8_t *planes[4] = { rgb.data() };
        const int strides[4] = { stride };
        sws_scale(scaler.get(), frame->data, frame->linesize, 0, frame->height, planes, strides);
        const QImage image(rgb.data(), frame->width, frame->height, stride, QImage::Format_RGB888);
        return image.convertToFormat(QImage::Format_RGB32);
    }

    HRFFmpegHandle<AVFormatContext> m_input;
    HRFFmpegHandle<AVCodecContext> m_decoder;
    std::vector<QImage> m_pictures;
};

} // namespace

void tst_HRClip::initTestCase()
{
    av_log_set_level(AV_LOG_QUIET);
}

void tst_HRClip::readPicture_deliversAllInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("pictures");
    const QByteArray planar = "yuv420p";
    QTest::newRow("H.264, B pictures") << "b.mp4" << QByteArray("libx264") << planar << 8;
    QTest::newRow("H.264, one picture") << "one.mp4" << QByteArray("libx264") << planar << 1;
    QTest::newRow("H.264, 4:4:4") << "444.mkv" << QByteArray("libx264") << QByteArray("yuv444p")
                                  << 8;
    QTest::newRow("H.264, no container") << "b.h264" << QByteArray("libx264") << planar << 8;
    QTest::newRow("MPEG-4") << "m4.avi" << QByteArray("mpeg4") << planar << 8;
    QTest::newRow("MPEG-2") << "m2.ts" << QByteArray("mpeg2video") << planar << 8;
    QTest::newRow("motion JPEG") << "mj.avi" << QByteArray("mjpeg") << QByteArray("yuvj420p") << 8;
    QTest::newRow("VP8") << "vp8.webm" << QByteArray("libvpx") << planar << 8;
    QTest::newRow("lossless") << "ff.mkv" << QByteArray("ffv1") << planar << 8;
    QTest::newRow("GIF") << "a.gif" << QByteArray("gif") << QByteArray("gray") << 8;
}

void tst_HRClip::readPicture_deliversAllInOrder()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, format);
    QFETCH(int, pictures);
    TestClip encoded;
    encoded.codec = codec;
    encoded.format = format;
    encoded.pictures = pictures;
    encoded.rate = 25;
    if (codec != "libx264")
        encoded.options = "b=4000000";
    HRClip clip(neverStop);
    QCOMPARE(clip.open(encoded.write(path(name))), QString());
    QCOMPARE(numbersOf(readAll(&clip)), upTo(pictures));
    QVERIFY(clip.readPicture().isNull());
}

void tst_HRClip::readPicture_equalsTheReference_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("size");
    QTest::newRow("short road") << QByteArray("libx264") << QByteArray("yuv420p") << QSize(96, 64);
    QTest::newRow("odd width") << QByteArray("libx264") << QByteArray("yuv444p") << QSize(75, 50);
    QTest::newRow("width by two") << QByteArray("libx264") << QByteArray("yuv420p")
                                  << QSize(90, 50);
    QTest::newRow("10 bits") << QByteArray("libx264") << QByteArray("yuv420p10le") << QSize(96, 64);
    QTest::newRow("4:2:2") << QByteArray("libx264") << QByteArray("yuv422p") << QSize(96, 64);
    QTest::newRow("odd height") << QByteArray("ffv1") << QByteArray("yuv420p") << QSize(64, 35);
    QTest::newRow("full range") << QByteArray("mjpeg") << QByteArray("yuvj420p") << QSize(64, 48);
    QTest::newRow("alpha") << QByteArray("ffv1") << QByteArray("yuva420p") << QSize(64, 48);
    QTest::newRow("RGB with alpha") << QByteArray("ffv1") << QByteArray("bgra") << QSize(50, 33);
    QTest::newRow("RGB") << QByteArray("ffv1") << QByteArray("bgr0") << QSize(50, 33);
}

void tst_HRClip::readPicture_equalsTheReference()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, format);
    QFETCH(QSize, size);
    TestClip encoded;
    encoded.codec = codec;
    encoded.format = format;
    encoded.size = size;
    encoded.options = codec == "libx264" ? encoded.options : QByteArray();
    const QString file = encoded.write(path("reference.mkv"), &drawing);
    HRClip clip(neverStop);
    QCOMPARE(clip.open(file), QString());
    const std::vector<QImage> actual = readAll(&clip);
    const std::vector<QImage> expected = Reference::pictures(file);
    QCOMPARE(actual.size(), size_t(encoded.pictures));
    QCOMPARE(actual.size(), expected.size());
    for (size_t i = 0; i < actual.size(); ++i)
        QCOMPARE(actual[i], expected[i]);
}

void tst_HRClip::readPicture_keepsTheOpenedSize_whenTheStreamChangesIts()
{
    TestClip encoded;
    const QByteArray small = contentOf(encoded.write(path("small.h264")));
    encoded.size = QSize(160, 120);
    const QByteArray large = contentOf(encoded.write(path("large.h264")));
    HRClip clip(neverStop);
    QCOMPARE(clip.open(writeFile(path("both.h264"), small + large + small)), QString());
    const std::vector<QImage> pictures = readAll(&clip);
    std::vector<int> expected;
    for (int part = 0; part < 3; ++part)
        for (int number : upTo(encoded.pictures))
            expected.push_back(number);
    QCOMPARE(numbersOf(pictures), expected);
    for (const QImage &picture : pictures)
        QCOMPARE(picture.size(), QSize(64, 48));
}

void tst_HRClip::readPicture_passesOverBrokenPictures()
{
    TestClip encoded;
    encoded.codec = "png";
    encoded.format = "rgb24";
    encoded.options = "";
    QByteArray content = contentOf(encoded.write(path("whole.mkv")));
    const int third
        = content.indexOf("IHDR", content.indexOf("IHDR", content.indexOf("IHDR") + 1) + 1);
    QVERIFY(third > 0);
    content.replace(third, 4, "IBAD");
    HRClip clip(neverStop);
    QCOMPARE(clip.open(writeFile(path("broken.mkv"), content)), QString());
    QCOMPARE(numbersOf(readAll(&clip)), (std::vector<int>{ 0, 1, 3, 4, 5, 6, 7 }));
}

void tst_HRClip::readPicture_returnsNull_whenAskedToStop()
{
    bool stop = false;
    HRClip clip([&stop] { return stop; });
    QCOMPARE(clip.open(TestClip().write(path("stop.mp4"))), QString());
    QVERIFY(!clip.readPicture().isNull());
    stop = true;
    QVERIFY(clip.readPicture().isNull());
}

void tst_HRClip::open_namesWhatFailed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("failure");
    QTest::newRow("missing") << path("missing.mp4") << "Could not open media at: %1";
    const QByteArray sound
        = QByteArray::fromHex("52494646641f000057415645666d74201000000001000100401f0000401f0000"
                              "0100080064617461401f0000")
        + QByteArray(8000, char(0x80));
    QTest::newRow("sound alone") << writeFile(path("sound.wav"), sound)
                                 << "Could not find a video stream in %1";
    TestClip header;
    header.codec = "mpeg4";
    header.options = "";
    header.pictures = 0;
    header.fileOptions = "movflags=empty_moov+frag_keyframe";
    QTest::newRow("header alone") << header.write(path("header.mp4"))
                                  << "Could not get a swscale context for %1";
    // One image of a pixel on a screen of 60000 x 60000.
    const QByteArray huge = QByteArray::fromHex("47494638396160ea60ea800000000000ffffff"
                                                "2c00000000010001000002024401003b");
    QTest::newRow("huge") << writeFile(path("huge.gif"), huge)
                          << "Could not allocate rgb frame in %1";
}

void tst_HRClip::open_namesWhatFailed()
{
    QFETCH(QString, file);
    HRClip clip(neverStop);
    QTEST(clip.open(file), "failure");
    QVERIFY(!clip.isOpen());
}

void tst_HRClip::open_refusesLargePictures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("codec");
    QTest::newRow("size in the header") << "large.mp4" << QByteArray("libx264");
    QTest::newRow("size in the stream") << "large.h264" << QByteArray("libx264");
    QTest::newRow("size in packets") << "large.ts" << QByteArray("mpeg2video");
    QTest::newRow("streams in packets") << "large.flv" << QByteArray("libx264");
    QTest::newRow("GIF") << "large.gif" << QByteArray("gif");
    QTest::newRow("still picture") << "large.webp" << QByteArray("libwebp");
}

void tst_HRClip::open_refusesLargePictures()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, codec);
    TestClip encoded;
    encoded.size = QSize(320, 200);
    encoded.codec = codec;
    encoded.format = codec == "gif" ? "gray" : "yuv420p";
    encoded.rate = 25;
    encoded.options = "";
    encoded.pictures = codec == "libwebp" ? 1 : 8;
    const QString file = encoded.write(path(name));
    HRClip clip(neverStop);
    QCOMPARE(clip.open(file, 320 * 200), QString());
    QCOMPARE(numbersOf(readAll(&clip)), upTo(encoded.pictures));
    QVERIFY(clip.failure().isNull());
    QCOMPARE(clip.open(file, 320 * 200 - 1), QString("Could not allocate rgb frame in %1"));
    QVERIFY(!clip.isOpen());
}

void tst_HRClip::readPicture_ends_whenAPictureIsTooLarge_data()
{
    QTest::addColumn<QSize>("larger");
    QTest::newRow("a little") << QSize(64, 64);
    QTest::newRow("more than FFmpeg is told to decode") << QSize(2640, 1600);
}

void tst_HRClip::readPicture_ends_whenAPictureIsTooLarge()
{
    QFETCH(QSize, larger);
    TestClip encoded;
    const QByteArray small = contentOf(encoded.write(path("small.h264")));
    encoded.size = larger;
    const QByteArray large = contentOf(encoded.write(path("large.h264")));
    HRClip clip(neverStop);
    QCOMPARE(clip.open(writeFile(path("grows.h264"), small + large + small), 64 * 48), QString());
    const std::vector<int> numbers = numbersOf(readAll(&clip));
    // What the decoder still held is lost where it does not take the size.
    QVERIFY2(numbers.size() >= 4, qPrintable(QString::number(numbers.size())));
    QCOMPARE(numbers, upTo(int(std::min(numbers.size(), size_t(encoded.pictures)))));
    QCOMPARE(clip.failure(), QString("Could not allocate rgb frame in %1"));
    QCOMPARE(clip.open(path("small.h264"), 64 * 48), QString());
    QVERIFY(clip.failure().isNull());
}

void tst_HRClip::open_replacesWhatWasOpen()
{
    TestClip encoded;
    HRClip clip(neverStop);
    QCOMPARE(clip.open(encoded.write(path("first.mp4"))), QString());
    clip.readPicture();
    encoded.size = QSize(32, 32);
    encoded.pictures = 3;
    QCOMPARE(clip.open(encoded.write(path("second.mp4"))), QString());
    QCOMPARE(clip.facts().size, QSize(32, 32));
    QCOMPARE(numbersOf(readAll(&clip)), upTo(3));
    QVERIFY(!clip.open(path("missing.mp4")).isNull());
    QVERIFY(!clip.isOpen());
}

void tst_HRClip::seek_goesOnFromThere()
{
    TestClip encoded;
    encoded.options = "g=1:crf=12"; // every picture can be started from
    encoded.pictures = 20;
    encoded.rate = 10;
    HRClip clip(neverStop);
    QCOMPARE(clip.open(encoded.write(path("seek.mp4"))), QString());
    readAll(&clip);
    clip.seek(1.5, true);
    QCOMPARE(numbersOf(readAll(&clip)), (std::vector<int>{ 15, 16, 17, 18, 19 }));
    clip.seek(0.0, true);
    QCOMPARE(numbersOf(readAll(&clip)), upTo(20));
    clip.seek(qInf(), false);
    clip.seek(qQNaN(), true);
    clip.seek(1e300, true);
}

void tst_HRClip::restart_keepsWhatTheDecoderHolds()
{
    TestClip encoded;
    encoded.pictures = 20;
    HRClip clip(neverStop);
    QCOMPARE(clip.open(encoded.write(path("restart.mp4"))), QString());
    for (int i = 0; i < 5; ++i)
        QCOMPARE(TestClip::numberOf(clip.readPicture()), i);
    clip.restart();
    std::vector<int> numbers = numbersOf(readAll(&clip));
    const auto again = std::find(numbers.begin(), numbers.end(), 0);
    // B pictures: the decoder has read ahead of what it gave out.
    QVERIFY(again != numbers.begin());
    QCOMPARE(numbers.front(), 5);
    QCOMPARE(std::vector<int>(again, numbers.end()), upTo(20));
}

void tst_HRClip::restart_startsAnew_whenTheDecoderIsDrained()
{
    TestClip encoded;
    encoded.pictures = 20;
    HRClip clip(neverStop);
    QCOMPARE(clip.open(encoded.write(path("restart.mp4"))), QString());
    QCOMPARE(numbersOf(readAll(&clip)), upTo(20));
    clip.restart();
    QCOMPARE(numbersOf(readAll(&clip)), upTo(20));
}

void tst_HRClip::damagedFiles_neitherCrashNorHang_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("codec");
    QTest::newRow("mp4") << "damaged.mp4" << QByteArray("libx264");
    QTest::newRow("mkv") << "damaged.mkv" << QByteArray("mpeg4");
    QTest::newRow("avi") << "damaged.avi" << QByteArray("mjpeg");
    QTest::newRow("ts") << "damaged.ts" << QByteArray("mpeg2video");
}

void tst_HRClip::damagedFiles_neitherCrashNorHang()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, codec);
    TestClip encoded;
    encoded.codec = codec;
    encoded.options = "";
    encoded.rate = 25;
    encoded.format = codec == "mjpeg" ? "yuvj420p" : "yuv420p";
    const QByteArray whole = contentOf(encoded.write(path(name), &drawing));
    std::mt19937 random(11);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 40; ++i) {
        QByteArray damaged
            = whole.left(whole.size() - int(random() % 2 * (random() % whole.size())));
        for (int flips = int(random() % 30); flips > 0; --flips)
            damaged[int(random() % damaged.size())] = char(random());
        HRClip clip(neverStop);
        if (clip.open(writeFile(path(name), damaged)).isNull())
            readAll(&clip);
    }
    QVERIFY2(timer.elapsed() < 60000, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

QTEST_GUILESS_MAIN(tst_HRClip)
#include "tst_HRClip.moc"
