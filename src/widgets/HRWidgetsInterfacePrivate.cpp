// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRWidgetsInterfacePrivate_p.h"

#include "context/setting_p.h"
#include "manager/HRManagerPrivate_p.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/popup/popupScreen_p.h"
#include "widgets/partHover_p.h"
#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partPlace_p.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>

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

/// Where a part begins that nobody points at.
QPoint cornerOf(const HRPart &part)
{
    return part.area.isEmpty() ? visibleArea(part.widget).topLeft() : part.area.topLeft();
}

} // namespace

HRWidgetsInterfacePrivate::HRWidgetsInterfacePrivate(HRWidgetsInterface *interface)
    : q(interface)
    , m_rest(
          [this] {
              const HRReaderSettings *reader = q->readerSettings();
              return reader ? reader->delay() : HRRestWatch::desktopsDelay;
          },
          [this] {
              const HRReaderSettings *reader = q->readerSettings();
              return reader && reader->occasion() == HRReaderSettings::occasionModifier;
          })
    , m_keyHints(
          interface->manager(), [this](QWidget *focused) { return partOf(focused, &partInFocus); },
          [this](const HRPart &part) { return showWithoutPointer(part, cornerOf(part)); })
    , m_longPress([this](QWidget *touched, const QPoint &position) {
        return showForFinger(touched, position);
    })
{
}

QVariant HRWidgetsInterfacePrivate::makeReaderSettings()
{
    return QVariant::fromValue(QPointer<HRReaderSettings>(new HRReaderSettings(this)));
}

bool HRWidgetsInterfacePrivate::eventFilter(QObject *watched, QEvent *event)
{
    // Moves come by the hundred a second; nobody else looks at them.
    if (event->type() == QEvent::MouseMove) {
        m_rest.follow(watched, static_cast<const QMouseEvent &>(*event));
        return q->manager()->eventFilter(watched, event);
    }
    const std::shared_ptr<HRWidgetsInterfacePrivate> work = q->d;
    if (m_keyHints.filter(*watched, *event) || m_longPress.filter(*watched, *event))
        return true;
    auto *widget = event->type() == QEvent::ToolTip ? qobject_cast<QWidget *>(watched) : nullptr;
    if (m_rest.holdsBack(*event))
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
    const QPointer<QWidget> target = widget;
    const std::optional<HRPart> part
        = partOf(widget, [&](QWidget *hovered) { return partAt(hovered, position); });
    const bool isShown = part && show(*part, position);
    // Nobody else may see the event of a widget that is gone.
    return isShown || !target;
}

bool HRWidgetsInterfacePrivate::show(const HRPart &part, const QPoint &position)
{
    const std::shared_ptr<HRWidgetsInterfacePrivate> work = q->d;
    const std::optional<HRPart> outer = std::exchange(m_hovered, part);
    const bool isShown = HRManagerPrivate::of(*q->manager())->show(hoverOf(part, position));
    m_hovered = outer;
    return isShown;
}

/// Where nothing is to be shown, another hint may stay for the pointer.
bool HRWidgetsInterfacePrivate::showWithoutPointer(const HRPart &part, const QPoint &position)
{
    const QPointer<HRWidgetsInterface> interface = q;
    const QPointer<QWidget> widget = part.widget;
    const bool isShown = show(part, position) && interface && widget;
    HRWidget *popup = isShown ? interface->manager()->widget() : nullptr;
    if (!popup || popup->referenceWidget() != widget)
        return false;
    HRWidgetPrivate::of(*popup).hold();
    return true;
}

bool HRWidgetsInterfacePrivate::showForFinger(QWidget *widget, const QPoint &position)
{
    const std::optional<HRPart> part
        = partOf(widget, [&](QWidget *touched) { return partAt(touched, position); });
    return part && showWithoutPointer(*part, position);
}

/// A host's own key is for all of a widget. Nothing is known of what the host deletes when asked.
std::optional<HRPart> HRWidgetsInterfacePrivate::partOf(QWidget *widget, const FindPart &find) const
{
    const QPointer<HRWidgetsInterface> interface = q;
    const QPointer<QWidget> target = widget;
    const QString key = interface->keyForObject(widget);
    if (!target || !interface)
        return std::nullopt;
    if (!isHostsOwn(key, widget))
        return find(widget);
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
