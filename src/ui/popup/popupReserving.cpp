// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupReserving_p.h"

#include "ui/popup/HRPinnedWindow_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/wayland_p.h"

#include <QVBoxLayout>

namespace Hintreels {

namespace {

QLayout *layoutFor(QWidget *window)
{
    if (QLayout *layout = window->layout())
        return layout;
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

/// Some compositors leave the keyboard to a window that belongs to another, whose tooltips would
/// not come any more.
void keepToolTipsOf(QWidget *window)
{
    if (window && isOnWayland())
        window->setAttribute(Qt::WA_AlwaysShowToolTips);
}

} // namespace

void moveIntoWindow(HRWidget &popup, QWidget *window)
{
    const QPoint position = popup.pos();
    keepToolTipsOf(windowFor(popup));
    popup.setParent(window);
    if (const HRXmlElement *content = popup.view()->content())
        window->setWindowTitle(content->attribute(QStringLiteral("title")));
    layoutFor(window)->addWidget(&popup);
    popup.contentResized();
    window->move(position);
    popup.show();
    window->show();
}

void moveIntoOwnWindow(HRWidget &popup)
{
    const QPoint position = popup.pos();
    const QWidget *reference = popup.referenceWidget();
    keepToolTipsOf(windowFor(popup));
    popup.setAttribute(Qt::WA_DeleteOnClose);
    popup.setParent(reference ? reference->window() : nullptr,
        Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint);
    popup.setWindowModality(Qt::NonModal);
    // The property, not the attribute: content names such a window only where it sets one.
    if (const HRXmlElement *content = popup.view()->content())
        popup.setWindowTitle(content->property("title").toString());
    popup.move(position);
    popup.show();
}

} // namespace Hintreels
