// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipWriter.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

extern "C" {
#include <libavformat/avformat.h>
}

using namespace Sketchpad;

class tst_ClipWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void close_leavesAClipOfAllPictures_atTheirRate();
    void sameClips_areTheSameFile();
    void open_saysWhy_whenTheFileCannotBe();
};

namespace {

const QSize size(64, 48);
const int rate = 30;

bool writeClip(const QString &path, int pictures)
{
    ClipWriter writer(path, size, rate);
    bool written = writer.open();
    QImage picture(size, QImage::Format_RGB32);
    for (int i = 0; written && i < pictures; ++i) {
        picture.fill(QColor::fromHsv(7 * i % 360, 200, 200));
        written = writer.add(picture);
    }
    return written && writer.close();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_ClipWriter::close_leavesAClipOfAllPictures_atTheirRate()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("clip.mp4");
    QVERIFY(writeClip(path, 50));

    AVFormatContext *clip = nullptr;
    QCOMPARE(avformat_open_input(&clip, qPrintable(path), nullptr, nullptr), 0);
    QVERIFY(avformat_find_stream_info(clip, nullptr) >= 0);
    QCOMPARE(clip->nb_streams, 1u);
    const AVStream *stream = clip->streams[0];
    QCOMPARE(stream->codecpar->codec_id, AV_CODEC_ID_H264);
    QCOMPARE(QSize(stream->codecpar->width, stream->codecpar->height), size);
    QCOMPARE(stream->nb_frames, int64_t(50));
    QCOMPARE(av_q2d(stream->avg_frame_rate), double(rate));
    avformat_close_input(&clip);
}

void tst_ClipWriter::sameClips_areTheSameFile()
{
    const QTemporaryDir directory;
    QVERIFY(writeClip(directory.filePath("a.mp4"), 20));
    QVERIFY(writeClip(directory.filePath("b.mp4"), 20));
    QVERIFY(!contentOf(directory.filePath("a.mp4")).isEmpty());
    QCOMPARE(contentOf(directory.filePath("a.mp4")), contentOf(directory.filePath("b.mp4")));
}

void tst_ClipWriter::open_saysWhy_whenTheFileCannotBe()
{
    const QTemporaryDir directory;
    ClipWriter writer(directory.filePath("missing/clip.mp4"), size, rate);
    QVERIFY(!writer.open());
    QCOMPARE(writer.error(), QString("file: No such file or directory"));
}

QTEST_GUILESS_MAIN(tst_ClipWriter)

#include "tst_ClipWriter.moc"
