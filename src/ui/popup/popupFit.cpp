// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupFit_p.h"

#include "ui/items/widgetLength_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/popupGeometry_p.h"

#include <QLayout>
#include <QQuickItem>

namespace Hintreels {

namespace {

QQuickItem *rootOf(const HRWidget &popup)
{
    return popup.view() ? popup.view()->rootObject() : nullptr;
}

QSize sizeOf(const QQuickItem *root)
{
    const QRectF bounds = root->boundingRect();
    return QSize(widgetLength(bounds.width()), widgetLength(bounds.height()));
}

/// With the seam, by which the popup is larger than its content.
QSize sizeAround(const QSize &content)
{
    return content + seamSize;
}

void freeSize(QWidget &widget)
{
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void fitContainer(QWidget &container, const QSize &size, const HRContentFit &fit)
{
    container.setFixedSize(size);
    container.update();
    // A global position for a child: the popup's layout puts it right again.
    if (fit.pushed)
        container.move(fit.geometry.topLeft());
}

QColor seamOf(const QQuickItem &root, const QColor &viewColor)
{
    for (const char *name : { "seam", "color" }) {
        const QColor color = root.property(name).value<QColor>();
        if (color.isValid())
            return color;
    }
    return viewColor;
}

void settleLayout(QLayout *layout)
{
    if (!layout)
        return;
    layout->invalidate();
    layout->activate();
}

} // namespace

void takeContentSize(HRWidget &popup, QWidget *container)
{
    const QQuickItem *root = rootOf(popup);
    if (!root)
        return;
    const QSize size = sizeOf(root);
    freeSize(popup);
    if (container)
        container->setFixedSize(size);
    popup.resize(sizeAround(size));
}

QSize sizeAroundContent(const HRWidget &popup)
{
    const QQuickItem *root = rootOf(popup);
    return root ? sizeAround(sizeOf(root)) : popup.size();
}

bool fitsContent(const HRWidget &popup)
{
    return popup.size() == sizeAroundContent(popup);
}

void fitToContent(HRWidget &popup, QWidget *container, const QRect &screen)
{
    const QQuickItem *root = rootOf(popup);
    if (!root)
        return;
    const QSize size = sizeOf(root);
    QWidget *window = popup.window();
    const QRect frame = window->frameGeometry();
    const int titleBar = frame.top() - window->geometry().top();
    const HRContentFit fit = fitContent(size, frame.topLeft(), titleBar, screen);
    if (container)
        fitContainer(*container, size, fit);
    const QSize outer = sizeAround(fit.geometry.size());
    popup.setFixedSize(outer);
    window->setFixedSize(outer);
    settleLayout(popup.layout());
}

void matchBackground(HRWidget &popup)
{
    const QQuickItem *root = rootOf(popup);
    if (!root)
        return;
    const QColor color = seamOf(*root, popup.view()->color());
    QPalette palette = popup.palette();
    if (palette.color(QPalette::Window) == color)
        return;
    palette.setColor(QPalette::Window, color);
    popup.setPalette(palette);
}

} // namespace Hintreels
