// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/HRPart_p.h"

#include "widgets/parts/partName_p.h"

#include <QAbstractButton>
#include <QMenu>

namespace Hintreels {

HRPart::HRPart(QWidget *whole, const QRect &inside)
    : widget(whole)
    , area(globalArea(whole, inside))
{
}

void HRPart::goesBy(const QObject *object)
{
    if (!object)
        return;
    if (key.isEmpty())
        key = keyOf(object);
    const QString name = nameOf(object);
    if (!name.isEmpty() && !names.contains(name))
        names.append(name);
}

void HRPart::does(QAction *newAction)
{
    if (!newAction)
        return;
    action = newAction;
    text = withoutMnemonic(newAction->text());
    goesBy(newAction);
    goesBy(newAction->menu());
}

QString HRPart::shortcut() const
{
    if (action)
        return action->shortcut().toString(QKeySequence::NativeText);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    // Qt takes a mnemonic for a shortcut.
    if (!button || button->shortcut() == QKeySequence::mnemonic(button->text()))
        return {};
    return button->shortcut().toString(QKeySequence::NativeText);
}

QRect globalArea(const QWidget *widget, const QRect &area)
{
    return area.isNull() ? QRect() : QRect(widget->mapToGlobal(area.topLeft()), area.size());
}

} // namespace Hintreels
