// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "recorder/ClipCaptions.h"
#include "recorder/ClipScript.h"

#include <QStringList>

#include <functional>

class QPainterPath;

namespace Sketchpad {

class ClipStage;

/// Plays a script on a stage, in the clip's own time: the next picture is taken when the
/// application has answered the last event, however long that takes.
class ClipPlayer
{
public:
    /// Takes the clip's next picture, with the keys that are held; false ends the clip.
    using TakePicture = std::function<bool(const QStringList &keys)>;

    ClipPlayer(ClipStage &stage, int picturesPerSecond, TakePicture takePicture);

    /// False where a step could not be played; error() says which.
    bool play(const ClipScript &script);

    QString error() const { return m_error; }
    const ClipCaptions &captions() const { return m_captions; }
    /// How long the clip is so far.
    double seconds() const { return double(m_taken) / m_picturesPerSecond; }

private:
    bool playStep(const ClipStep &step);
    bool playMove(const ClipStep &step);
    bool playDrag(const ClipStep &step);
    bool playButton(ClipAction action);
    bool playModifier(const ClipStep &step);
    bool playKey(const QString &keys);
    bool playText(const QString &text);
    bool follow(const QPainterPath &path, double seconds);
    bool let(double seconds);

    ClipStage &m_stage;
    const int m_picturesPerSecond;
    TakePicture m_takePicture;
    ClipCaptions m_captions;
    QString m_error;
    QStringList m_keys;
    bool m_isRecording = false;
    double m_tremble = 0;
    int m_taken = 0;
};

} // namespace Sketchpad
