// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QHash>
#include <QObject>
#include <QVariantMap>

QT_BEGIN_NAMESPACE
class QPalette;
class QWidget;
QT_END_NAMESPACE

namespace Hintreels {

/// Finds the colours in which a hint goes with the widget that it belongs to.
///
/// These are window and text colour of the widget's own palette, as its style or a style sheet has
/// left it. Where the widget's window shows another background, it is that one, with black or white
/// text. A host names other colours with the dynamic property `hintreelPalette`, a QPalette, on the
/// widget, on one that it is in, or on the application.
///
/// A window is painted once, and again after its style or palette has changed. GUI thread only.
class HRHostColors : public QObject
{
public:
    using QObject::QObject;

    /// Colours by their name in QPalette: "window", "windowText", "base", "highlight" and
    /// "highlightedText". Painting a window calls the host, which may delete this.
    QVariantMap colorsFor(QWidget &widget);

    /// Forgets the background of a window that changes.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QColor backgroundOf(QWidget &window);
    void forget(QObject *window) { m_backgrounds.remove(window); }

    QHash<QObject *, QColor> m_backgrounds; ///< by window; invalid where none was painted
};

} // namespace Hintreels
