// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/RealInput.h"

#include "support/Pauses.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QtTest>

namespace RealInput {

namespace {

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

void xdotool(const QStringList &arguments)
{
    run("xdotool", arguments);
}

QStringList move(const QPoint &position)
{
    return { "mousemove", QString::number(position.x()), QString::number(position.y()) };
}

} // namespace

void movePointer(const QPoint &position)
{
    // Qt reports no move to where it saw the pointer last, before that left the application.
    xdotool(move(position - QPoint(1, 1)));
    letOtherProcessWork();
    xdotool(move(position));
}

void press()
{
    xdotool({ "mousedown", "1" });
}

void release()
{
    xdotool({ "mouseup", "1" });
}

void click(const QPoint &position)
{
    // In one go: a pause between move and press could be long enough for a tooltip.
    xdotool(move(position - QPoint(1, 1)) + move(position)
        + QStringList{ "mousedown", "1", "mouseup", "1" });
}

void type(const QString &letters)
{
    xdotool({ "type", "--delay", "20", letters });
}

QImage screenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

bool shows(const QRect &area, const QColor &color)
{
    const QImage image = screenshot();
    const QRect visible = area & image.rect();
    for (int y = visible.top(); y <= visible.bottom(); ++y)
        for (int x = visible.left(); x <= visible.right(); ++x)
            if (image.pixelColor(x, y) != color)
                return false;
    return !visible.isEmpty();
}

int serverWindowCount()
{
    return run("xwininfo", { "-root", "-tree" }).count("0x");
}

} // namespace RealInput
