// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRRequiredUi_p.h"

#include "context/setting_p.h"
#include "index/HRIndex.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/sceneReach_p.h"

#include <QFileInfo>
#include <QPointer>

#include <utility>

namespace Hintreels {

HRRequiredUi::HRRequiredUi(HRViewPrivate &view)
    : m_view(view)
{
}

bool HRRequiredUi::load()
{
    const QPointer<HRView> guarded = m_view.q;
    const QString name = guarded->uiRootFilePath();
    const QString path = QFileInfo(name).absoluteFilePath();
    const bool required = isRequired();
    if (required && !QFileInfo::exists(path))
        tellMissing(name);
    if (guarded)
        guarded->loadQML(path);
    if (!guarded || !required)
        return guarded;
    const bool isLoaded = hasScene(path);
    if (isLoaded)
        m_told = QString();
    return isLoaded;
}

bool HRRequiredUi::isBroken() const
{
    return isRequired() && m_view.q->status() == QQuickView::Error;
}

void HRRequiredUi::tellBroken(const QString &path)
{
    if (isRequired())
        tell(QStringLiteral("Package \"%1\" has a user interface that cannot be loaded: %2")
                 .arg(m_view.packageName(), path));
}

bool HRRequiredUi::isRequired() const
{
    return setting(m_view.settings(), requireUiKey, false);
}

/// A file that may not be used has been told of; then there is no name.
void HRRequiredUi::tellMissing(const QString &name)
{
    if (name.isEmpty())
        return;
    const QStringList places
        = m_view.manager->index()->componentPathsForElement(m_view.content.entry(), name);
    tell(QStringLiteral("Package \"%1\" has no user interface \"%2\", looked for at: %3")
             .arg(m_view.packageName(), name, places.join(QLatin1String(", "))));
}

void HRRequiredUi::tell(const QString &message)
{
    if (std::exchange(m_told, message) != message)
        m_view.report(messageWarning, message);
}

/// A scene that has to wait for the one at work counts as loaded.
bool HRRequiredUi::hasScene(const QString &path) const
{
    const bool isAsked = m_view.q->source() == urlOfFile(path);
    return isAsked && (m_view.loader.waiting() || m_view.q->rootObject());
}

} // namespace Hintreels
