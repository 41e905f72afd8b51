// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRClipState_p.h"
#include "video/HRVideoComponent.h"
#include "video/HRVideoController.h"
#include "video/HRVideoSourceFFMPEG.h"

namespace Hintreels {

/// Keeps a controller to what the state of its clip says. GUI thread only.
struct HRVideoComponentPrivate
{
    explicit HRVideoComponentPrivate(HRVideoComponent *item);

    bool isPlaying() const { return controller->state() == HRVideoController::controllerPlaying; }
    void apply(HRClipEvent event);
    void lookForEnd();

    void open(const QUrl &url);
    void sourceTaken();
    void decodingEnded();
    void clipFailed();
    void setFailed(bool hasFailed);
    void lookForFlashes();
    void setFlashing(bool flashes);
    void dropPicture();
    void followVisibility(QQuickWindow *window);

    void obey(HRClipState::Action action);
    void announce(const HRClipState &before, const HRClipState &after);
    void showLastPicture();
    void tellLength();

    HRVideoComponent *const q;
    HRVideoSourceFFMPEG *const videoSource;
    HRVideoController *const controller;
    HRVideoFrame picture;
    QTransform toUpright; // of that picture; none where it is not wanted
    bool upright = false;
    bool failed = false;
    bool flashing = false;
    double contentHeightSeen = 0.0;
    double progressSeen = 0.0;
    double lengthSeen = 0.0;
    QString searchPath;
    QString source;
    // Clips that were asked for and have not replaced the one before yet, whose pictures are not
    // to be shown any more.
    int awaitedSources = 0;
    HRClipState clip;
    QMetaObject::Connection visibility;
};

} // namespace Hintreels
