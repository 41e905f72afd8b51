// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRWidgetsInterface.h"

#include "context/setting_p.h"
#include "manager/HRManager.h"
#include "reader/HRDesktopWishes_p.h"
#include "ui/popup/HRPinnedWindow_p.h"
#include "ui/popup/HRWidget.h"
#include "widgets/HRWidgetsInterfacePrivate_p.h"
#include "widgets/coverage_p.h"
#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partName_p.h"
#include "widgets/parts/viewParts_p.h"
#include "widgets/widgetsSettings_p.h"

#include <QApplication>
#include <QPointer>

namespace Hintreels {

namespace {

/// Whether a window is the host's: neither a menu or a tooltip, nor a popup of ours, also where
/// that is pinned into a window.
bool isHosts(const QWidget *window)
{
    const bool isHint = qobject_cast<const HRWidget *>(window)
        || window->findChild<HRWidget *>(QString(), Qt::FindDirectChildrenOnly);
    return !isHint && window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip;
}

/// A model that is asked for a name may close any of them.
QVector<HRWalkedPart> partsOfOpenWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const QVector<QPointer<QWidget>> guarded(windows.begin(), windows.end());
    QVector<HRWalkedPart> parts;
    for (const QPointer<QWidget> &window : guarded) {
        if (window && window->isVisible() && isHosts(window))
            parts += walkParts(window);
    }
    return parts;
}

} // namespace

const int HRWidgetsInterface::keyRole = partKeyRole;

// The settings are copied before their last copy goes.
HRWidgetsInterface::HRWidgetsInterface(
    HRContext &context, const QStringList &dataPaths, HRIndex *index)
    : HRInterface(*std::make_unique<HRContext>(widgetsSettings(context)), dataPaths, index)
    , d(std::make_shared<HRWidgetsInterfacePrivate>(this))
{
    if (!this->context().contains(readerSettingsKey))
        this->context().set(readerSettingsKey, d->makeReaderSettings());
    if (qApp)
        HRDesktopWishes::ofApplication().follow(); // known by the time of the first hint
    if (!qApp || !setting(this->context(), applicationFilterKey, false))
        return;
    qApp->removeEventFilter(manager());
    qApp->installEventFilter(d.get());
}

HRWidgetsInterface::~HRWidgetsInterface()
{
    // What is at work keeps the filter, but nobody answers it any more.
    if (qApp)
        qApp->removeEventFilter(d.get());
}

QString HRWidgetsInterface::keyForObject(QObject *object)
{
    if (auto *widget = qobject_cast<QWidget *>(object)) {
        const HRPart part = wholePart(widget);
        return part.key.isEmpty() ? part.names.value(0) : part.key;
    }
    if (!object)
        return {};
    const QString key = keyOf(object);
    return key.isEmpty() ? nameOf(object) : key;
}

QWidget *HRWidgetsInterface::createWindow(HRWindowType type)
{
    HRWidget *popup = type == reservedPopupWindow ? manager()->widget() : nullptr;
    if (!popup || !popup->view())
        return nullptr;
    QWidget *window = windowFor(*popup);
    // The pinned hint is the active window now, and Qt shows tooltips in active windows only.
    if (window)
        window->setAttribute(Qt::WA_AlwaysShowToolTips);
    return new HRPinnedWindow(*popup, window);
}

QString HRWidgetsInterface::shortCutForObject(
    const QString &key, QObject *object, const QString &shortcut)
{
    const QString live = d->shortcut(key, object);
    return live.isEmpty() ? shortcut : live;
}

HRReaderSettings *HRWidgetsInterface::readerSettings()
{
    return setting(context(), readerSettingsKey, QPointer<HRReaderSettings>());
}

HRCoverage HRWidgetsInterface::coverage()
{
    const QPointer<HRWidgetsInterface> guarded = this;
    const QVector<HRWalkedPart> parts = partsOfOpenWindows();
    if (!guarded)
        return {};
    const QString fallback = setting(context(), fallbackKeyKey, QString());
    HRCoverage coverage = coverageOf(parts, keys());
    coverage.unusedKeys.removeAll(fallback);
    return coverage;
}

} // namespace Hintreels
