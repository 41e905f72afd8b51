// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRSceneGates_p.h"

#include "gates/urlProperties_p.h"

#include <QMutexLocker>
#include <QPointer>
#include <QQmlEngine>

#include <utility>

namespace Hintreels {

HRSceneGates::HRSceneGates(QQmlEngine *engine, QQuickItem *root, Report report)
    : m_engine(engine)
    , m_root(root)
    , m_report(std::move(report))
    , m_urls(m_gate,
          [this](const QString &kind, const QString &path) {
              noteRefusal({ kind, path });
          })
    , m_network(m_gate, [this](const QString &kind, const QString &path) {
        noteRefusal({ kind, path });
    })
{
    m_engine->setUrlInterceptor(&m_urls);
    m_engine->setNetworkAccessManagerFactory(&m_network);
}

HRSceneGates::~HRSceneGates()
{
    m_engine->setUrlInterceptor(nullptr);
    m_engine->setNetworkAccessManagerFactory(nullptr);
}

bool HRSceneGates::admits(const QString &attribute, const QString &path, HRFileUse use)
{
    if (m_gate->mayOpen(path, use))
        return true;
    refuse(attribute, path);
    return false;
}

void HRSceneGates::refuse(const QString &kind, const QString &path)
{
    if (m_told.contains({ kind, path }))
        return;
    m_told.insert({ kind, path });
    m_report(kind, path);
}

void HRSceneGates::tellRefusals()
{
    QVector<Refusal> refusals;
    {
        const QMutexLocker locker(&m_mutex);
        refusals.swap(m_refusals);
    }
    if (refusals.isEmpty())
        return;
    const QHash<QString, QString> properties = urlProperties(m_root);
    const QPointer<HRSceneGates> guarded = this;
    for (const Refusal &refusal : qAsConst(refusals)) {
        if (guarded)
            refuse(properties.value(refusal.second, refusal.first), refusal.second);
    }
}

void HRSceneGates::noteRefusal(const Refusal &refusal)
{
    const QMutexLocker locker(&m_mutex);
    m_refusals.append(refusal);
    QMetaObject::invokeMethod(
        this, [this] { tellRefusals(); }, Qt::QueuedConnection);
}

} // namespace Hintreels
