// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QQmlEngine;
class QQuickWindow;
QT_END_NAMESPACE

namespace Hintreels {

/// Decides when a window takes the next QML file: at once, unless its scene is at work.
///
/// Taking a file deletes the scene before. That must not happen while one of its scripts is on the
/// stack, while the window handles an event or while the scene is being made: Qt ends the host
/// then. Such a file waits until control is back in the event loop, and as long as it waits the
/// window paints nothing, for the scene that is left belongs to what was shown before.
///
/// What it does not see: a C++ slot that is connected straight to a signal of an item, and is
/// called by an animation that runs without any script.
///
/// It borrows the window and the engine. GUI thread only.
class HRSceneLoader : public QObject
{
    Q_OBJECT

public:
    using Take = std::function<void(const QUrl &)>;

    /// @param take makes the window take a file, deleting the scene before
    HRSceneLoader(QQuickWindow *window, QQmlEngine *engine, Take take);

    /// Takes a file now or later; only the last of those that wait is taken.
    void load(const QUrl &source);

    /// Forgets the file that waits.
    void forget();

    /// The file that waits; none where the window has all that it was asked to take.
    const std::optional<QUrl> &waiting() const { return m_waiting; }

    /// Whether deleting the scene now would end the host.
    bool isSceneAtWork() const;

    /// Whether an event of the window is to be left alone since it would paint; it is made up for.
    bool holdsBack(const QEvent &event);

    /// Marks the scene as at work while it lives; the loader may be gone before it.
    class Work
    {
    public:
        explicit Work(HRSceneLoader *loader);
        ~Work();
        Q_DISABLE_COPY(Work)

    private:
        QPointer<HRSceneLoader> m_loader;
    };

private:
    void take(const QUrl &source);
    void takeWaiting();
    void paintHeldBack();

    QQuickWindow *m_window;
    QQmlEngine *m_engine;
    Take m_take;
    QTimer m_retry;
    std::optional<QUrl> m_waiting;
    int m_work = 0;
    bool m_exposeHeldBack = false;
    bool m_updateHeldBack = false;
};

} // namespace Hintreels
