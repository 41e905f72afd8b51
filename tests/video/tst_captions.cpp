// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"
#include "video/captions_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_captions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readCaptions_returnsTextWithItsTimes();
    void readCaptions_returnsPlainText_data();
    void readCaptions_returnsPlainText();
    void readCaptions_takesMuchFormatting();
    void readCaptions_returnsNothing_whenFileHasNone_data();
    void readCaptions_returnsNothing_whenFileHasNone();
    void readCaptions_readsUpTo100000Bytes();
    void readCaptions_returnsNothing_whenThereIsNoFile();
    void captionFiles_namesTheBestFirst_data();
    void captionFiles_namesTheBestFirst();
};

void tst_captions::readCaptions_returnsTextWithItsTimes()
{
    TestPackages files;
    const QString path = files.write("clip.vtt",
        "WEBVTT\n\n00:00.500 --> 00:02.000\nOne\n\n"
        "second\n00:01:02.250 --> 00:01:03.000\nTwo\n");

    const QVector<HRCaption> captions = readCaptions(path);

    QCOMPARE(captions.size(), 2);
    QCOMPARE(captions[0].start, 0.5);
    QCOMPARE(captions[0].end, 2.0);
    QCOMPARE(captions[0].text, QString("One"));
    QCOMPARE(captions[1].start, 62.25);
    QCOMPARE(captions[1].end, 63.0);
    QCOMPARE(captions[1].text, QString("Two"));
}

void tst_captions::readCaptions_returnsPlainText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << QByteArray("Press, drag, release") << "Press, drag, release";
    QTest::newRow("two lines") << QByteArray("One\nTwo") << "One\nTwo";
    QTest::newRow("bold and italic") << QByteArray("A <b>bold</b> <i>word</i>") << "A bold word";
    QTest::newRow("voice") << QByteArray("<v Ada>Hello</v>") << "Hello";
    QTest::newRow("entities") << QByteArray("1 &lt; 2 &amp; 3") << "1 < 2 & 3";
    QTest::newRow("braces") << QByteArray("{a} and b}") << "{a} and b}";
    QTest::newRow("backslashes") << QByteArray("C:\\a\\{b}") << "C:\\a\\{b}";
    QTest::newRow("a backslash at the end") << QByteArray("{a} \\") << "{a} \\";
    QTest::newRow("an open brace at the end") << QByteArray("a {") << "a {";
    QTest::newRow("other scripts") << QByteArray("Größe, עט") << QString::fromUtf8("Größe, עט");
}

void tst_captions::readCaptions_returnsPlainText()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    TestPackages files;
    const QString path
        = files.write("clip.vtt", "WEBVTT\n\n00:00.000 --> 00:01.000\n" + text + "\n");

    const QVector<HRCaption> captions = readCaptions(path);

    QCOMPARE(captions.size(), 1);
    QCOMPARE(captions[0].text, expected);
}

void tst_captions::readCaptions_takesMuchFormatting()
{
    TestPackages files;
    constexpr int words = 12'000; // nearly as large as a file may be
    const QString path = files.write("clip.vtt",
        "WEBVTT\n\n00:00.000 --> 00:01.000\n" + QByteArray("<i>a</i>").repeated(words) + "\n");
    QCOMPARE(readCaptions(path).value(0).text, QString(words, 'a'));
}

void tst_captions::readCaptions_returnsNothing_whenFileHasNone_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("header only") << QByteArray("WEBVTT\n");
    QTest::newRow("another subtitle format")
        << QByteArray("1\n00:00:00,000 --> 00:00:01,000\nText\n");
    QTest::newRow("a playlist") << QByteArray("#EXTM3U\n#EXTINF:1,\nother.vtt\n");
    QTest::newRow("caption without text") << QByteArray("WEBVTT\n\n00:00.000 --> 00:01.000\n\n");
    QTest::newRow("a file too large for captions")
        << QByteArray("WEBVTT\n\n00:00.000 --> 00:01.000\nText\n\n") + QByteArray(100'000, '\n');
}

void tst_captions::readCaptions_returnsNothing_whenFileHasNone()
{
    QFETCH(QByteArray, content);
    TestPackages files;

    QVERIFY(readCaptions(files.write("clip.vtt", content)).isEmpty());
}

void tst_captions::readCaptions_readsUpTo100000Bytes()
{
    TestPackages files;
    const QByteArray caption = "WEBVTT\n\n00:00.000 --> 00:01.000\nText\n\n";
    const QByteArray largest = caption + QByteArray(100'000 - caption.size(), '\n');
    QCOMPARE(readCaptions(files.write("largest.vtt", largest)).size(), 1);
    QCOMPARE(readCaptions(files.write("larger.vtt", largest + '\n')).size(), 0);
}

void tst_captions::readCaptions_returnsNothing_whenThereIsNoFile()
{
    TestPackages files;

    QVERIFY(readCaptions(files.path() + "/missing.vtt").isEmpty());
    QVERIFY(readCaptions(files.path()).isEmpty());
    QVERIFY(readCaptions("/dev/zero").isEmpty());
    QVERIFY(readCaptions(QString()).isEmpty());
}

void tst_captions::captionFiles_namesTheBestFirst_data()
{
    QTest::addColumn<QString>("clip");
    QTest::addColumn<QStringList>("locales");
    QTest::addColumn<QStringList>("files");

    QTest::newRow("two locales") << "clip.mp4" << QStringList{ "de_DE", "en_US" }
                                 << QStringList{ "clip.de_DE.vtt", "clip.en_US.vtt", "clip.vtt" };
    QTest::newRow("the same locale twice") << "clip.mp4" << QStringList{ "en_US", "en_US" }
                                           << QStringList{ "clip.en_US.vtt", "clip.vtt" };
    QTest::newRow("a plain name") << "clip" << QStringList{ "de_DE" }
                                  << QStringList{ "clip.de_DE.vtt", "clip.vtt" };
    QTest::newRow("in a folder") << "a.b/clip.webm" << QStringList{ "de_DE" }
                                 << QStringList{ "a.b/clip.de_DE.vtt", "a.b/clip.vtt" };
    QTest::newRow("without a suffix") << "a.b/clip" << QStringList{ "de_DE" }
                                      << QStringList{ "a.b/clip.de_DE.vtt", "a.b/clip.vtt" };
}

void tst_captions::captionFiles_namesTheBestFirst()
{
    QFETCH(QString, clip);
    QFETCH(QStringList, locales);
    QFETCH(QStringList, files);
    QVector<QLocale> asked;
    for (const QString &locale : locales)
        asked.append(QLocale(locale));

    QCOMPARE(captionFiles(clip, asked), files);
}

QTEST_APPLESS_MAIN(tst_captions)
#include "tst_captions.moc"
