// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QColor>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <functional>
#include <memory>

namespace Hintreels {
class HRManager;
class HRWidget;
} // namespace Hintreels

/// A host with a window on the screen: two buttons that have hints, a plain one, and a text field.
///
/// The hint of a button fills a popup of 200 x 120 pixels, the blue one's of 200 x 160, with the
/// colour of the button's name, around a white square. A click into its top right corner pins the
/// popup, one into its top left corner keeps it open. Any press is logged as "pressed", the
/// wheel as "scrolled", and a key as "typed" with its letter.
///
/// Messages on Qt's message output fail the test.
class HintHost
{
public:
    /// @param configure adds to the settings
    explicit HintHost(const std::function<void(HRContext &)> &configure = {});
    ~HintHost();

    Hintreels::HRManager *manager() const;

    /// The current popup; it must have been shown once.
    Hintreels::HRWidget &popup() const;

    /// Whether a popup shows.
    bool showsPopup() const;

    /// Rests the pointer on a widget's centre until the popup shows its hint there.
    bool hover(const QWidget &widget) const;

    /// Waits until another popup, which nobody points at, has gone by itself, twice: a popup that
    /// is still there by then stays.
    bool otherPopupsGo() const;

    /// Shows a button's hint without a tooltip.
    void show(QWidget &widget, const QPoint &position) const;

    QWidget window;
    QPushButton red{ "red", &window };
    QPushButton blue{ "blue", &window };
    QPushButton plain{ "plain", &window };
    QLineEdit field{ &window };

    QPointer<QWidget> reservedWindow; ///< what the host answers when a popup is pinned
    QStringList messages; ///< what QML has logged

private:
    class Interface;

    MessageGuard m_guard; // errors of the X server are messages, too

    TestPackages m_packages;
    std::unique_ptr<Interface> m_interface;
};

/// The area of a popup on the screen.
QRect areaOf(const QWidget &popup);

/// Whether the screen shows a button's hint in all of a popup, to its last pixel.
///
/// The popup's own background has the hint's colour; that QML paints shows by the white mark.
bool showsHint(const QWidget &popup, const QColor &color);

/// The middles of the corners of a hint that do something when pressed.
QPoint pinOf(const QWidget &popup);
QPoint keeperOf(const QWidget &popup);
