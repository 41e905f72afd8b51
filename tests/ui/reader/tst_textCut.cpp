// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/textCut_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_textCut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutText_cutsBetweenCharacters_data();
    void cutText_cutsBetweenCharacters();
    void cutText_endsInAnEllipsis_whereAHugeTextIsCut();
    void cutText_keepsCharactersWhole_farInAText_data();
    void cutText_keepsCharactersWhole_farInAText();
};

void tst_textCut::cutText_cutsBetweenCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("longest");
    QTest::addColumn<QString>("expected");

    const QString pen = QString::fromUtf8("🖊");
    const QString marked = QString::fromUtf8("a\xcc\x81\xcc\xa3"); // two marks on one letter
    const QString family = QString::fromUtf8("👨‍👩‍👧"); // three emoji and two joiners
    const QString flag = QString::fromUtf8("🇩🇪"); // two pairs
    const QString jamo = QString::fromUtf8("\u1100\u1161\u11a8"); // one syllable of three
    const QString hand = QString::fromUtf8("👋🏽"); // with its colour
    QTest::newRow("empty") << "" << 1 << "";
    QTest::newRow("as long as may be") << "abcd" << 4 << "abcd";
    QTest::newRow("too long by one") << "abcde" << 4 << QString::fromUtf8("abc…");
    QTest::newRow("pair that fits") << pen + pen << 4 << pen + pen;
    QTest::newRow("pair that just fits") << pen + "abc" << 3 << pen + QString::fromUtf8("…");
    QTest::newRow("pair that is too long") << "a" + pen + "b" << 3 << QString::fromUtf8("a…");
    QTest::newRow("marks") << "b" + marked + "c" << 4 << QString::fromUtf8("b…");
    QTest::newRow("marks that fit")
        << "b" + marked + "cd" << 5 << "b" + marked + QString::fromUtf8("…");
    for (int longest = 3; longest <= 9; ++longest)
        QTest::addRow("family of 8 at %d", longest)
            << "a" + family + "b" << longest << QString::fromUtf8("a…");
    QTest::newRow("family that fits")
        << "a" + family + "bc" << 10 << "a" + family + QString::fromUtf8("…");
    QTest::newRow("flag") << "a" + flag + "b" << 5 << QString::fromUtf8("a…");
    QTest::newRow("syllable of jamo") << "a" + jamo + "b" << 4 << QString::fromUtf8("a…");
    QTest::newRow("hand with its colour") << "a" + hand + "b" << 5 << QString::fromUtf8("a…");
    QTest::newRow("line end of two") << "a\r\nb" << 3 << QString::fromUtf8("a…");
    QTest::newRow("nothing fits") << family + "a" << 3 << QString::fromUtf8("…");
    QTest::newRow("a lone half") << QString(3, QChar(0xd83d)) << 2
                                 << QChar(0xd83d) + QString::fromUtf8("…");
}

void tst_textCut::cutText_cutsBetweenCharacters()
{
    QFETCH(QString, text);
    QFETCH(int, longest);
    QFETCH(QString, expected);

    QCOMPARE(cutText(text, longest), expected);
}

void tst_textCut::cutText_endsInAnEllipsis_whereAHugeTextIsCut()
{
    const QString letters(10'000'000, 'a');
    const QString marks = "a" + QString(10'000'000, QChar(0x301));

    QCOMPARE(cutText(letters, 300), QString(299, 'a') + ellipsis);
    QCOMPARE(cutText(marks, 300), QString(ellipsis));
}

void tst_textCut::cutText_keepsCharactersWhole_farInAText_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("character"); // one for a reader, many to the machine

    const QString pairs = QString::fromUtf8("🇩🇪🇫🇷").repeated(300);
    QTest::newRow("flag") << pairs << QString::fromUtf8("🇩🇪");
    QTest::newRow("flag behind a letter") << "a" + pairs << QString::fromUtf8("🇩🇪");
    QTest::newRow("flag behind letters") << QString(1000, 'a') << QString::fromUtf8("🇩🇪");
    QTest::newRow("family") << QString(1000, 'a') << QString::fromUtf8("👨‍👩‍👧");
    QTest::newRow("letter with marks") << QString(1000, ' ') << 'a' + QString(300, QChar(0x301));
    QTest::newRow("letter with a tone in a script without blanks")
        << QString::fromUtf8("ก").repeated(1000) << QString::fromUtf8("ก่");
}

void tst_textCut::cutText_keepsCharactersWhole_farInAText()
{
    QFETCH(QString, before);
    QFETCH(QString, character);
    const QString text = before + character + "b";

    for (int i = 1; i <= character.size(); ++i)
        QCOMPARE(cutText(text, before.size() + i), before + ellipsis);
}

QTEST_MAIN(tst_textCut)
#include "tst_textCut.moc"
