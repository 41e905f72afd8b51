// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipPlayer.h"

#include "recorder/ClipMotion.h"
#include "recorder/ClipStage.h"

namespace Sketchpad {

namespace {

// Seconds that let the eye catch what happened.
const double clickTime = 0.20;
const double keyTime = 0.35;
const double letterTime = 0.09;

// A mouse reports more often than a clip has pictures.
const int movesPerPicture = 4;

const QMap<QString, Qt::KeyboardModifier> modifiers = {
    { "Shift", Qt::ShiftModifier },
    { "Ctrl", Qt::ControlModifier },
    { "Alt", Qt::AltModifier },
};

} // namespace

ClipPlayer::ClipPlayer(ClipStage &stage, int picturesPerSecond, TakePicture takePicture)
    : m_stage(stage)
    , m_picturesPerSecond(picturesPerSecond)
    , m_takePicture(std::move(takePicture))
{
}

bool ClipPlayer::play(const ClipScript &script)
{
    for (const ClipStep &step : script.steps()) {
        if (!playStep(step)) {
            m_error = QString("line %1: cannot be played").arg(step.line);
            return false;
        }
    }
    return true;
}

bool ClipPlayer::playStep(const ClipStep &step)
{
    switch (step.action) {
    case ClipAction::Record:
        m_isRecording = true;
        return true;
    case ClipAction::Move:
        return playMove(step);
    case ClipAction::Drag:
        return playDrag(step);
    case ClipAction::Click:
    case ClipAction::DoubleClick:
    case ClipAction::Press:
    case ClipAction::Release:
        return playButton(step.action);
    case ClipAction::Hold:
    case ClipAction::Free:
        return playModifier(step);
    case ClipAction::Key:
        return playKey(step.name);
    case ClipAction::Type:
        return playText(step.text);
    case ClipAction::Wheel:
        m_stage.turnWheel(qRound(step.amount));
        return let(clickTime);
    case ClipAction::Wait:
        return let(step.amount);
    case ClipAction::Tremble:
        m_tremble = step.amount;
        return true;
    case ClipAction::Color:
        return m_stage.setColor(step.name, QColor(step.text));
    case ClipAction::Say:
        m_captions.say(step.name, step.text, seconds());
        return true;
    }
    return false;
}

bool ClipPlayer::playMove(const ClipStep &step)
{
    const std::optional<QPointF> target = step.points.isEmpty()
        ? m_stage.middleOf(step.name)
        : m_stage.fromCanvas(step.points.first());
    if (!target)
        return false;
    const QPainterPath path = curveThrough({ m_stage.pointer(), *target });
    return follow(path, handTime(path.length()));
}

bool ClipPlayer::playDrag(const ClipStep &step)
{
    QVector<QPointF> points;
    for (const QPointF &point : step.points)
        points.append(m_stage.fromCanvas(point));
    const QPainterPath approach = curveThrough({ m_stage.pointer(), points.first() });
    const QPainterPath path = curveThrough(points);
    return follow(approach, handTime(approach.length())) && playButton(ClipAction::Press)
        && follow(path, step.amount > 0 ? step.amount : handTime(path.length()))
        && playButton(ClipAction::Release);
}

bool ClipPlayer::playButton(ClipAction action)
{
    if (action == ClipAction::DoubleClick)
        m_stage.doubleClick();
    else if (action != ClipAction::Release)
        m_stage.press();
    if (action != ClipAction::DoubleClick && !let(clickTime))
        return false;
    if (action == ClipAction::Click || action == ClipAction::Release)
        m_stage.release();
    return let(clickTime);
}

bool ClipPlayer::playModifier(const ClipStep &step)
{
    const auto modifier = modifiers.constFind(step.name);
    if (modifier == modifiers.constEnd())
        return false;
    if (step.action == ClipAction::Hold) {
        m_keys.append(step.name);
        m_stage.hold(*modifier);
    } else {
        m_keys.removeAll(step.name);
        m_stage.free(*modifier);
    }
    return let(keyTime);
}

bool ClipPlayer::playKey(const QString &keys)
{
    const QKeySequence sequence(keys);
    if (sequence.isEmpty())
        return false;
    const QStringList caps = keys.split('+');
    m_keys += caps;
    const bool seen = let(keyTime);
    m_stage.pressKeys(sequence);
    const bool done = seen && let(keyTime);
    m_keys = m_keys.mid(0, m_keys.size() - caps.size());
    return done;
}

bool ClipPlayer::playText(const QString &text)
{
    for (const QChar &letter : text) {
        m_stage.type(letter);
        if (!let(letterTime))
            return false;
    }
    return true;
}

/// Moves the pointer along a path; unseen it passes as many points, so that the drawing is the
/// same.
bool ClipPlayer::follow(const QPainterPath &path, double seconds)
{
    const int moves = movesPerPicture * qMax(1, qRound(seconds * m_picturesPerSecond));
    for (int i = 1; i <= moves; ++i) {
        const double share = eased(double(i) / moves);
        const QPointF aside = i < moves ? m_tremble * tremor(share * path.length()) : QPointF();
        m_stage.moveTo(path.pointAtPercent(share) + aside);
        if (i % movesPerPicture == 0 && !let(1.0 / m_picturesPerSecond))
            return false;
    }
    return true;
}

/// Lets time pass, one picture after the other; before the recording begins none does.
bool ClipPlayer::let(double seconds)
{
    const int pictures = m_isRecording ? qRound(seconds * m_picturesPerSecond) : 0;
    for (int i = 0; i < pictures; ++i) {
        ++m_taken;
        if (!m_takePicture(m_keys))
            return false;
    }
    return true;
}

} // namespace Sketchpad
