// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManagerPrivate_p.h"

#include "context/setting_p.h"
#include "index/HRIndex.h"
#include "manager/popupFactory_p.h"
#include "reader/readerSettings_p.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/popup/quickRenderer_p.h"

#include <QGuiApplication>
#include <QPointer>

#include <utility>

namespace Hintreels {

namespace {

HRPackageScanner::Report reporterOf(HRManager *manager, HRMessageType type = messageInformation)
{
    return [guarded = QPointer<HRManager>(manager), type](const QString &text) {
        if (guarded)
            guarded->handleMessage(type, text);
    };
}

// True also where the host has deleted the object meanwhile: nobody else may see the event then.
HRHoverFilter::Show showerOf(HRManager *manager)
{
    return [guarded = QPointer<HRManager>(manager)](QObject *object, const QPoint &globalPos) {
        const QPointer<QObject> target = object;
        const QString key = guarded->keyForObject(object);
        return !target || (guarded && guarded->show(key, globalPos, target));
    };
}

} // namespace

HRManagerPrivate::HRManagerPrivate(HRManager *manager, HRInterface *host,
    const HRContext &hostContext, const QStringList &paths, HRIndex *hostIndex)
    : q(manager)
    , interface(host)
    , dataPaths(paths)
    , context(hostContext)
    , index(hostIndex ? hostIndex : new HRIndex(&context, paths))
    , scanner(context, *index, reporterOf(manager), reporterOf(manager, messageWarning))
    , brokenFiles(reporterOf(manager, messageWarning))
    , lookup(context, *index, reporterOf(manager),
          [this](const HRControlErrors &errors) { tellErrors(errors); })
    , presenter(context, host, lookup)
    , hoverFilter([this] { return presenter.popup(); }, showerOf(manager))
    , translation(manager)
{
}

bool HRManagerPrivate::show(const HRHover &hover)
{
    if (!tellKeys(hover.keys) || !mayShow() || !canRender())
        return false;
    ensurePopup();
    return presenter.show(hover);
}

bool HRManagerPrivate::popupTakes(QObject *watched, QEvent &event) const
{
    return watched && presenter.isPopupVisible()
        && HRWidgetPrivate::of(*presenter.popup()).takeEvent(*watched, event);
}

/// False where the host has deleted the manager meanwhile.
bool HRManagerPrivate::tellKeys(const QStringList &keys)
{
    const QPointer<HRManager> guarded = q;
    for (const QString &key : keys) {
        if (guarded)
            q->handleMessage(
                messageInformation, QStringLiteral("looking for Hintreel for key:") + key);
    }
    return guarded;
}

void HRManagerPrivate::tellErrors(const HRControlErrors &errors)
{
    if (setting(context, reportBrokenFilesKey, false))
        brokenFiles.tell(errors);
}

bool HRManagerPrivate::mayShow() const
{
    const int modifiers = setting(context, modifierKey, 0);
    const bool areHeld = modifiers == 0 || int(QGuiApplication::keyboardModifiers()) == modifiers;
    const HRReaderSettings *reader = readerSettings(&context);
    const bool isWanted = !reader || reader->areHintsShown();
    return areHeld && isWanted && !setting(context, disabledKey, false);
}

/// Whether a popup can be painted; says once why not.
bool HRManagerPrivate::canRender()
{
    if (chooseQuickRenderer(&context))
        return true;
    if (!std::exchange(toldWhyNothingShows, true))
        q->handleMessage(messageWarning,
            QStringLiteral(
                "No hints are shown: there is no OpenGL, and software rendering is forbidden"));
    return false;
}

void HRManagerPrivate::ensurePopup()
{
    if (!presenter.popup())
        presenter.setPopup(createPopup(q));
}

} // namespace Hintreels
