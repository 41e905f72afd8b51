// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestPackage.h"
#include "video/mediaFile_p.h"

#include <QImage>
#include <QProcess>
#include <QtTest>

using namespace Hintreels;

class tst_mediaFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silenceFFmpeg_leavesALaterLevelAlone();
    void opening_printsNothing_whateverComesFirst_data();
    void opening_printsNothing_whateverComesFirst();
    void opening_opensOneFile_data();
    void opening_opensOneFile();
};

namespace {

/// Files that FFmpeg's pattern and plane readers would take along.
void writeCompanions(const TestPackages &files)
{
    for (const char *name : { "a.U", "a.V", "still0.png", "still1.png", "still001.png",
             "stillA.png", "1.png", "2.png", "clip.idx", "clip.sub", "clip.001" })
        files.write(name, "companion");
}

/// Noise, which takes more than the bytes by which FFmpeg knows a JPEG.
QImage stillPicture()
{
    QImage picture(300, 200, QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, 0xff000000u | (noise = noise * 1664525u + 1013904223u) >> 8);
    return picture;
}

/// The distinct files below @p directory that a traced process asked to open.
QStringList openedFiles(const QString &trace, const QString &directory)
{
    QFile file(trace);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no trace");
    QStringList opened;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const int start = line.indexOf('"') + 1;
        const QString path
            = QDir::cleanPath(QString::fromUtf8(line.mid(start, line.indexOf('"', start) - start)));
        if (path.startsWith(directory + "/") && !opened.contains(path))
            opened.append(path);
    }
    return opened;
}

} // namespace

void tst_mediaFile::silenceFFmpeg_leavesALaterLevelAlone()
{
    silenceFFmpeg();
    QCOMPARE(av_log_get_level(), AV_LOG_QUIET);
    av_log_set_level(AV_LOG_ERROR); // as a host may that uses FFmpeg too
    silenceFFmpeg();
    QCOMPARE(av_log_get_level(), AV_LOG_ERROR);
}

void tst_mediaFile::opening_printsNothing_whateverComesFirst_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("clip") << "clip";
    QTest::newRow("size") << "size";
    QTest::newRow("captions") << "captions";
}

void tst_mediaFile::opening_printsNothing_whateverComesFirst()
{
    QFETCH(QString, way);
    TestPackages files;
    // FFmpeg misses its "moov" part and says so, unless it is told not to.
    const QByteArray headless = QByteArray("\0\0\0\x10"
                                           "ftypmp42\0\0\0\0",
                                    16)
        + QByteArray(200, '\0');
    QProcess process;
    process.start(OPEN_MEDIA, { way, files.write("clip.mp4", headless) });
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void tst_mediaFile::opening_opensOneFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<QByteArray>("answer");
    const auto row
        = [](const char *title, const QString &name, const char *way, const char *answer) {
              QTest::newRow(title) << name << QByteArray(way) << QByteArray(answer);
          };
    row("clip", "clip.mp4", "clip", "8\n");
    row("size of a clip", "clip.mp4", "size", "64x48\n");
    row("still picture", "still.png", "clip", "1\n");
    row("size of a still picture", "still.png", "size", "300x200\n");
    row("still picture with a number", "0.png", "clip", "1\n");
    row("JPEG, which is known by its name", "still.jpg", "clip", "1\n");
    row("pattern of numbers", "still%d.png", "clip", "0\n");
    row("pattern of three digits", "still%03d.jpg", "clip", "0\n");
    row("pattern of anything", "still*.png", "clip", "0\n");
    row("pattern of a letter", "still?.jpg", "clip", "0\n");
    row("pattern of choices", "still{A,B}.png", "clip", "0\n");
    row("called as the first of three planes", "a.Y", "clip", "1\n");
    row("captions", "clip.vtt", "captions", "1\n");
}

void tst_mediaFile::opening_opensOneFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, way);
    QFETCH(QByteArray, answer);
    TestPackages files;
    writeCompanions(files);
    const QString path = files.path() + "/" + name;
    if (name.endsWith(".mp4"))
        TestClip().write(path);
    else if (name.endsWith(".vtt"))
        files.write(name, "WEBVTT\n\n00:00.000 --> 00:01.000\nOne\n");
    else
        QVERIFY(stillPicture().save(path, name.endsWith(".jpg") ? "JPG" : "PNG", 100));
    const QString trace = files.path() + ".trace";

    QProcess process;
    // The leak check traces too, and a process has one tracer.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":detect_leaks=0");
    process.setProcessEnvironment(environment);
    process.start(
        "strace", { "-f", "-e", "trace=open,openat,creat", "-o", trace, OPEN_MEDIA, way, path });
    QVERIFY(process.waitForFinished());
    const QStringList opened = openedFiles(trace, files.path());
    QFile::remove(trace);

    QCOMPARE(process.readAllStandardOutput(), answer);
    for (const QString &file : opened)
        QCOMPARE(file, path);
    QVERIFY(!opened.isEmpty() || answer == "0\n");
}

QTEST_GUILESS_MAIN(tst_mediaFile)
#include "tst_mediaFile.moc"
