// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRControlFileProbe_p.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QtTest>

using namespace Hintreels;

class tst_HRControlFileProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isControlFile_looksAtTheFirstElement_data();
    void isControlFile_looksAtTheFirstElement();
    void isControlFile_readsPiecesOf1024Bytes_data();
    void isControlFile_readsPiecesOf1024Bytes();
    void isControlFile_isQuick_whenLinesHoldNothing();
    void isControlFile_readsNoFurther_whenItHasFound();
};

void tst_HRControlFileProbe::isControlFile_looksAtTheFirstElement_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isControlFile");
    const auto row = [](const char *name, const QByteArray &content, bool expected) {
        QTest::newRow(name) << content << expected;
    };
    row("with attribute", "<hintreels locale=\"en_US\">", true);
    row("bare", "<hintreels>", true);
    row("without children", "<hintreels/>", true);
    row("blank before the end", "<hintreels \t >", true);
    row("after a declaration", "<?xml version=\"1.0\"?>\n<hintreels>", true);
    row("after one on the same line", "<?xml version=\"1.0\"?><hintreels>", true);
    row("after a comment", "<!-- ours -->\r\n\r\n<hintreels>", true);
    row("after a byte-order mark", "\xEF\xBB\xBF<hintreels>", true);
    row("after a document type", "<!DOCTYPE hintreels>\n<hintreels>", true);
    row("text before it", "hello < hello\n<hintreels>", true);
    row("empty file", "", false);
    row("no element", "hintreels\n", false);
    row("singular", "<hintreel key=\"a\">", false);
    row("capital", "<Hintreels>", false);
    row("prefixed", "<x:hintreels>", false);
    row("with a prefix of this name", "<hintreels:x a=\"b\">", false);
    row("longer name", "<hintreelsx>", false);
    row("second element", "<a>\n<hintreels>", false);
    row("element in a comment comes first", "<!-- <b> -->\n<hintreels>", false);
    row("attributes on the next line", "<hintreels\n  locale=\"de\">", false);
    row("cut after the name by the file's end", "<hintreels", false);
    row("letter of another script is a word", "<hintreels \xC3\xA9=\"1\">", true);
    row("name with a letter of another script", "<hintreels\xC3\xA9 >", false);
}

void tst_HRControlFileProbe::isControlFile_looksAtTheFirstElement()
{
    QFETCH(QByteArray, content);
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTEST(HRControlFileProbe().isControlFile(file), "isControlFile");
}

void tst_HRControlFileProbe::isControlFile_readsPiecesOf1024Bytes_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("isControlFile");
    const int length = int(qstrlen("<hintreels l"));
    QTest::newRow("ends with the piece") << 1024 - length << true;
    QTest::newRow("ends one byte later, the name alone is left") << 1025 - length << false;
    QTest::newRow("letter starts the next piece") << 1024 - length + 1 << false;
    QTest::newRow("name starts the next piece") << 1024 << true;
    QTest::newRow("name starts the piece after that") << 2048 << true;
    QTest::newRow("name is cut and not found again") << 1024 - 1 << false;
}

void tst_HRControlFileProbe::isControlFile_readsPiecesOf1024Bytes()
{
    QFETCH(int, position);
    QByteArray content = QByteArray(position, ' ') + "<hintreels locale=\"en_US\">";
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTEST(HRControlFileProbe().isControlFile(file), "isControlFile");
}

void tst_HRControlFileProbe::isControlFile_isQuick_whenLinesHoldNothing()
{
    QByteArray content = QByteArray(20'000'000, '\n') + "<hintreels>";
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(HRControlFileProbe().isControlFile(file));
    // Matching every line takes several times as long.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void tst_HRControlFileProbe::isControlFile_readsNoFurther_whenItHasFound()
{
    QByteArray content = "<hintreels>\n" + QByteArray(100, '\n');
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    HRControlFileProbe().isControlFile(file);
    QCOMPARE(file.pos(), qint64(12));
}

QTEST_GUILESS_MAIN(tst_HRControlFileProbe)
#include "tst_HRControlFileProbe.moc"
