// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "context/HRExport.h"

#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

namespace Hintreels {

class HRManager;
class HRView;
struct HRWidgetPrivate;

/// The popup: holds a view, stands beside the pointer, and hides when the pointer has left it.
///
/// It stays inside the screen of its reference widget, never takes the keyboard focus, and fades in
/// and out as the settings say. When QML sets the view's `reserved`, it turns into a window that
/// stays until it is closed; from then on it neither fades nor hides by itself.
///
/// Manager, reference widget and content may be deleted while the popup shows. GUI thread only.
class HINTREELS_EXPORT HRWidget : public QWidget
{
    Q_OBJECT

public:
    /// @param manager not owned; may be null, which gives every setting its default
    /// @param reference the widget that the popup belongs to; may be null
    HRWidget(HRManager *manager, QWidget *parent, QWidget *reference);

    /// Deletes the view and the content in it.
    ~HRWidget() override;

    /// Null where there is none, or where it is gone.
    HRManager *manager() const;
    /// What shows the content; null before setView().
    HRView *view() const;

    /// Takes the view over and deletes the one before it.
    void setView(HRView *view);

    /// The widget that the popup belongs to; null where it has none, or where it is gone.
    QWidget *referenceWidget() const;

    /// Tells the popup which of its children embeds the view's window. The popup's layout holds it.
    void SetContainerWidget(QWidget *container);

    /// Whether a pointer at this global position keeps the popup open: over the reference widget
    /// itself, or inside the popup widened by the setting safeMarginKey, edges included. Of a popup
    /// that stands beside a part (placementKey) it is the part, and the way from there.
    bool isSafe(const QPoint &pos) const;

    /// Starts or stops the time until the popup hides, for a pointer at this global position.
    void checkMousePosition(const QPoint &pos);

    /// Ends a fade-out, so that the popup stays; does nothing otherwise.
    void cancelHiding();

    /// Shows or hides the popup without a fade.
    void setVisible(bool visible) override;

    // Others may find these slots by their order.
public Q_SLOTS:
    /// Shows an element beside a global position and takes its tree over; null does nothing.
    ///
    /// The element shown before is deleted with its tree, unless it is the same one.
    /// @param reference a widget, or anything else for no reference widget
    /// @param rootPath directory of the element's package
    void showWithContent(
        QObject *reference, QPoint pos, HRXmlElement *content, const QString &rootPath);

    /// Moves the window inside the screen of the reference widget.
    ///
    /// Top and left are corrected first, bottom and right last: what is larger than the screen
    /// keeps its lower right corner in sight. A popup that stands beside a part (placementKey) goes
    /// where it has room for its size.
    void reposition();
    /// Fades the popup out as the setting hideAnimationDurationKey says, then hides it.
    void hideAnimated();
    /// Resets the state of the scene and hides the popup at once.
    void hideAnimationFinished();
    /// Shows the popup and fades it in as the setting showAnimationDurationKey says.
    void showAnimated();

    /// Starts the time until the popup hides anew, unless its view is to stay open.
    void setTimer();

    /// Reserves the popup, when its view asks for that and the manager agrees.
    void contentReservedChanged();

    /// Fits popup and window to the size of the QML root item.
    void contentResized();

    /// A rectangle moved inside the screen of the reference widget.
    /// @param move receives whether it had to be moved; may be null
    QRect findVisibleGeometry(QRect geometry, bool *move = nullptr);

protected:
    /// Starts the time until the popup hides, and what works only while it shows.
    void showEvent(QShowEvent *event) override;
    /// On Wayland, has a visible popup appear anew where it has been moved to.
    void moveEvent(QMoveEvent *event) override;
    /// Ends what showEvent() has started, and takes back the override cursors of QML.
    void hideEvent(QHideEvent *event) override;

private:
    friend struct HRWidgetPrivate;

    std::unique_ptr<HRWidgetPrivate> d;
};

} // namespace Hintreels
