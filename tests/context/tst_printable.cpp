// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/printable_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_printable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printable_escapesWhatForgesLines_data();
    void printable_escapesWhatForgesLines();
};

void tst_printable::printable_escapesWhatForgesLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("plain") << "Größe of /a b/c.xml"
                           << "Größe of /a b/c.xml";
    QTest::newRow("line break") << "a\nERROR:b"
                                << "a\\nERROR:b";
    QTest::newRow("carriage return and tab") << "a\r\tb"
                                             << "a\\r\\tb";
    QTest::newRow("escape sequence") << "\x1b[2J"
                                     << "\\u001b[2J";
    QTest::newRow("zero") << QString::fromLatin1("a\0b", 3) << "a\\u0000b";
    QTest::newRow("second set of controls") << QString(QChar(0x85)) << "\\u0085";
    QTest::newRow("line separator") << QString(QChar(0x2028)) << "\\u2028";
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << "\\u2029";
    QTest::newRow("delete") << QString(QChar(0x7F)) << "\\u007f";
    for (const ushort turn : { 0x202A, 0x202B, 0x202E, 0x2066, 0x2067, 0x2069 })
        QTest::addRow("turn %04x", turn)
            << QString(QChar(turn)) << QString("\\u%1").arg(turn, 0, 16);
    for (const ushort other : { 0x20, 0x7E, 0xA0, 0x2027, 0x202F, 0x2065, 0x206A })
        QTest::addRow("no turn %04x", other) << QString(QChar(other)) << QString(QChar(other));
    QTest::newRow("turned text") << QString(QChar(0x202E)) + "lmx"
                                 << "\\u202elmx";
    QTest::newRow("beyond the first plane") << QString("\U0001F600") << QString("\U0001F600");
}

void tst_printable::printable_escapesWhatForgesLines()
{
    QFETCH(QString, text);
    QTEST(printable(text), "line");
}

QTEST_APPLESS_MAIN(tst_printable)
#include "tst_printable.moc"
