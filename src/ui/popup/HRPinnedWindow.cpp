// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPinnedWindow_p.h"

#include "ui/popup/HRSpokenHint_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/popupFit_p.h"

#include <QApplication>
#include <QShortcut>
#include <QVBoxLayout>

namespace Hintreels {

HRPinnedWindow::HRPinnedWindow(HRWidget &popup, QWidget *parent)
    : QWidget(parent,
        Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
            | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint)
    , m_popup(&popup)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    // A menu that is open stays so. Qt takes no notice of a window that becomes active meanwhile.
    setAttribute(Qt::WA_ShowWithoutActivating, QApplication::activePopupWidget());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    for (const QKeySequence &key :
        { QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close) })
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    // After the popup has taken the size itself.
    connect(popup.view(), &HRView::contentSizeChanged, this, &HRPinnedWindow::fit);
}

bool HRPinnedWindow::giveFocusBack() const
{
    if (!parentWidget())
        return false;
    parentWidget()->activateWindow();
    return true;
}

/// Qt closes open menus for any other window than a tool's. To the window system it is none, and
/// has its place in the task bar.
void HRPinnedWindow::setVisible(bool visible)
{
    if (visible && !isVisible() && !takeTitle())
        return;
    const Qt::WindowFlags flags = windowFlags();
    winId();
    overrideWindowFlags(flags | Qt::Tool);
    QWidget::setVisible(visible);
    overrideWindowFlags(flags);
}

/// False where the host, asked for a translation, has deleted the window.
bool HRPinnedWindow::takeTitle()
{
    const QPointer<HRPinnedWindow> guarded = this;
    const QString title = m_popup ? shownTitle(m_popup->view()) : QString();
    if (guarded && !title.isEmpty())
        setWindowTitle(title);
    return guarded;
}

void HRPinnedWindow::closeEvent(QCloseEvent *event)
{
    if (isActiveWindow())
        giveFocusBack();
    QWidget::closeEvent(event);
}

void HRPinnedWindow::resizeEvent(QResizeEvent *)
{
    fit();
}

/// The popup counts the height of a title bar as its content's, and keeps room for a seam.
void HRPinnedWindow::fit()
{
    if (!m_popup || m_popup->parentWidget() != this)
        return;
    const QSize content = sizeAroundContent(*m_popup) - seamSize;
    m_popup->setFixedSize(content);
    setFixedSize(content);
}

QWidget *windowFor(const HRWidget &popup)
{
    QWidget *window = popup.referenceWidget() ? popup.referenceWidget()->window() : nullptr;
    while (window && window->windowType() == Qt::Popup)
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window ? window : QApplication::activeWindow();
}

} // namespace Hintreels
