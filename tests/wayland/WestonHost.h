// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "x11/HintHost.h"

#include <functional>

/// A host whose window a Wayland compositor has placed, nobody knows where.
///
/// The window shows its place by a mark in its top left corner; so input and looks find it.
class WestonHost : public HintHost
{
public:
    /// @param configure adds to the settings
    explicit WestonHost(const std::function<void(HRContext &)> &configure = {});

    /// Finds the window on the screen, once it is there and rests.
    bool find();

    /// Where the window was found: 0 on the left, 1 on the right.
    int output() const;

    /// Has another window found from now on.
    void moveMarkTo(QWidget &other);

private:
    QPointer<QWidget> m_mark = new QWidget(&window);
    int m_output = 0;
};

/// Pixels of the screen for one of the application.
int outputScale();

/// What the X server shows of an output, in its pixels.
/// @param output 0 on the left, 1 on the right
QRect outputOnScreen(int output);

/// Rests the pointer in the lower left corner of an output, where windows appear then.
void restPointerElsewhere(int output = 0);

/// Waits until something holds, for as long as other programs may keep the processor busy.
bool eventually(const std::function<bool()> &holds);
