// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlFileProbe_p.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

using namespace Hintreels;

class tst_HRControlFileProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startTagInAscii_agreesWithTheExpression();
    void isControlFile_looksAtTheFirstElement_data();
    void isControlFile_looksAtTheFirstElement();
    void isControlFile_readsPiecesOf1024Bytes_data();
    void isControlFile_readsPiecesOf1024Bytes();
    void isControlFile_readsByteByByte();
    void isControlFile_isQuick_whenLinesHoldNothing();
    void isControlFile_readsNoFurther_whenItHasFound();
};

namespace {

/// Feeds the content in reads of uneven size, as pipes and network drives do.
bool isControlFile(const QByteArray &content)
{
    int position = 0;
    int round = 0;
    return HRControlFileProbe().isControlFile([&](char *buffer, qint64 size) {
        const qint64 wanted = qMin<qint64>(size, 1 + (++round * 977) % 1500);
        const QByteArray part = content.mid(position, int(wanted));
        memcpy(buffer, part.constData(), size_t(part.size()));
        position += part.size();
        return qint64(part.size());
    });
}

} // namespace

void tst_HRControlFileProbe::startTagInAscii_agreesWithTheExpression()
{
    QRegExp expression("<(\\w+)\\s*(\\w|>|/>)");
    const QByteArray letters("<<<<<<aazzAZZ_0099>>// \t\n\v\x1f\x7f:!?-@[`{");
    QRandomGenerator random(20261121);
    for (int round = 0; round < 200'000; ++round) {
        QByteArray text;
        const int length = random.bounded(12);
        for (int i = 0; i < length; ++i)
            text += letters.at(random.bounded(letters.size()));
        const std::string_view found = startTagInAscii({ text.constData(), size_t(text.size()) });
        expression.indexIn(QString::fromLatin1(text));
        QCOMPARE(QString::fromLatin1(found.data(), int(found.size())), expression.cap(1));
    }
}

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
    QTEST(isControlFile(content), "isControlFile");
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
    QTEST(isControlFile(content), "isControlFile");
}

void tst_HRControlFileProbe::isControlFile_readsByteByByte()
{
    QByteArray content = "<?xml version=\"1.0\"?>\n<hintreels locale=\"en_US\">";
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(HRControlFileProbe().isControlFile(
        [&](char *buffer, qint64) { return file.read(buffer, 1); }));
}

void tst_HRControlFileProbe::isControlFile_isQuick_whenLinesHoldNothing()
{
    QByteArray content = QByteArray(20'000'000, '\n') + "<hintreels>";
    QElapsedTimer timer;
    timer.start();
    QVERIFY(isControlFile(content));
    // Much more than the counters of scripts/coverage take.
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
}

void tst_HRControlFileProbe::isControlFile_readsNoFurther_whenItHasFound()
{
    QByteArray content = "<hintreels>\n" + QByteArray(100'000, '\n');
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(HRControlFileProbe().isControlFile(
        [&](char *buffer, qint64 size) { return file.read(buffer, size); }));
    QVERIFY(file.pos() <= 2048);
}

QTEST_GUILESS_MAIN(tst_HRControlFileProbe)
#include "tst_HRControlFileProbe.moc"
