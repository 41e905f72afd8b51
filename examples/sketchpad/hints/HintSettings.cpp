// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hints/HintSettings.h"

#include "window/Icons.h"

#include <Hintreels/HRReaderSettingsWidget>

#include <QDialogButtonBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace Sketchpad {

HintSettings::HintSettings(
    Hintreels::HRReaderSettings *settings, const QString &locale, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("hintSettings"));
    setWindowTitle(tr("Hints"));
    setLayoutDirection(QLocale(locale).textDirection());
    setAttribute(Qt::WA_DeleteOnClose);
    auto *box = new Hintreels::HRReaderSettingsWidget(settings, this);
    box->setLocale(QLocale(locale));
    auto *preview = new QToolButton(this);
    preview->setProperty("hintreelKey", QStringLiteral("toolPen"));
    preview->setIcon(themedIcon(QStringLiteral("toolPen"), palette()));
    preview->setIconSize({ 24, 24 });
    preview->setText(tr("Try it here"));
    preview->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(box);
    layout->addWidget(preview, 0, Qt::AlignHCenter);
    layout->addWidget(buttons);
}

} // namespace Sketchpad
