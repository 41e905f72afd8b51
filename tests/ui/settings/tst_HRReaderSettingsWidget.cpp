// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestReader.h"
#include "ui/reader/standardUiResource_p.h"
#include "ui/settings/HRReaderSettingsWidget.h"
#include "ui/settings/readerRows_p.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QMetaProperty>
#include <QPushButton>
#include <QSet>
#include <QTranslator>
#include <QtTest>

using namespace Hintreels;

namespace {

struct Fixture
{
    explicit Fixture(const QLocale &locale = QLocale("en_US")) { box.setLocale(locale); }

    QList<QWidget *> controls() const
    {
        QList<QWidget *> found;
        const QList<QWidget *> children
            = box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *child : children) {
            if (qobject_cast<QComboBox *>(child) || qobject_cast<QCheckBox *>(child))
                found.append(child);
        }
        return found;
    }
    QComboBox *list(int i) const { return qobject_cast<QComboBox *>(controls()[i]); }
    QStringList items(int i) const
    {
        QStringList texts;
        for (int item = 0; item < list(i)->count(); ++item)
            texts.append(list(i)->itemText(item));
        return texts;
    }

    TestReader reader;
    HRReaderSettingsWidget box{ &reader.settings };
};

/// As the rows have them.
enum Row
{
    hintsRow,
    detailRow,
    smallRow,
    seenRow,
    occasionRow,
    delayRow,
    durationRow,
    clipsRow,
    captionsRow,
    sizeRow,
    rowCount
};

QSet<QString> wordsOfThePage()
{
    QSet<QString> words{ "Hints" };
    for (const HRReaderRow &row : readerRows()) {
        words.insert(row.text);
        for (const HRReaderOption &option : row.options)
            words.insert(option.text);
    }
    words.remove("%1 %");
    words.remove(QString::fromUtf8("%1 ×"));
    words.insert("Forget what was seen");
    return words;
}

} // namespace

class tst_HRReaderSettingsWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void page_hasEverythingThatAReaderDecides();
    void choice_counts_atOnce();
    void button_isNotADialogsDefault();
    void decisionElsewhere_isShown();
    void value_isShown_alsoOneThatIsNotOffered();
    void rest_isDisabled_withoutHints();
    void page_isDisabled_withoutSettings();
    void page_followsItsLanguage();
    void languages_haveEveryWordOfThePage_data();
    void languages_haveEveryWordOfThePage();
    void labels_areWhole_data() { controls_areNamed_andReachedByKeys_data(); }
    void labels_areWhole();
    void controls_areNamed_andReachedByKeys_data();
    void controls_areNamed_andReachedByKeys();
};

void tst_HRReaderSettingsWidget::page_hasEverythingThatAReaderDecides()
{
    QSet<QString> shown;
    for (const HRReaderRow &row : readerRows())
        shown.insert(row.property);
    const QMetaObject &meta = HRReaderSettings::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        QVERIFY2(shown.contains(meta.property(i).name()), meta.property(i).name());
    QCOMPARE(Fixture().controls().size(), int(rowCount));
}

void tst_HRReaderSettingsWidget::choice_counts_atOnce()
{
    Fixture f;
    f.list(detailRow)->setCurrentIndex(1);
    QCOMPARE(f.reader.settings.detail(), HRReaderSettings::textDetail);
    f.list(sizeRow)->setCurrentIndex(f.list(sizeRow)->findText("200 %"));
    QCOMPARE(f.reader.settings.textSize(), 200);
    qobject_cast<QCheckBox *>(f.controls()[smallRow])->click();
    QVERIFY(f.reader.settings.startsSmall());
    f.list(seenRow)->setCurrentIndex(1);
    f.reader.settings.countSeen("pen");
    f.reader.settings.setStartsSmall(false);
    QVERIFY(f.reader.settings.beginsSmall("pen"));
    f.box.findChild<QPushButton *>()->click();
    QVERIFY(!f.reader.settings.beginsSmall("pen"));
}

void tst_HRReaderSettingsWidget::button_isNotADialogsDefault()
{
    QDialog dialog;
    TestReader reader;
    HRReaderSettingsWidget box(&reader.settings, &dialog);
    QVERIFY(!box.findChild<QPushButton *>()->autoDefault());
}

void tst_HRReaderSettingsWidget::decisionElsewhere_isShown()
{
    Fixture f;
    f.reader.settings.setClips(HRReaderSettings::clipsOnRequest);
    f.reader.settings.setCaptionsShown(false);
    QCOMPARE(f.list(clipsRow)->currentText(), QString("Play on request"));
    QVERIFY(!qobject_cast<QCheckBox *>(f.controls()[captionsRow])->isChecked());
}

void tst_HRReaderSettingsWidget::value_isShown_alsoOneThatIsNotOffered()
{
    Fixture f;
    f.reader.settings.setDelay(700);
    f.reader.settings.setTextSize(110);
    QCOMPARE(f.list(delayRow)->currentText(), QString("0.7 s"));
    QCOMPARE(f.list(sizeRow)->currentText(), QString("110 %"));
    f.box.setLocale(QLocale("de_DE"));
    QCOMPARE(f.list(delayRow)->currentText(), QString("0,7 s"));
    QCOMPARE(f.reader.settings.delay(), 700);
}

void tst_HRReaderSettingsWidget::rest_isDisabled_withoutHints()
{
    Fixture f;
    qobject_cast<QCheckBox *>(f.controls()[hintsRow])->click();
    QVERIFY(!f.reader.settings.areHintsShown());
    QVERIFY(f.controls()[hintsRow]->isEnabled());
    QVERIFY(!f.controls()[detailRow]->isEnabled());
    qobject_cast<QCheckBox *>(f.controls()[hintsRow])->click();
    QVERIFY(f.controls()[detailRow]->isEnabled());
}

void tst_HRReaderSettingsWidget::page_isDisabled_withoutSettings()
{
    QVERIFY(!HRReaderSettingsWidget(nullptr).isEnabled());
    auto reader = std::make_unique<TestReader>();
    HRReaderSettingsWidget box(&reader->settings);
    QVERIFY(box.isEnabled());
    reader.reset();
    QVERIFY(!box.isEnabled());
}

void tst_HRReaderSettingsWidget::page_followsItsLanguage()
{
    Fixture f;
    QCOMPARE(f.box.title(), QString("Hints"));
    QCOMPARE(
        f.items(clipsRow), (QStringList{ "Play by themselves", "Play once", "Play on request" }));
    f.box.setLocale(QLocale("de_AT"));
    QCOMPARE(f.box.title(), QString("Hinweise"));
    QCOMPARE(f.list(clipsRow)->currentText(), QString("Von selbst abspielen"));
}

void tst_HRReaderSettingsWidget::languages_haveEveryWordOfThePage_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = QDir(standardUiResource("l10n")).entryList({ "*.qm" });
    QVERIFY(files.size() >= 28);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void tst_HRReaderSettingsWidget::languages_haveEveryWordOfThePage()
{
    QFETCH(QString, file);
    QTranslator translator;
    QVERIFY(translator.load(standardUiResource("l10n/" + file)));
    const QSet<QString> words = wordsOfThePage();
    for (const QString &word : words) {
        const QString said = translator.translate("StandardUI", word.toUtf8().constData());
        QVERIFY2(!said.isEmpty(), qPrintable(word));
        QCOMPARE(said.contains("%1"), word.contains("%1"));
    }
}

/// Where a label ends, nothing is painted any more.
void tst_HRReaderSettingsWidget::labels_areWhole()
{
    QFETCH(QString, locale);
    Fixture f{ QLocale(locale) };
    f.box.setLayoutDirection(f.box.locale().textDirection());
    f.box.show();
    const QList<QLabel *> labels = f.box.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const QImage picture = label->grab().toImage();
        const int end = label->isRightToLeft() ? 0 : picture.width() - 1;
        for (int y = 0; y < picture.height(); ++y)
            QVERIFY2(picture.pixel(end, y) == picture.pixel(end, 0), qPrintable(label->text()));
    }
    QVERIFY(labels.size() > 5);
}

void tst_HRReaderSettingsWidget::controls_areNamed_andReachedByKeys_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : { "en_US", "de_DE", "ru_RU", "ar_EG", "ja_JP", "zh_TW" })
        QTest::newRow(locale) << locale;
}

void tst_HRReaderSettingsWidget::controls_areNamed_andReachedByKeys()
{
    QFETCH(QString, locale);
    const Fixture f{ QLocale(locale) };
    QSet<QKeySequence> mnemonics;
    const QList<QLabel *> labels = f.box.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        QVERIFY(label->buddy());
        mnemonics.insert(QKeySequence::mnemonic(label->text()));
    }
    const QList<QCheckBox *> boxes = f.box.findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes)
        mnemonics.insert(QKeySequence::mnemonic(box->text()));
    mnemonics.insert(QKeySequence::mnemonic(f.box.findChild<QPushButton *>()->text()));
    QVERIFY(!mnemonics.contains(QKeySequence()));
    QCOMPARE(mnemonics.size(), rowCount + 1);
    const QList<QWidget *> controls = f.controls();
    for (QWidget *control : controls) {
        QVERIFY(!QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty());
        QVERIFY(control->focusPolicy() & Qt::TabFocus);
    }
}

QTEST_MAIN(tst_HRReaderSettingsWidget)
#include "tst_HRReaderSettingsWidget.moc"
