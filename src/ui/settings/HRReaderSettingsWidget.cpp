// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/settings/HRReaderSettingsWidget.h"

#include "ui/reader/HRUiWords_p.h"
#include "ui/settings/mnemonics_p.h"
#include "ui/settings/readerRows_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>

#include <vector>

namespace Hintreels {

namespace {

/// The control of a row: a check box, or a combo box with its label.
struct ReaderControl
{
    QWidget *widget() const { return box ? static_cast<QWidget *>(box) : list; }

    const HRReaderRow &row;
    QLabel *label = nullptr;
    QCheckBox *box = nullptr;
    QComboBox *list = nullptr;
};

} // namespace

struct HRReaderSettingsWidgetPrivate
{
    HRReaderSettingsWidgetPrivate(HRReaderSettingsWidget *widget, HRReaderSettings *settings);

    ReaderControl makeControl(const HRReaderRow &row, QFormLayout *layout);
    void setTexts();
    void setTexts(const ReaderControl &control, const QString &label);
    void showValues();
    void showValue(const ReaderControl &control, int value);
    void choose(const HRReaderRow &row, int value);
    QString textOf(const HRReaderOption &option);

    HRReaderSettingsWidget *q;
    QPointer<HRReaderSettings> settings;
    QPushButton *forget;
    HRUiWords words;
    std::vector<ReaderControl> controls;
};

HRReaderSettingsWidgetPrivate::HRReaderSettingsWidgetPrivate(
    HRReaderSettingsWidget *widget, HRReaderSettings *readerSettings)
    : q(widget)
    , settings(readerSettings)
    , forget(new QPushButton(widget))
{
    auto *layout = new QFormLayout(q);
    for (const HRReaderRow &row : readerRows())
        controls.push_back(makeControl(row, layout));
    forget->setAutoDefault(false); // a dialog's Return key is not for this
    layout->addRow(forget);
    QObject::connect(forget, &QPushButton::clicked, q, [this] {
        if (settings)
            settings->forgetSeen();
    });
}

ReaderControl HRReaderSettingsWidgetPrivate::makeControl(
    const HRReaderRow &row, QFormLayout *layout)
{
    ReaderControl control{ row };
    if (row.options.isEmpty()) {
        control.box = new QCheckBox(q);
        layout->addRow(control.box);
        QObject::connect(control.box, &QCheckBox::toggled, q,
            [this, &row](bool isChecked) { choose(row, isChecked ? 1 : 0); });
        return control;
    }
    control.label = new QLabel(q);
    control.list = new QComboBox(q);
    control.label->setBuddy(control.list);
    layout->addRow(control.label, control.list);
    QObject::connect(control.list, QOverload<int>::of(&QComboBox::currentIndexChanged), q,
        [this, &row, list = control.list] { choose(row, list->currentData().toInt()); });
    return control;
}

void HRReaderSettingsWidgetPrivate::setTexts()
{
    q->setTitle(words.word(q->locale(), QStringLiteral("Hints")));
    QStringList texts;
    for (const ReaderControl &control : controls)
        texts.append(words.word(q->locale(), QString::fromLatin1(control.row.text)));
    texts.append(words.word(q->locale(), QStringLiteral("Forget what was seen")));
    texts = withMnemonics(texts);
    forget->setText(texts.takeLast());
    for (const ReaderControl &control : controls) {
        if (control.box)
            control.box->setText(texts.takeFirst());
        else
            setTexts(control, texts.takeFirst());
    }
    showValues();
}

void HRReaderSettingsWidgetPrivate::setTexts(const ReaderControl &control, const QString &label)
{
    const QSignalBlocker isOurs(control.list);
    control.label->setText(label);
    // Beside the underlined letter kerning is lost, and joined letters part: the text is painted
    // wider than Qt measures it.
    const int room = 2 * q->fontMetrics().averageCharWidth();
    control.label->setMinimumWidth(control.label->sizeHint().width() + room);
    control.list->clear();
    for (const HRReaderOption &option : control.row.options)
        control.list->addItem(textOf(option), option.value);
}

void HRReaderSettingsWidgetPrivate::showValues()
{
    q->setEnabled(settings);
    if (!settings)
        return;
    for (const ReaderControl &control : controls)
        showValue(control, settings->property(control.row.property).toInt());
    for (std::size_t i = 1; i < controls.size(); ++i)
        controls[i].widget()->setEnabled(settings->areHintsShown());
}

void HRReaderSettingsWidgetPrivate::showValue(const ReaderControl &control, int value)
{
    const QSignalBlocker isOurs(control.widget());
    if (control.box) {
        control.box->setChecked(value != 0);
        return;
    }
    if (control.list->findData(value) < 0)
        control.list->addItem(textOf(optionOf(control.row, value)), value);
    control.list->setCurrentIndex(control.list->findData(value));
}

void HRReaderSettingsWidgetPrivate::choose(const HRReaderRow &row, int value)
{
    if (settings)
        settings->setProperty(row.property, value);
}

QString HRReaderSettingsWidgetPrivate::textOf(const HRReaderOption &option)
{
    const QString text = words.word(q->locale(), QString::fromUtf8(option.text));
    return text.contains(QLatin1String("%1")) ? text.arg(q->locale().toString(option.number))
                                              : text;
}

HRReaderSettingsWidget::HRReaderSettingsWidget(HRReaderSettings *settings, QWidget *parent)
    : QGroupBox(parent)
    , d(std::make_unique<HRReaderSettingsWidgetPrivate>(this, settings))
{
    d->setTexts();
    if (!settings)
        return;
    connect(settings, &HRReaderSettings::changed, this, [this] { d->showValues(); });
    connect(settings, &QObject::destroyed, this, [this] { setEnabled(false); });
}

HRReaderSettingsWidget::~HRReaderSettingsWidget() = default;

void HRReaderSettingsWidget::changeEvent(QEvent *event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        d->setTexts();
}

} // namespace Hintreels
