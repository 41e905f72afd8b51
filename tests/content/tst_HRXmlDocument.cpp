// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlDocument_p.h"

#include <QBuffer>
#include <QtTest>

using namespace Hintreels;

class tst_HRXmlDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void next_returnsTextThenEnd();
    void unread_shrinksWithReading();
    void constructor_takesWholeDevice();
    void constructor_takesOnlyWhatIsLeft();
    void constructor_decodesBytesAsSourceDoes_data();
    void constructor_decodesBytesAsSourceDoes();
    void guard_knowsSize();
};

void tst_HRXmlDocument::next_returnsTextThenEnd()
{
    QXmlInputSource source;
    source.setData(QString("ab"));
    HRXmlDocument document(&source);
    QCOMPARE(document.next(), QChar('a'));
    QCOMPARE(document.next(), QChar('b'));
    QCOMPARE(document.next(), QChar(QXmlInputSource::EndOfDocument));
    QCOMPARE(document.next(), QChar(QXmlInputSource::EndOfDocument));
    QCOMPARE(document.guard().refusal(), QString());
}

void tst_HRXmlDocument::unread_shrinksWithReading()
{
    QXmlInputSource source;
    source.setData(QString("ab"));
    HRXmlDocument document(&source);
    QCOMPARE(document.unread().toString(), QString("ab"));
    document.next();
    QCOMPARE(document.unread().toString(), QString("b"));
    document.next();
    document.next();
    QCOMPARE(document.unread().toString(), QString());
}

void tst_HRXmlDocument::constructor_takesWholeDevice()
{
    const QString text = QString("ä").repeated(10000);
    QBuffer buffer;
    buffer.setData(text.toUtf8());
    QXmlInputSource source(&buffer);
    const HRXmlDocument document(&source);
    QCOMPARE(document.unread().toString(), text);
}

void tst_HRXmlDocument::constructor_takesOnlyWhatIsLeft()
{
    QXmlInputSource source;
    source.setData(QString("abc"));
    source.next();
    const HRXmlDocument document(&source);
    QCOMPARE(document.unread().toString(), QString("bc"));
}

void tst_HRXmlDocument::constructor_decodesBytesAsSourceDoes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("UTF-8") << QByteArray("<a>\xC3\xA4</a>");
    QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF<a/>");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE<\0a\0/\0>\0", 10);
    QTest::newRow("declared encoding")
        << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>");
    QTest::newRow("broken UTF-8") << QByteArray("<a>\xC3</a>");
    QTest::newRow("sign for the end of the document") << QByteArray("<a>\xEF\xBF\xBF</a>");
    QTest::newRow("sign for the end of data") << QByteArray("<a>\xEF\xBF\xBE</a>");
    QTest::newRow("long") << QByteArray("<a>\xC3\xA4</a>").repeated(1000);
}

void tst_HRXmlDocument::constructor_decodesBytesAsSourceDoes()
{
    QFETCH(QByteArray, bytes);
    QBuffer buffer(&bytes);
    QXmlInputSource source(&buffer);
    const HRXmlDocument fromSource(&source);
    const HRXmlDocument fromBytes(bytes);
    QCOMPARE(fromBytes.unread().toString(), fromSource.unread().toString());
}

void tst_HRXmlDocument::guard_knowsSize()
{
    const QString body("&e;");
    QXmlInputSource source;
    source.setData(QString(100000, 'x'));
    HRXmlDocument document(&source);
    QVERIFY(document.guard().allowsEntity("e", QString(10000000, 'x')));
    QVERIFY(document.guard().allowsBody(body));
    QVERIFY(document.guard().allowsEntity("f", "&e;&e;"));
    const QString larger("&f;");
    QVERIFY(!document.guard().allowsBody(larger));
}

QTEST_GUILESS_MAIN(tst_HRXmlDocument)
#include "tst_HRXmlDocument.moc"
