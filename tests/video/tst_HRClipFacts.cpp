// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClip_p.h"

#include "support/TestClip.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Hintreels;

namespace {

bool neverStop()
{
    return false;
}

} // namespace

/// What a clip says of its file, apart from its pictures.
class tst_HRClipFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facts_describeTheClip();
    void pictureTime_isTheFiles_data();
    void pictureTime_isTheFiles();

private:
    QString path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};

void tst_HRClipFacts::facts_describeTheClip()
{
    TestClip encoded;
    encoded.size = QSize(90, 50);
    encoded.rate = 20;
    encoded.pictures = 10;
    HRClip clip(neverStop);
    QCOMPARE(clip.open(encoded.write(path("facts.mp4"))), QString());
    const HRClipFacts facts = clip.facts();
    QCOMPARE(facts.size, QSize(90, 50));
    QCOMPARE(facts.duration, 0.5);
    QCOMPARE(facts.frameRate, 20.0);
    QVERIFY(facts.timeBase >= 0.0);
}

void tst_HRClipFacts::pictureTime_isTheFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("GIF") << "times.gif" << QByteArray("gif") << QByteArray("rgb8");
    QTest::newRow("MP4 with B pictures")
        << "times.mp4" << QByteArray("libx264") << QByteArray("yuv420p");
    QTest::newRow("Matroska") << "times.mkv" << QByteArray("libx264") << QByteArray("yuv420p");
}

void tst_HRClipFacts::pictureTime_isTheFiles()
{
    QFETCH(QString, name);
    TestClip encoded;
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, format);
    encoded.codec = codec;
    encoded.format = format;
    if (codec == "gif")
        encoded.options.clear();
    encoded.rate = 100;
    encoded.times = { 0, 5, 105, 110, 310 };
    encoded.pictures = encoded.times.size();
    HRClip clip(&neverStop);
    QVERIFY(clip.open(encoded.write(path(name))).isNull());

    for (int expected : encoded.times) {
        QVERIFY(!clip.readPicture().isNull());
        QCOMPARE(qRound(100 * clip.pictureTime().start), expected);
    }
    QVERIFY(clip.pictureTime().length >= 0.0);
}

QTEST_APPLESS_MAIN(tst_HRClipFacts)
#include "tst_HRClipFacts.moc"
