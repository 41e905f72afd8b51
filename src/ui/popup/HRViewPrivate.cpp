// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRViewPrivate_p.h"

#include "index/HRIndex.h"
#include "ui/popup/sceneReach_p.h"

#include <QQmlEngine>

#include <utility>

namespace Hintreels {

HRViewPrivate::HRViewPrivate(HRView *view, HRManager *hrManager)
    : q(view)
    , manager(hrManager)
    , loader(view, view->engine(), [this](const QUrl &source) { take(source); })
    , ui(*this)
    , gates(view->engine(), view->contentItem(),
          [this](const QString &kind, const QString &path) { reportRefusal(kind, path); })
    , watch(std::make_shared<HRScriptWatch>(view->engine()))
    , clips(new HRViewClips(view))
{
}

HRContent HRViewPrivate::exchangeContent(HRContent next)
{
    if (content.entry() == next.entry())
        content.release();
    else
        gates.forgetRefusals();
    std::swap(content, next);
    followRules();
    return next;
}

void HRViewPrivate::freeContent(HRContent previous) const
{
    if (loader.isSceneAtWork())
        previous.freeLater();
}

bool HRViewPrivate::mayOpen(const QString &attribute, const QString &path, HRFileUse use)
{
    followRules();
    return gates.admits(attribute, path, use);
}

void HRViewPrivate::followRules()
{
    gates.setReach(reach());
}

void HRViewPrivate::take(const QUrl &source)
{
    followRules();
    if (!mayBecomeScene(source, reach())) {
        gates.refuse(QStringLiteral("ui"), source.toLocalFile());
        return;
    }
    qmlFile = source.toLocalFile();
    followRules();
    if (source.isEmpty()) {
        endScene();
        return;
    }
    watch->start(scriptLimit(settings()));
    const HRScriptWatch::Entry entry(watch);
    q->QQuickView::setSource(source);
    gates.tellRefusals();
}

/// Watched to the end, since a scene may have scripts for that, too.
void HRViewPrivate::endScene()
{
    {
        const HRScriptWatch::Entry entry(watch);
        q->QQuickView::setSource(QUrl());
    }
    watch->start(0);
}

void HRViewPrivate::report(HRMessageType type, const QString &message) const
{
    if (manager)
        manager->handleMessage(type, message);
}

void HRViewPrivate::reportErrors(const QString &pattern, const QList<QQmlError> &errors) const
{
    // The host may delete the view, or all there is, when it is told of the first.
    const QPointer<HRManager> listener = manager;
    for (const QQmlError &error : errors) {
        if (listener)
            listener->handleMessage(messageDebug,
                pattern.arg(error.line()).arg(error.column()).arg(error.description()));
    }
}

void HRViewPrivate::reportRefusal(const QString &kind, const QString &path) const
{
    report(messageWarning,
        QStringLiteral("Package \"%1\" may not use %2 \"%3\"").arg(packageName(), kind, path));
}

void HRViewPrivate::stopScript(int limit)
{
    q->setSource(QUrl());
    report(messageWarning,
        QStringLiteral("A script of package \"%1\" ran for more than %2 ms and was stopped")
            .arg(packageName(), QString::number(limit)));
}

HRReach HRViewPrivate::reach() const
{
    return manager ? reachOfScene(
               manager->context(), *manager->index(), content.entry(), qmlFile, *q->engine())
                   : HRReach();
}

QString HRViewPrivate::packageName() const
{
    const HRXmlElement *entry = content.entry();
    return entry ? entry->attribute(QStringLiteral("HRPackagName")) : QString();
}

} // namespace Hintreels
