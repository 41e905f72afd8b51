// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

namespace Hintreels {

class HRWidget;

/// A window for a popup that its reader pins: as large as the content, and closed by Escape and by
/// the desktop's keys for closing.
///
/// It is deleted, with the popup, when it is closed or its parent goes, and does not keep the
/// application from ending. GUI thread only.
class HRPinnedWindow : public QWidget
{
public:
    /// @param popup is about to be pinned, and has a view
    HRPinnedWindow(HRWidget &popup, QWidget *parent);

    /// Makes the window that it was pinned from the active one; false where there is none.
    bool giveFocusBack() const;

    /// Under the hint's title, in the reader's language. An open menu, whose hint was pinned, stays
    /// open.
    void setVisible(bool visible) override;

protected:
    /// Its reader goes on where the hint was asked for.
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool takeTitle();
    void fit();

    QPointer<HRWidget> m_popup;
};

/// The window that a popup's reference widget lies in, or that its menu was opened from; else the
/// active one. May be null.
QWidget *windowFor(const HRWidget &popup);

} // namespace Hintreels
