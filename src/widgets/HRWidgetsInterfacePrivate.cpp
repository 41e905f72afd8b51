// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRWidgetsInterfacePrivate_p.h"

#include "context/setting_p.h"
#include "manager/HRManagerPrivate_p.h"
#include "widgets/partHover_p.h"
#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partPlace_p.h"

#include <QApplication>
#include <QHelpEvent>

#include <utility>

namespace Hintreels {

namespace {

/// What a hint is for that the host shows without saying so; null where no window has it.
const QAction *actionNamed(const QString &name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (const auto *action = window->findChild<QAction *>(name))
            return action;
    }
    return nullptr;
}

} // namespace

HRWidgetsInterfacePrivate::HRWidgetsInterfacePrivate(HRWidgetsInterface *interface)
    : q(interface)
    , m_rest([this] {
        const HRReaderSettings *reader = q->readerSettings();
        return reader ? reader->delay() : HRRestWatch::desktopsDelay;
    })
{
}

QVariant HRWidgetsInterfacePrivate::makeReaderSettings()
{
    return QVariant::fromValue(QPointer<HRReaderSettings>(new HRReaderSettings(this)));
}

bool HRWidgetsInterfacePrivate::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = event->type() == QEvent::ToolTip ? qobject_cast<QWidget *>(watched) : nullptr;
    if (m_rest.holdsBack(watched, *event))
        return true;
    if (!widget)
        return q->manager()->eventFilter(watched, event);
    const auto &toolTip = static_cast<const QHelpEvent &>(*event);
    // What a widget has not taken comes to those around it, which do not answer for it.
    const bool isOfChild = widget->childAt(toolTip.pos());
    return !isOfChild && showsOnHover() && showToolTip(widget, toolTip.globalPos());
}

/// Where the host requires modifiers, these are what has to be held.
bool HRWidgetsInterfacePrivate::showsOnHover() const
{
    const HRReaderSettings *reader = q->readerSettings();
    const auto occasion = reader ? reader->occasion() : HRReaderSettings::occasionHover;
    const bool isHeld = QGuiApplication::keyboardModifiers() & Qt::ControlModifier
        || setting(q->context(), modifierKey, 0) != 0;
    return occasion == HRReaderSettings::occasionHover
        || (occasion == HRReaderSettings::occasionModifier && isHeld);
}

bool HRWidgetsInterfacePrivate::showToolTip(QWidget *widget, const QPoint &position)
{
    const std::shared_ptr<HRWidgetsInterfacePrivate> work = q->d;
    const QPointer<HRWidgetsInterface> interface = q;
    const QPointer<QWidget> target = widget;
    const HRPart part = partOf(widget, position);
    if (!target || !interface)
        return !target;
    const std::optional<HRPart> outer = std::exchange(m_hovered, part);
    const bool isShown = HRManagerPrivate::of(*interface->manager())->show(hoverOf(part, position));
    m_hovered = outer;
    // Nobody else may see the event of a widget that is gone.
    return isShown || !target;
}

/// A host's own key is for all of a widget. Nothing is known of what the host deletes when asked.
HRPart HRWidgetsInterfacePrivate::partOf(QWidget *widget, const QPoint &position) const
{
    const QPointer<HRWidgetsInterface> interface = q;
    const QPointer<QWidget> target = widget;
    const QString key = interface->keyForObject(widget);
    if (!target || !interface)
        return HRPart(nullptr);
    if (!isHostsOwn(key, widget))
        return partAt(widget, position);
    HRPart part = wholePart(widget);
    part.widget = widget;
    part.area = QRect();
    part.key = key;
    part.names.clear();
    return part;
}

bool HRWidgetsInterfacePrivate::isHostsOwn(const QString &key, QObject *object) const
{
    return !key.isEmpty() && key != object->objectName()
        && key != q->HRWidgetsInterface::keyForObject(object);
}

QString HRWidgetsInterfacePrivate::shortcut(const QString &key, QObject *object) const
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget) {
        const QAction *action = object ? qobject_cast<QAction *>(object) : actionNamed(key);
        return action ? action->shortcut().toString(QKeySequence::NativeText) : QString();
    }
    const bool isHovered = m_hovered && m_hovered->widget == widget;
    const HRPart part = isHovered ? *m_hovered : wholePart(widget);
    return keysOf(part).contains(key) ? part.shortcut() : QString();
}

} // namespace Hintreels
