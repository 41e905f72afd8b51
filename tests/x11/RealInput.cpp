// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/RealInput.h"

#include "support/Pauses.h"

#include <QColor>
#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace RealInput {

namespace {

Place place;

QPoint onScreen(const QPoint &position)
{
    return place.onScreen + (position - place.global) * place.scale;
}

QRect onScreen(const QRect &area)
{
    return { onScreen(area.topLeft()), area.size() * place.scale };
}

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
    const QPoint pixel = onScreen(position);
    return { "mousemove", QString::number(pixel.x()), QString::number(pixel.y()) };
}

} // namespace

void setPlace(const Place &newPlace)
{
    place = newPlace;
}

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

void clickRight(const QPoint &position)
{
    xdotool(move(position) + QStringList{ "mousedown", "3", "mouseup", "3" });
}

void type(const QString &letters)
{
    xdotool({ "type", "--delay", "20", letters });
}

void key(const QString &stroke)
{
    xdotool({ "key", stroke });
}

void scroll()
{
    xdotool({ "click", "5" });
}

QImage screenshot()
{
    // A connection of its own: on Wayland Qt has none, and sees no more than its own windows.
    static xcb_connection_t *const server = xcb_connect(nullptr, nullptr);
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(server)).data;
    const QSize size(screen->width_in_pixels, screen->height_in_pixels);
    const auto question = xcb_get_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, screen->root, 0, 0,
        screen->width_in_pixels, screen->height_in_pixels, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> answer(
        xcb_get_image_reply(server, question, nullptr), &std::free);
    if (!answer)
        qFatal("the X server does not show its screen");
    // Converting makes a copy, and all pixels opaque.
    return QImage(
        xcb_get_image_data(answer.get()), size.width(), size.height(), QImage::Format_RGB32)
        .convertToFormat(QImage::Format_ARGB32);
}

QRect boundsOf(const QColor &color)
{
    const QImage image = screenshot();
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto *end = line + image.width();
        const auto *first = std::find(line, end, color.rgb());
        if (first == end)
            continue;
        const auto *last = end - 1;
        while (*last != color.rgb())
            --last;
        bounds |= QRect(QPoint(int(first - line), y), QPoint(int(last - line), y));
    }
    return bounds;
}

bool shows(const QRect &area, const QColor &color)
{
    const QImage image = screenshot();
    const QRect visible = onScreen(area) & image.rect();
    for (int y = visible.top(); y <= visible.bottom(); ++y)
        for (int x = visible.left(); x <= visible.right(); ++x)
            if (image.pixel(x, y) != color.rgb())
                return false;
    return !visible.isEmpty();
}

int serverWindowCount()
{
    return run("xwininfo", { "-root", "-tree" }).count("0x");
}

} // namespace RealInput
