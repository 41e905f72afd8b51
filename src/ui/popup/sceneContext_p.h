// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

QT_BEGIN_NAMESPACE
class QString;
QT_END_NAMESPACE

QT_BEGIN_NAMESPACE
class QQuickItem;
QT_END_NAMESPACE

namespace Hintreels {

class HRManager;
class HRView;
class HRXmlElement;

/// Tells the QML in a view what is shown: `hintreel`, `dataLocation`, `hintreelView` and
/// `hintreelReader`.
///
/// Bindings follow at once and may call the host back, which may show something else meanwhile.
/// @param packageRoot directory of the content's package
/// @param manager whose settings the reader follows; may be null, for the desktop's
void setSceneContext(HRView &view, HRXmlElement *content, const QString &packageRoot,
    const QPointer<HRManager> &manager);

/// Gives the scene's reader the colours of what the hint belongs to; see HRHostColors.
void setSceneColors(HRView &view, const QVariantMap &colors);

/// Lets a hint that has begun small show all that its reader wants.
void growScene(HRView &view);

/// Tells the scene which of its items has the keyboard while its window is not the active one; null
/// for none.
void setSceneFocus(HRView &view, QQuickItem *item);

} // namespace Hintreels
