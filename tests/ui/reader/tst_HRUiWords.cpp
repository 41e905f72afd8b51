// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRUiWords_p.h"

#include "ui/reader/standardUiResource_p.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

using namespace Hintreels;

class tst_HRUiWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages_haveEveryWordOfTheUi_data();
    void languages_haveEveryWordOfTheUi();
    void word_servesEveryCountryOfALanguage_data();
    void word_servesEveryCountryOfALanguage();
    void word_followsTheLocale();
    void key_isNamedInTheReadersLanguage_data();
    void key_isNamedInTheReadersLanguage();
    void spokenKey_isNoAbbreviation_data();
    void spokenKey_isNoAbbreviation();
};

namespace {

/// What the UI asks for: see Words.qml and HRReaderMenu.
QStringList wordsOfTheUi()
{
    QFile file(standardUiResource("ui/Words.qml"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no Words.qml");
    const QString qml = QString::fromUtf8(file.readAll());
    QStringList words{ "More", "Less", "No clips by themselves", "Hint settings" };
    for (auto it = QRegularExpression("own\\(\"([^\"]+)\"\\)").globalMatch(qml); it.hasNext();)
        words += it.next().captured(1);
    return words;
}

} // namespace

void tst_HRUiWords::languages_haveEveryWordOfTheUi_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = QDir(standardUiResource("l10n")).entryList({ "*.qm" });
    QVERIFY(files.size() >= 24);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void tst_HRUiWords::languages_haveEveryWordOfTheUi()
{
    QFETCH(QString, file);
    QTranslator translator;
    QVERIFY(translator.load(standardUiResource("l10n/" + file)));
    const QStringList words = wordsOfTheUi();
    QVERIFY(words.size() >= 9);
    for (const QString &word : words)
        QVERIFY2(!translator.translate("StandardUI", word.toUtf8().constData()).isEmpty(),
            qPrintable(word));
}

void tst_HRUiWords::word_servesEveryCountryOfALanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("word");
    QTest::newRow("German") << "de_DE"
                            << "Noch einmal abspielen";
    QTest::newRow("Austrian") << "de_AT"
                              << "Noch einmal abspielen";
    QTest::newRow("Mexican") << "es_MX"
                             << "Reproducir de nuevo";
    QTest::newRow("Brazilian") << "pt_BR"
                               << "Reproduzir novamente";
    QTest::newRow("Norwegian") << "nb_NO"
                               << "Spill av igjen";
    QTest::newRow("Nynorsk") << "nn_NO"
                             << "Spill av igjen";
    QTest::newRow("Hebrew") << "he_IL" << QString::fromUtf8("הפעלה חוזרת");
    QTest::newRow("Chinese") << "zh_CN" << QString::fromUtf8("重新播放");
    QTest::newRow("Singapore") << "zh_SG" << QString::fromUtf8("重新播放");
    QTest::newRow("Taiwan") << "zh_TW" << QString::fromUtf8("再次播放");
    QTest::newRow("Hong Kong") << "zh_HK" << QString::fromUtf8("再次播放");
    QTest::newRow("Macau") << "zh_MO" << QString::fromUtf8("再次播放");
    QTest::newRow("simplified in Hong Kong") << "zh_Hans_HK" << QString::fromUtf8("重新播放");
    QTest::newRow("English") << "en_GB"
                             << "Play again";
    QTest::newRow("a language that is not there") << "eu_ES"
                                                  << "Play again";
    QTest::newRow("none") << "C"
                          << "Play again";
}

void tst_HRUiWords::word_servesEveryCountryOfALanguage()
{
    QFETCH(QString, locale);
    HRUiWords words;
    QTEST(words.word(QLocale(locale), "Play again"), "word");
    QCOMPARE(words.word(QLocale(locale), "Words of others"), QString("Words of others"));
}

void tst_HRUiWords::word_followsTheLocale()
{
    HRUiWords words;
    QCOMPARE(words.word(QLocale("de_DE"), "Pause"), QString("Anhalten"));
    QCOMPARE(words.word(QLocale("eu_ES"), "Pause"), QString("Pause"));
    QCOMPARE(words.word(QLocale("es_ES"), "Pause"), QString("Pausar"));
}

void tst_HRUiWords::key_isNamedInTheReadersLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cap");
    QTest::newRow("control") << "de_DE"
                             << "Ctrl"
                             << "Strg";
    QTest::newRow("control, spelt out") << "de_DE"
                                        << "Control"
                                        << "Strg";
    QTest::newRow("shift") << "de_AT"
                           << "Shift"
                           << "Umschalt";
    QTest::newRow("shift in French") << "fr_CA"
                                     << "Shift"
                                     << "Maj";
    QTest::newRow("page down") << "de_DE"
                               << "Page Down"
                               << "Bild ab";
    QTest::newRow("letter") << "de_DE"
                            << "L"
                            << "L";
    QTest::newRow("translated already") << "de_DE"
                                        << "Strg"
                                        << "Strg";
    QTest::newRow("English") << "en_US"
                             << "Control"
                             << "Control";
}

void tst_HRUiWords::key_isNamedInTheReadersLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    HRUiWords words;
    QTEST(words.key(QLocale(locale), name), "cap");
}

void tst_HRUiWords::spokenKey_isNoAbbreviation_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("English") << "en_US"
                             << "Ctrl"
                             << "Control";
    QTest::newRow("in full already") << "en_US"
                                     << "Control"
                                     << "Control";
    QTest::newRow("German has a word of its own") << "de_DE"
                                                  << "Ctrl"
                                                  << "Steuerung";
    QTest::newRow("German says what stands on it") << "de_DE"
                                                   << "Shift"
                                                   << "Umschalt";
    QTest::newRow("Arabic has no word for it") << "ar_EG"
                                               << "Del"
                                               << "Delete";
    QTest::newRow("a letter") << "de_DE"
                              << "L"
                              << "L";
}

void tst_HRUiWords::spokenKey_isNoAbbreviation()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    HRUiWords words;
    QTEST(words.spokenKey(QLocale(locale), name), "spoken");
}

QTEST_GUILESS_MAIN(tst_HRUiWords)
#include "tst_HRUiWords.moc"
