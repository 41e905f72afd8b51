// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace Hintreels {

/// Keeps the native window of a view inside a native window that stays.
///
/// On X11, Qt makes a new native window for a tool tip that is shown for the first time, and for
/// any window whose stays-on-top flag has changed. The native windows inside the old one die with
/// it on the server, which Qt does not notice: the view would stay blank, and painting into it
/// raises errors. So wherever showing may renew the window around the view, the view's native
/// window is given up before, and made anew once the window around it is mapped.
///
/// On Wayland, a view that is shown before the compositor has given the window around it its size
/// stays unexposed, and never paints. So the view comes in whenever the window around it is
/// exposed, and leaves when it no longer is: the news of a showing may come after the window was
/// hidden.
class HRViewEmbedding : public QObject
{
public:
    void setView(QWindow *view);

    /// @param container the widget that embeds the view; may be null
    void setContainer(QWidget *container);

    /// Gives the view's native window up, if showing the popup may renew the window around it.
    void prepareFor(const QWidget &popup);

    /// Brings the view into a popup that is mapped.
    void embedIn(const QWidget &popup);

    /// Makes the view's native window anew after the window around it has been mapped.
    void renewLater();

    /// Gives the view's native window up; the next showing makes another one.
    void release();

    /// On Wayland, notices when the window around the view is exposed.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Changes whenever showing a popup may renew its window.
    using NativeWindow = std::pair<WId, Qt::WindowFlags>;

    static NativeWindow nativeWindowOf(const QWidget &popup);
    void hideContainer();
    void showContainer();

    QPointer<QWindow> m_view;
    QPointer<QWidget> m_container;
    NativeWindow m_window; // that the view was last embedded in
};

} // namespace Hintreels
