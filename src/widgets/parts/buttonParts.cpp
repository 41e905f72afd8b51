// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/buttonParts_p.h"

#include "widgets/parts/partName_p.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMetaEnum>

namespace Hintreels {

namespace {

HRPart wholeButton(QAbstractButton *button)
{
    HRPart part(button);
    part.goesBy(button);
    part.text = withoutMnemonic(button->text());
    part.showsText = true;
    return part;
}

} // namespace

std::optional<HRPart> dialogButtonAt(QWidget *widget, const QPoint &)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    const auto *box = qobject_cast<QDialogButtonBox *>(button ? button->parent() : nullptr);
    const auto standard = box ? box->standardButton(button) : QDialogButtonBox::NoButton;
    if (standard == QDialogButtonBox::NoButton)
        return std::nullopt;
    HRPart part = wholeButton(button);
    const auto names = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
    const QString name = QString::fromLatin1(names.valueToKey(standard));
    if (const QString boxName = nameOf(box); !boxName.isEmpty())
        part.names.append(boxName + u'/' + name);
    part.names.append(name);
    return part;
}

std::optional<HRPart> buttonAt(QWidget *widget, const QPoint &)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    return button ? std::optional(wholeButton(button)) : std::nullopt;
}

std::optional<HRPart> labelAt(QWidget *widget, const QPoint &)
{
    auto *label = qobject_cast<QLabel *>(widget);
    if (!label)
        return std::nullopt;
    HRPart part(label);
    part.goesBy(label);
    part.goesBy(label->buddy());
    part.text = withoutMnemonic(label->text());
    part.showsText = true;
    return part;
}

} // namespace Hintreels
