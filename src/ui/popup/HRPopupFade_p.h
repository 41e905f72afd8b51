// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaObject>

#include <functional>

class QVariantAnimation;
class QWidget;

namespace Hintreels {

/// Fades a window in and out by its opacity.
///
/// The animation is a child of the window. One fade runs at a time; stopping it tells nobody. On
/// Wayland, where windows have no opacity, a fade takes its time only.
class HRPopupFade
{
public:
    using Ended = std::function<void()>;

    /// @param window must outlive the fade
    explicit HRPopupFade(QWidget *window);

    bool isRunning() const;
    bool isFadingOut() const;

    void setOpacity(qreal opacity);

    /// Animates the opacity; @p ended is called when that is done.
    ///
    /// The start is named, since a window keeps its opacity in steps of 1/255 and rounds down.
    /// @param duration in milliseconds, above zero
    void fade(qreal from, qreal to, int duration, const Ended &ended);

    /// Stops without calling back; the opacity stays as it is.
    void stop();

private:
    QWidget *m_window;
    QVariantAnimation *m_animation;
    QMetaObject::Connection m_ended;
};

} // namespace Hintreels
