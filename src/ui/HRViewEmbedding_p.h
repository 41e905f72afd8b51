// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

namespace Hintreels {

/// Keeps the native window of a view inside a native window that stays.
///
/// On X11, Qt makes a new native window for a tool tip that is shown for the first time, and for
/// any window whose stays-on-top flag has changed. The native windows inside the old one die with
/// it on the server, which Qt does not notice: the view would stay blank, and painting into it
/// raises errors. So the view is embedded only once the window around it is mapped, and where that
/// window may be renewed, the view's native window is given up before and made anew.
class HRViewEmbedding : public QObject
{
public:
    void setView(QWindow *view);

    /// @param container the widget that embeds the view; may be null
    void setContainer(QWidget *container);

    /// Takes the view out of sight while the window around it is shown; embed() brings it back.
    void defer();
    void embed();

    /// Makes the view's native window anew after the window around it has been mapped.
    void renewLater();

    /// Gives the view's native window up; the next showing makes another one.
    void release();

private:
    QPointer<QWindow> m_view;
    QPointer<QWidget> m_container;
};

} // namespace Hintreels
