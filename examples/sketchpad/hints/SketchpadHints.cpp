// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hints/SketchpadHints.h"

#include "hints/HintSettings.h"
#include "window/MainWindow.h"
#include "window/MessageLog.h"

#include <Hintreels/HRContext>

#include <QAction>

using namespace Hintreels;

namespace Sketchpad {

SketchpadHints::SketchpadHints(
    HRContext &context, const QStringList &dataPaths, MainWindow &window, HRIndex *index)
    : HRWidgetsInterface(context, dataPaths, index)
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
    connect(window.action(QStringLiteral("helpHints")), &QAction::triggered, this,
        &SketchpadHints::showSettings);
    connect(
        readerSettings(), &HRReaderSettings::pageRequested, this, &SketchpadHints::showSettings);
}

void SketchpadHints::configure(HRContext &context)
{
    context.set(applicationNameKey, QStringLiteral("Sketchpad"));
    context.set(allowNamedResourcesKey, true);
    context.set(localeKey, QStringLiteral("en_US"));
    context.set(showAnimationDurationKey, 120);
}

void SketchpadHints::showSettings()
{
    const QString locale = HRInterface::context().get(localeKey, QString()).toString();
    (new HintSettings(readerSettings(), locale, &m_window))->show();
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

} // namespace Sketchpad
