// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QSize>

class QWidget;

namespace Hintreels {

class HRWidget;

// How a popup takes the size and the colour of its content. All of it does nothing while the popup
// has no QML root item.

/// By how much a popup is larger than its content.
constexpr QSize seamSize(1, 1); // px

/// Gives a popup the size around its content before it is shown, with the seam.
///
/// It would appear in another size first otherwise, and stick out of the screen.
/// @param container embeds the view; may be null
void takeContentSize(HRWidget &popup, QWidget *container);

/// The size that goes around the content now, or that of the popup where there is none.
QSize sizeAroundContent(const HRWidget &popup);

/// Whether a popup has the size of its content already.
bool fitsContent(const HRWidget &popup);

/// Fixes popup and window to the size of the content, as far as the screen allows.
/// @param container embeds the view; may be null
void fitToContent(HRWidget &popup, QWidget *container, const QRect &screen);

/// Gives a popup's own background the colour that goes with its content.
///
/// The popup is one pixel wider and higher than the content. That seam has the colour that the QML
/// root item names as `seam`, else the item's own `color`, else that of the view.
void matchBackground(HRWidget &popup);

} // namespace Hintreels
