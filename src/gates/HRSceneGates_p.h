// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gates/HRNetworkAccess_p.h"
#include "gates/HRUrlGate_p.h"

#include <QMutex>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QVector>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QQmlEngine;
class QQuickItem;
QT_END_NAMESPACE

namespace Hintreels {

/// All gates of one scene: what its engine loads passes them, and what the library opens for it.
///
/// Each file that is refused is told once for each content, with what it was refused for: at once
/// where the library opens it, and from the event loop where the engine does, since a host must not
/// be called from inside the engine's loader. The engine does not tell which property a URL is for;
/// the one that holds it by then is told, else the kind of the URL. GUI thread, but for the gates
/// themselves.
class HRSceneGates : public QObject
{
public:
    using Report = std::function<void(const QString &kind, const QString &path)>;

    /// @param engine outlives this; loads nothing afterwards
    /// @param root all items of the scene are below it; outlives this
    HRSceneGates(QQmlEngine *engine, QQuickItem *root, Report report);
    ~HRSceneGates() override;

    void setReach(const HRReach &reach) { m_gate->setReach(reach); }
    HRPackageRules rules() const { return m_gate->rules(); }

    /// Whether the scene may use a file, and tells where it may not.
    bool admits(const QString &attribute, const QString &path, HRFileUse use);

    /// Tells that a file is refused, once.
    void refuse(const QString &kind, const QString &path);

    /// Tells what the engine was refused; the event loop does so later.
    void tellRefusals();

    /// Other content is shown: what is refused is told anew.
    void forgetRefusals() { m_told.clear(); }

private:
    using Refusal = QPair<QString, QString>;

    void noteRefusal(const Refusal &refusal);

    QQmlEngine *m_engine;
    QQuickItem *m_root;
    Report m_report;
    std::shared_ptr<HRFileGate> m_gate = std::make_shared<HRFileGate>();
    HRUrlGate m_urls;
    HRNetworkAccessFactory m_network;
    QSet<Refusal> m_told;
    QMutex m_mutex;
    QVector<Refusal> m_refusals; // guarded by m_mutex
};

} // namespace Hintreels
