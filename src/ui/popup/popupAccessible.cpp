// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupAccessible_p.h"

#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/HRWidgetPrivate_p.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QQuickItem>

#include <algorithm>

namespace Hintreels {

namespace {

/// An object that is being deleted still has its face, but is no popup and no view any more.
class HRPopupFace : public QAccessibleWidget
{
public:
    explicit HRPopupFace(HRWidget *popup)
        : QAccessibleWidget(popup)
    {
    }

    QAccessible::Role role() const override
    {
        return isReserved() ? QAccessible::Grouping : QAccessible::ToolTip;
    }

    // Qt would name the window that a popup belongs to, which does not have it among its children.
    QAccessibleInterface *parent() const override
    {
        return widget()->isWindow() ? QAccessible::queryAccessibleInterface(qApp)
                                    : QAccessibleWidget::parent();
    }

    int childCount() const override { return view() ? 1 : 0; }

    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(view()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return view() && child->object() == view() ? 0 : -1;
    }

private:
    HRWidget *popup() const { return qobject_cast<HRWidget *>(object()); }
    HRView *view() const { return popup() ? popup()->view() : nullptr; }
    bool isReserved() const { return popup() && HRWidgetPrivate::of(*popup()).reserved; }
};

/// Whether QML has said so by Accessible.ignored: the item has its face all the same.
bool isIgnored(const QQuickItem &item)
{
    const QObjectList &children = item.children();
    return std::any_of(children.begin(), children.end(), [](const QObject *child) {
        return child->inherits("QQuickAccessibleAttached") && child->property("ignored").toBool();
    });
}

/// The items below one that have something to say, those inside each other left out.
QList<QAccessibleInterface *> facesBelow(const QQuickItem &item)
{
    QList<QAccessibleInterface *> faces;
    const QList<QQuickItem *> children = item.childItems();
    for (QQuickItem *child : children) {
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(child);
        if (face && !isIgnored(*child))
            faces.append(face);
        else
            faces.append(facesBelow(*child));
    }
    return faces;
}

class HRSceneFace : public QAccessibleObject
{
public:
    explicit HRSceneFace(HRView *view)
        : QAccessibleObject(view)
    {
    }

    QWindow *window() const override { return view(); }
    QAccessible::Role role() const override { return QAccessible::Pane; }
    QString text(QAccessible::Text) const override { return {}; }

    QRect rect() const override
    {
        return view() ? QRect(view()->mapToGlobal(QPoint(0, 0)), view()->size()) : QRect();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !view() || !view()->isVisible();
        state.active = view() && view()->isActive();
        return state;
    }

    QAccessibleInterface *parent() const override
    {
        QWidget *popup = view() ? HRViewPrivate::of(*view()).popup.data() : nullptr;
        return QAccessible::queryAccessibleInterface(popup ? static_cast<QObject *>(popup) : qApp);
    }

    int childCount() const override { return faces().size(); }
    QAccessibleInterface *child(int index) const override { return faces().value(index); }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return faces().indexOf(const_cast<QAccessibleInterface *>(child));
    }

    QAccessibleInterface *focusChild() const override
    {
        return view() ? QAccessible::queryAccessibleInterface(view()->activeFocusItem()) : nullptr;
    }

private:
    HRView *view() const { return qobject_cast<HRView *>(object()); }

    QList<QAccessibleInterface *> faces() const
    {
        return view() ? facesBelow(*view()->contentItem()) : QList<QAccessibleInterface *>();
    }
};

QAccessibleInterface *faceOf(const QString &className, QObject *object)
{
    if (className == QLatin1String("Hintreels::HRWidget"))
        return new HRPopupFace(static_cast<HRWidget *>(object));
    if (className == QLatin1String("Hintreels::HRView"))
        return new HRSceneFace(static_cast<HRView *>(object));
    return nullptr;
}

} // namespace

void installPopupAccessible()
{
    QAccessible::installFactory(&faceOf);
}

} // namespace Hintreels
