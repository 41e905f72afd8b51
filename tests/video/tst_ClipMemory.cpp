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
    void initTestCase();
    void largeGif_takesTwoOfItsPictures_whileItIsDecoded();
    void largeGif_takesOneMore_whileItIsShown();

private:
    QTemporaryDir m_directory;
    TestClip m_encoded;
    QUrl m_url;
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

/// The most memory that the process has taken since, in pictures.
class PeakOfMemory
{
public:
    PeakOfMemory()
    {
        malloc_trim(0);
        QFile file("/proc/self/clear_refs");
        if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
            qFatal("cannot reset the peak of memory");
        m_before = statusOf("VmRSS:");
    }

    double pictures() const { return (statusOf("VmHWM:") - m_before) / (3000.0 * 3000.0 * 4.0); }

private:
    double m_before;
};

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

void tst_ClipMemory::initTestCase()
{
    m_encoded.size = QSize(3000, 3000);
    m_encoded.pictures = 40;
    m_encoded.rate = 25;
    m_encoded.codec = "gif";
    m_encoded.format = "gray";
    m_encoded.options = "";
    m_url = QUrl::fromLocalFile(m_encoded.write(m_directory.filePath("large.gif"), &movingSquare));
}

void tst_ClipMemory::largeGif_takesTwoOfItsPictures_whileItIsDecoded()
{
    HRVideoSourceFFMPEG source;
    SignalCounter ended(&source, &HRVideoSource::streamEnded);
    const PeakOfMemory peak;
    QVERIFY(source.setSource(m_url));
    source.start();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);

    QCOMPARE(source.totalFrameCount(), size_t(m_encoded.pictures));
    QVERIFY2(peak.pictures() < 2.5, qPrintable(QString::number(peak.pictures())));
}

void tst_ClipMemory::largeGif_takesOneMore_whileItIsShown()
{
    HRVideoSourceFFMPEG source;
    SignalCounter ended(&source, &HRVideoSource::streamEnded);
    HRVideoFrame shown;
    const PeakOfMemory peak;
    QVERIFY(source.setSource(m_url));
    source.start();
    const auto showLast = [&] {
        const size_t count = source.totalFrameCount();
        shown = HRVideoFrame();
        shown = source.getFrame(unsigned(count == 0 ? 0 : count - 1));
        return ended.count() == 1;
    };
    QTRY_VERIFY_WITH_TIMEOUT(showLast(), 60000);

    QCOMPARE(source.totalFrameCount(), size_t(m_encoded.pictures));
    QVERIFY2(peak.pictures() < 3.5, qPrintable(QString::number(peak.pictures())));
}

QTEST_GUILESS_MAIN(tst_ClipMemory)
#include "tst_ClipMemory.moc"
