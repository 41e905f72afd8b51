// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/FakeSource.h"
#include "support/SignalCounter.h"
#include "video/HRVideoController.h"

/// A controller over a source that the test feeds. The controller is on the heap, since a started
/// one deletes itself.
struct Playback
{
    explicit Playback(int pictures)
        : controller(new Hintreels::HRVideoController(&source))
        , display(controller, &Hintreels::HRVideoController::displayFrame)
        , state(controller, &Hintreels::HRVideoController::stateChanged)
        , position(controller, &Hintreels::HRVideoController::positionChanged)
    {
        if (pictures > 0)
            source.load(url(), pictures);
    }

    ~Playback()
    {
        controller->quit();
        delete controller;
    }

    static QUrl url() { return QUrl(QStringLiteral("file:///a.mp4")); }

    FakeSource source;
    Hintreels::HRVideoController *controller;
    SignalCounter display;
    SignalCounter state;
    SignalCounter position;
};
