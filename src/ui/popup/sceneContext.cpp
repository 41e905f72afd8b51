// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/sceneContext_p.h"

#include "reader/HRDesktopWishes_p.h"
#include "reader/readerSettings_p.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "ui/reader/HRContentReader_p.h"

#include <QGuiApplication>
#include <QQmlContext>

namespace Hintreels {

namespace {

/// Bindings follow at once.
void tellReader(HRView &view, void (HRContentReader::*told)())
{
    const HRSceneLoader::Work work(&HRViewPrivate::of(view).loader);
    const HRScriptWatch::Entry entry(HRViewPrivate::of(view).watch);
    const QVariant reader = view.rootContext()->contextProperty(QStringLiteral("hintreelReader"));
    if (auto *contentReader = reader.value<HRContentReader *>())
        (contentReader->*told)();
}

/// The context keeps a connection for every object that it is given, so these are given once.
void setLastingProperties(QQmlContext &context, HRView *view, const QPointer<HRManager> &manager)
{
    context.setContextProperty(QStringLiteral("hintreelView"), view);
    const auto settings = [m = manager] {
        return m ? sceneSettings(m->context(), m->currentLocale()) : sceneSettings();
    };
    const auto admits = [v = QPointer<HRView>(view)](const QString &path, HRFileUse use) {
        return v && HRViewPrivate::of(*v).mayOpen(QStringLiteral("source"), path, use);
    };
    auto *reader = new HRContentReader(settings, view, admits);
    context.setContextProperty(QStringLiteral("hintreelReader"), reader);
    const auto follow = [view] { tellReader(*view, &HRContentReader::follow); };
    QObject::connect(&HRDesktopWishes::ofApplication(), &HRDesktopWishes::changed, reader, follow);
    QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, reader, follow);
    if (const HRReaderSettings *decisions = manager ? readerSettings(&manager->context()) : nullptr)
        QObject::connect(decisions, &HRReaderSettings::changed, reader, follow);
}

HRContentReader *readerOf(const HRView &view)
{
    const QVariant reader = view.rootContext()->contextProperty(QStringLiteral("hintreelReader"));
    return reader.value<HRContentReader *>();
}

} // namespace

void setSceneContext(HRView &view, HRXmlElement *content, const QString &packageRoot,
    const QPointer<HRManager> &manager)
{
    const HRSceneLoader::Work work(&HRViewPrivate::of(view).loader);
    const HRScriptWatch::Entry entry(HRViewPrivate::of(view).watch);
    QQmlContext *context = view.rootContext();
    context->setContextProperty(QStringLiteral("hintreel"), content);
    context->setContextProperty(QStringLiteral("dataLocation"), packageRoot);
    if (!context->contextProperty(QStringLiteral("hintreelView")).isValid())
        setLastingProperties(*context, &view, manager);
}

void setSceneColors(HRView &view, const QVariantMap &colors)
{
    const HRSceneLoader::Work work(&HRViewPrivate::of(view).loader);
    const HRScriptWatch::Entry entry(HRViewPrivate::of(view).watch);
    if (HRContentReader *reader = readerOf(view))
        reader->setHostColors(colors);
}

void setSceneFocus(HRView &view, QQuickItem *item)
{
    const HRSceneLoader::Work work(&HRViewPrivate::of(view).loader);
    const HRScriptWatch::Entry entry(HRViewPrivate::of(view).watch);
    if (HRContentReader *reader = readerOf(view))
        reader->setFocusItem(item);
}

void growScene(HRView &view)
{
    tellReader(view, &HRContentReader::grow);
}

} // namespace Hintreels
