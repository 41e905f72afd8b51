// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipScript.h"

#include <QMap>
#include <QStringList>

namespace Sketchpad {

namespace {

/// What stands behind the first word of a line.
enum class ClipArguments
{
    None,
    PointOrName,
    PointsAndTime,
    Name,
    Text,
    Number,
    NameAndText
};

struct ClipWord
{
    ClipAction action;
    ClipArguments arguments;
};

const QMap<QString, ClipWord> words = {
    { "record", { ClipAction::Record, ClipArguments::None } },
    { "move", { ClipAction::Move, ClipArguments::PointOrName } },
    { "click", { ClipAction::Click, ClipArguments::None } },
    { "doubleclick", { ClipAction::DoubleClick, ClipArguments::None } },
    { "press", { ClipAction::Press, ClipArguments::None } },
    { "release", { ClipAction::Release, ClipArguments::None } },
    { "drag", { ClipAction::Drag, ClipArguments::PointsAndTime } },
    { "hold", { ClipAction::Hold, ClipArguments::Name } },
    { "free", { ClipAction::Free, ClipArguments::Name } },
    { "key", { ClipAction::Key, ClipArguments::Name } },
    { "type", { ClipAction::Type, ClipArguments::Text } },
    { "wheel", { ClipAction::Wheel, ClipArguments::Number } },
    { "wait", { ClipAction::Wait, ClipArguments::Number } },
    { "tremble", { ClipAction::Tremble, ClipArguments::Number } },
    { "color", { ClipAction::Color, ClipArguments::NameAndText } },
    { "say", { ClipAction::Say, ClipArguments::NameAndText } },
};

bool readNumber(const QString &text, double &number)
{
    bool isNumber = false;
    number = text.toDouble(&isNumber);
    return isNumber && qIsFinite(number);
}

bool readPoints(const QStringList &numbers, QVector<QPointF> &points)
{
    for (int i = 0; i + 1 < numbers.size(); i += 2) {
        double x = 0;
        double y = 0;
        if (!readNumber(numbers[i], x) || !readNumber(numbers[i + 1], y))
            return false;
        points.append({ x, y });
    }
    return !points.isEmpty() && numbers.size() % 2 == 0;
}

bool readPointsAndTime(QStringList numbers, ClipStep &step)
{
    const int in = numbers.indexOf("in");
    if (in >= 0) {
        if (in != numbers.size() - 2 || !readNumber(numbers.last(), step.amount))
            return false;
        numbers = numbers.mid(0, in);
    }
    return step.amount >= 0 && readPoints(numbers, step.points);
}

bool readName(const QString &rest, ClipStep &step)
{
    step.name = rest;
    return !rest.isEmpty() && !rest.contains(' ');
}

bool readNameAndText(const QString &rest, ClipStep &step)
{
    step.name = rest.section(' ', 0, 0);
    step.text = rest.section(' ', 1).trimmed();
    return !step.text.isEmpty();
}

bool readArguments(ClipArguments arguments, const QString &rest, ClipStep &step)
{
    const QStringList parts = rest.split(' ', Qt::SkipEmptyParts);
    switch (arguments) {
    case ClipArguments::None:
        return rest.isEmpty();
    case ClipArguments::PointOrName:
        return parts.size() == 2 ? readPoints(parts, step.points) : readName(rest, step);
    case ClipArguments::PointsAndTime:
        return readPointsAndTime(parts, step);
    case ClipArguments::Name:
        return readName(rest, step);
    case ClipArguments::Text:
        step.text = rest;
        return !rest.isEmpty();
    case ClipArguments::Number:
        return readNumber(rest, step.amount);
    case ClipArguments::NameAndText:
        return readNameAndText(rest, step);
    }
    return false;
}

bool readLine(const QString &line, ClipStep &step)
{
    const QString first = line.section(' ', 0, 0);
    const auto word = words.constFind(first);
    if (word == words.constEnd())
        return false;
    step.action = word->action;
    return readArguments(word->arguments, line.mid(first.size()).trimmed(), step);
}

} // namespace

ClipScript ClipScript::fromText(const QString &text)
{
    ClipScript script;
    const QStringList lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        ClipStep step;
        step.line = i + 1;
        if (!readLine(line, step)) {
            script.m_steps.clear();
            script.m_error = QString("line %1: cannot understand \"%2\"").arg(i + 1).arg(line);
            return script;
        }
        script.m_steps.append(step);
    }
    return script;
}

} // namespace Sketchpad
