// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/settings/mnemonics_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_mnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_areMarked_data();
    void texts_areMarked();
};

void tst_mnemonics::texts_areMarked_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("marked");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("first letters")
        << QStringList{ "Show", "Content" } << QStringList{ "&Show", "&Content" };
    QTest::newRow("of a later word") << QStringList{ "Show hints", "Show captions", "Start" }
                                     << QStringList{ "&Show hints", "Show &captions", "S&tart" };
    QTest::newRow("capital or not") << QStringList{ "a", "A" } << QStringList{ "&a", "A (&B)" };
    QTest::newRow("no letter") << QStringList{ "1 %" } << QStringList{ "1 % (&A)" };
    QTest::newRow("ampersand") << QStringList{ "&" } << QStringList{ "&& (&A)" };
    QTest::newRow("Cyrillic") << QStringList{ QString::fromUtf8("Ещё") }
                              << QStringList{ QString::fromUtf8("&Ещё") };
    QTest::newRow("Chinese") << QStringList{ QString::fromUtf8("内容"), QString::fromUtf8("短片") }
                             << QStringList{ QString::fromUtf8("内容 (&A)"),
                                    QString::fromUtf8("短片 (&B)") };
    QStringList letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        letters.append(QChar(letter));
    QStringList marked = letters;
    marked.replaceInStrings(QRegularExpression("^"), "&");
    QTest::newRow("all taken") << letters + QStringList{ "a" } << marked + QStringList{ "a" };
}

void tst_mnemonics::texts_areMarked()
{
    QFETCH(QStringList, texts);
    QTEST(withMnemonics(texts), "marked");
}

QTEST_GUILESS_MAIN(tst_mnemonics)
#include "tst_mnemonics.moc"
