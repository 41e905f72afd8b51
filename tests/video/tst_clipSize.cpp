// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestPackage.h"
#include "video/clipSize_p.h"

#include <QtTest>

#include <future>

using namespace Hintreels;

class tst_clipSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clipSize_isThatOfItsPictures_data();
    void clipSize_isThatOfItsPictures();
    void clipSize_isUpright_data();
    void clipSize_isUpright();
    void clipSize_isEmpty_whenItIsNoClip_data();
    void clipSize_isEmpty_whenItIsNoClip();
    void clipSize_isEmpty_whenAskedToStop_data();
    void clipSize_isEmpty_whenAskedToStop();
    void clipSize_isTheSame_onManyThreads();
};

void tst_clipSize::clipSize_isThatOfItsPictures_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("MP4") << "clip.mp4";
    QTest::newRow("Matroska") << "clip.mkv";
    QTest::newRow("Flash, whose header names no streams") << "clip.flv";
    QTest::newRow("transport stream without a header") << "clip.ts";
}

void tst_clipSize::clipSize_isThatOfItsPictures()
{
    QFETCH(QString, name);
    TestPackages files;
    TestClip clip;
    clip.size = QSize(90, 50);

    QCOMPARE(clipSize(clip.write(files.path() + "/" + name)), QSize(90, 50));
}

void tst_clipSize::clipSize_isUpright_data()
{
    QTest::addColumn<QSize>("pixel");
    QTest::addColumn<QVector<int>>("turn");
    QTest::addColumn<QSize>("size");

    QTest::newRow("turned") << QSize() << QVector<int>{ 0, 1, -1, 0 } << QSize(48, 96);
    QTest::newRow("turned by half") << QSize() << QVector<int>{ -1, 0, 0, -1 } << QSize(96, 48);
    QTest::newRow("wide pixels") << QSize(4, 3) << QVector<int>() << QSize(128, 48);
    QTest::newRow("wide pixels, turned")
        << QSize(4, 3) << QVector<int>{ 0, -1, 1, 0 } << QSize(48, 128);
}

void tst_clipSize::clipSize_isUpright()
{
    QFETCH(QSize, pixel);
    QFETCH(QVector<int>, turn);
    TestPackages files;
    TestClip clip;
    clip.size = QSize(96, 48);
    clip.pixel = pixel;
    clip.turn = turn;

    QTEST(clipSize(clip.write(files.path() + "/clip.mp4")), "size");
}

void tst_clipSize::clipSize_isEmpty_whenItIsNoClip_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("text") << QByteArray("not a clip");
    QTest::newRow("playlist") << QByteArray("#EXTM3U\n#EXTINF:1,\nclip.mp4\n");
}

void tst_clipSize::clipSize_isEmpty_whenItIsNoClip()
{
    QFETCH(QByteArray, content);
    TestPackages files;

    QVERIFY(clipSize(files.write("clip.mp4", content)).isEmpty());
    QVERIFY(clipSize(files.path()).isEmpty());
    QVERIFY(clipSize("Resources").isEmpty());
}

void tst_clipSize::clipSize_isEmpty_whenAskedToStop_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("with a header") << "clip.mp4";
    QTest::newRow("without a header") << "clip.ts";
}

void tst_clipSize::clipSize_isEmpty_whenAskedToStop()
{
    QFETCH(QString, name);
    TestPackages files;
    const QString path = TestClip().write(files.path() + "/" + name);

    QVERIFY(clipSize(path, [] { return true; }).isEmpty());
    QCOMPARE(clipSize(path, [] { return false; }), TestClip().size);
}

void tst_clipSize::clipSize_isTheSame_onManyThreads()
{
    TestPackages files;
    TestClip clip;
    clip.size = QSize(90, 50);
    const QString path = clip.write(files.path() + "/clip.ts");
    std::vector<std::future<QSize>> sizes;
    for (int i = 0; i < 16; ++i)
        sizes.push_back(std::async(std::launch::async, [path] { return clipSize(path); }));
    for (std::future<QSize> &size : sizes)
        QCOMPARE(size.get(), QSize(90, 50));
}

QTEST_APPLESS_MAIN(tst_clipSize)
#include "tst_clipSize.moc"
