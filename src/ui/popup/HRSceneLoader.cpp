// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRSceneLoader_p.h"

#include "gates/HRScriptWatch_p.h"

#include <QCoreApplication>
#include <QExposeEvent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <utility>

namespace Hintreels {

namespace {

// A callback may keep an event loop of its own running inside the scene, for as long as a dialog
// is open.
constexpr int retryInterval = 20; // ms

} // namespace

HRSceneLoader::Work::Work(HRSceneLoader *loader)
    : m_loader(loader)
{
    ++loader->m_work;
}

HRSceneLoader::Work::~Work()
{
    if (m_loader)
        --m_loader->m_work;
}

HRSceneLoader::HRSceneLoader(QQuickWindow *window, QQmlEngine *engine, Take take)
    : m_window(window)
    , m_engine(engine)
    , m_take(std::move(take))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &HRSceneLoader::takeWaiting);
}

void HRSceneLoader::load(const QUrl &source)
{
    forget();
    if (!isSceneAtWork()) {
        take(source);
        return;
    }
    m_waiting = source;
    m_retry.start(0);
}

void HRSceneLoader::forget()
{
    m_waiting.reset(); // what is held back is painted when the event loop is back
}

bool HRSceneLoader::isSceneAtWork() const
{
    return m_work > 0 || isScriptRunning(*m_engine);
}

bool HRSceneLoader::holdsBack(const QEvent &event)
{
    if (!m_waiting)
        return false;
    if (event.type() == QEvent::UpdateRequest)
        return m_updateHeldBack = true;
    // The window has to hear of it when it is seen no longer.
    if (event.type() == QEvent::Expose && m_window->isExposed())
        return m_exposeHeldBack = true;
    return false;
}

void HRSceneLoader::take(const QUrl &source)
{
    const Work work(this);
    m_take(source);
}

void HRSceneLoader::takeWaiting()
{
    if (isSceneAtWork()) {
        m_retry.start(retryInterval);
        return;
    }
    const QPointer<HRSceneLoader> guarded = this;
    if (m_waiting)
        take(*std::exchange(m_waiting, std::nullopt));
    if (guarded && !m_waiting)
        paintHeldBack();
}

void HRSceneLoader::paintHeldBack()
{
    if (std::exchange(m_exposeHeldBack, false)) {
        QExposeEvent expose(QRect(QPoint(), m_window->size()));
        QCoreApplication::sendEvent(m_window, &expose);
    }
    if (std::exchange(m_updateHeldBack, false))
        m_window->update();
}

} // namespace Hintreels
