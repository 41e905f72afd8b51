// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/readableColor_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_readableColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrastRatio_followsTheGuidelines_data();
    void contrastRatio_followsTheGuidelines();
    void readableColor_isReadable_data();
    void readableColor_isReadable();
    void readableColor_keepsTheColor_whenItIsReadable();
    void readableColor_keepsTheHue_whenItMustChange();
    void readableColor_givesTheColorUp_whereNoMixtureIsReadable();
};

void tst_readableColor::contrastRatio_followsTheGuidelines_data()
{
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<qreal>("ratio");

    QTest::newRow("black on white") << QColor("#000000") << QColor("#ffffff") << 21.0;
    QTest::newRow("white on black") << QColor("#ffffff") << QColor("#000000") << 21.0;
    QTest::newRow("equal") << QColor("#777777") << QColor("#777777") << 1.0;
    QTest::newRow("the grey that just fails") << QColor("#777777") << QColor("#ffffff") << 4.478;
    QTest::newRow("the grey that just passes") << QColor("#767676") << QColor("#ffffff") << 4.542;
    QTest::newRow("nearly black on white") << QColor("#0a0a0a") << QColor("#ffffff") << 19.798;
    QTest::newRow("pure red on white") << QColor("#ff0000") << QColor("#ffffff") << 3.998;
}

void tst_readableColor::contrastRatio_followsTheGuidelines()
{
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QFETCH(qreal, ratio);

    QVERIFY2(qAbs(contrastRatio(a, b) - ratio) < 0.001,
        qPrintable(QString::number(contrastRatio(a, b))));
}

void tst_readableColor::readableColor_isReadable_data()
{
    QTest::addColumn<QColor>("wanted");
    QTest::addColumn<QColor>("background");

    const QStringList wanted{ "#2e9e5b", "#d98a00", "#308cc6", "#ffff00", "#777777", "#000000",
        "#ffffff" };
    const QStringList backgrounds{ "#ffffff", "#efefef", "#dde7df", "#808080", "#777777", "#2b2d30",
        "#000000" };
    for (const QString &color : wanted) {
        for (const QString &background : backgrounds)
            QTest::addRow("%s on %s", qPrintable(color), qPrintable(background))
                << QColor(color) << QColor(background);
    }
}

void tst_readableColor::readableColor_isReadable()
{
    QFETCH(QColor, wanted);
    QFETCH(QColor, background);

    QVERIFY(contrastRatio(readableColor(wanted, background), background) >= 4.5);
}

void tst_readableColor::readableColor_keepsTheColor_whenItIsReadable()
{
    QCOMPARE(readableColor(QColor("#1f4fa8"), QColor("#ffffff")).name(), QString("#1f4fa8"));
    QCOMPARE(readableColor(QColor("#a0c0ff"), QColor("#202020")).name(), QString("#a0c0ff"));
}

void tst_readableColor::readableColor_keepsTheHue_whenItMustChange()
{
    const QColor wanted("#2e9e5b");
    const QColor darker = readableColor(wanted, QColor("#efefef"));

    QVERIFY(darker.lightness() < wanted.lightness());
    QVERIFY(qAbs(darker.hslHue() - wanted.hslHue()) <= 2);
    QVERIFY(contrastRatio(darker, QColor("#efefef")) < 6);
}

void tst_readableColor::readableColor_givesTheColorUp_whereNoMixtureIsReadable()
{
    QCOMPARE(readableColor(QColor("#ffffff"), QColor("#777777")), QColor(Qt::black));
    QCOMPARE(readableColor(QColor("#000000"), QColor("#747474")), QColor(Qt::white));
}

QTEST_APPLESS_MAIN(tst_readableColor)
#include "tst_readableColor.moc"
