// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/SignalCounter.h"
#include "support/TestClip.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QTemporaryDir>
#include <QtTest>

#include <malloc.h>

using namespace Hintreels;

/// In a process of its own, whose peak of memory nothing else has raised.
class tst_ClipMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void largeGif_takesNoMoreThanAFewOfItsPictures();
};

namespace {

/// A line of /proc/self/status, in bytes.
double statusOf(const QByteArray &name)
{
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no status of this process");
    const QByteArray text = file.readAll();
    const int start = text.indexOf(name) + name.size();
    return text.mid(start, text.indexOf("kB", start) - start).trimmed().toDouble() * 1024;
}

void forgetPeak()
{
    malloc_trim(0);
    QFile file("/proc/self/clear_refs");
    if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
        qFatal("cannot reset the peak of memory");
}

/// One colour with a square that moves.
QImage movingSquare(const QSize &size, int number)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(qRgb(200, 200, 200));
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            picture.setPixel(number * 60 + x, number * 40 + y, qRgb(40, 40, 40));
    return picture;
}

} // namespace

void tst_ClipMemory::largeGif_takesNoMoreThanAFewOfItsPictures()
{
    TestClip encoded;
    encoded.size = QSize(3000, 3000);
    encoded.pictures = 40;
    encoded.rate = 25;
    encoded.codec = "gif";
    encoded.format = "gray";
    encoded.options = "";
    QTemporaryDir directory;
    const QUrl url
        = QUrl::fromLocalFile(encoded.write(directory.filePath("large.gif"), &movingSquare));
    HRVideoSourceFFMPEG source;
    SignalCounter ended(&source, &HRVideoSource::streamEnded);
    forgetPeak();
    const double before = statusOf("VmRSS:");

    QVERIFY(source.setSource(url));
    source.start();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);

    QCOMPARE(source.totalFrameCount(), size_t(encoded.pictures));
    const double inPictures = (statusOf("VmHWM:") - before) / (3000.0 * 3000.0 * 4.0);
    QVERIFY2(inPictures <= 3.5, qPrintable(QString::number(inPictures)));
}

QTEST_GUILESS_MAIN(tst_ClipMemory)
#include "tst_ClipMemory.moc"
