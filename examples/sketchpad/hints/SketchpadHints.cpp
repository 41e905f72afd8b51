// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hints/SketchpadHints.h"

#include "window/MainWindow.h"
#include "window/MessageLog.h"

#include <Hintreels/HRContext>

#include <QAbstractScrollArea>
#include <QAction>
#include <QMenu>
#include <QToolButton>
#include <QUrl>

using namespace Hintreels;

namespace Sketchpad {

namespace {

QString actionName(const QAction *action)
{
    return action ? action->objectName() : QString();
}

// The pointer rests on a scroll area's viewport, which has a name of Qt's own.
QString scrollAreaName(const QObject *object)
{
    const auto *area = qobject_cast<QAbstractScrollArea *>(object->parent());
    return area && area->viewport() == object ? area->objectName() : QString();
}

} // namespace

SketchpadHints::SketchpadHints(
    HRContext &context, const QStringList &dataPaths, MainWindow &window, HRIndex *index)
    : HRInterface(context, dataPaths, index)
    , m_window(window)
{
    // The message log shows the look-ups too, not only what went wrong; those of the start-up would
    // go to the debug output instead.
    HRInterface::context().set(messageLevelKey, messageInformation);
    setGlobalProperty(QStringLiteral("application"), QStringLiteral("Sketchpad"));
    setGlobalProperty(QStringLiteral("undoLimit"), QString::number(Drawing::undoLimit));
    setGlobalProperty(QStringLiteral("modifier"), QStringLiteral("Ctrl"));
    connect(&window, &MainWindow::hintLocaleChosen, this,
        [this](const QString &locale) { HRInterface::context().set(localeKey, locale); });
}

void SketchpadHints::configure(HRContext &context)
{
    context.set(applicationNameKey, QStringLiteral("Sketchpad"));
    context.set(applicationFilterKey, true);
    context.set(allowNamedResourcesKey, true);
    context.set(localeKey, QStringLiteral("en_US"));
    context.set(showAnimationDurationKey, 120);
}

QWidget *SketchpadHints::createWindow(HRWindowType)
{
    // A plain widget, since the hint goes into its layout and fixes its size.
    auto *window = new QWidget(&m_window, Qt::Tool);
    window->setAttribute(Qt::WA_DeleteOnClose);
    return window;
}

QString SketchpadHints::keyForObject(QObject *object)
{
    QString key;
    if (const auto *button = qobject_cast<QToolButton *>(object))
        key = actionName(button->defaultAction());
    else if (const auto *menu = qobject_cast<QMenu *>(object))
        key = actionName(menu->activeAction());
    else
        key = scrollAreaName(object);
    return key.isEmpty() ? object->objectName() : key;
}

bool SketchpadHints::openExternalResource(HRExternalResourceType type, const QString &resource)
{
    if (type == resourceUrl)
        return HRInterface::openExternalResource(type, resource);
    return m_window.showHelp(resource);
}

void SketchpadHints::handleMessage(HRMessageType type, const QString &message)
{
    if (type < messageInformation)
        m_window.messageLog().append(tr("Problem: %1").arg(message));
    else
        m_window.messageLog().append(message);
}

QString SketchpadHints::shortCutForObject(const QString &key, QObject *, const QString &shortcut)
{
    const QAction *action = m_window.action(key);
    if (!action || action->shortcut().isEmpty())
        return shortcut;
    return action->shortcut().toString(QKeySequence::NativeText);
}

} // namespace Sketchpad
