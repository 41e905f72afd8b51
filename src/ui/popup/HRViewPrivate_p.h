// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRContent_p.h"
#include "gates/HRSceneGates_p.h"
#include "gates/HRScriptWatch_p.h"
#include "interface/HRTypes.h"
#include "manager/HRManager.h"
#include "ui/popup/HROverrideCursors_p.h"
#include "ui/popup/HRRequiredUi_p.h"
#include "ui/popup/HRSceneLoader_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRViewClips_p.h"

#include <QPointer>

#include <memory>

namespace Hintreels {

/// What a view is made of, and what the library's other pieces ask of it.
struct HRViewPrivate
{
    HRViewPrivate(HRView *view, HRManager *hrManager);

    static HRViewPrivate &of(HRView &view) { return *view.d; }

    /// Null without manager, for the defaults.
    const HRContext *settings() const { return manager ? &manager->context() : nullptr; }

    /// Shows other content, without a signal.
    /// @return what was shown before; nothing where it was the same
    HRContent exchangeContent(HRContent next);

    /// Frees what is shown no longer: at once, or from the event loop when this is called from
    /// inside the scene, which may be working on it.
    void freeContent(HRContent previous) const;

    /// Whether the settings let the content use a file, which is told where they do not.
    bool mayOpen(const QString &attribute, const QString &path, HRFileUse use);

    /// Holds the scene to the rules that the settings make for it now.
    void followRules();

    /// Makes the scene of a file, in place of the one before.
    void take(const QUrl &source);
    void endScene();

    void report(HRMessageType type, const QString &message) const;
    void reportErrors(const QString &pattern, const QList<QQmlError> &errors) const;
    void reportRefusal(const QString &kind, const QString &path) const;
    void stopScript(int limit);

    HRReach reach() const;
    QString packageName() const;

    HRView *q;
    QPointer<HRManager> manager;
    QPointer<QWidget> popup; // that holds the view
    HRContent content;
    QString packageRoot;
    bool stayOpen = false;
    bool reserved = false;
    HROverrideCursors cursors;
    HRSceneLoader loader;
    HRRequiredUi ui;
    QString qmlFile; // of the scene
    HRSceneGates gates;
    std::shared_ptr<HRScriptWatch> watch;
    HRViewClips *clips; // the view's child
};

} // namespace Hintreels
