// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManagerPrivate_p.h"

#include "index/HRIndex.h"
#include "manager/HRManager.h"

#include <QPointer>

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
    : interface(host)
    , dataPaths(paths)
    , context(hostContext)
    , index(hostIndex ? hostIndex : new HRIndex(&context, paths))
    , scanner(context, *index, reporterOf(manager), reporterOf(manager, messageWarning))
    , lookup(context, *index, reporterOf(manager))
    , presenter(context, host, lookup)
    , hoverFilter([this] { return presenter.popup(); }, showerOf(manager))
    , translation(manager)
{
}

} // namespace Hintreels
