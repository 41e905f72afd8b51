// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Records the clip of one script: Sketchpad's window, driven step by step, becomes NAME.mp4 and
// NAME.LOCALE.vtt in a folder, with NAME that of the script.

#include "drawing/Canvas.h"
#include "recorder/ClipOverlay.h"
#include "recorder/ClipPlayer.h"
#include "recorder/ClipScript.h"
#include "recorder/ClipStage.h"
#include "recorder/ClipWriter.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace Sketchpad {

namespace {

const int picturesPerSecond = 30;

// The bar of the tools, all of them, and the canvas beside it.
const QSize clipSize(480, 320);

// What lies at the canvas's upper left corner, so that the sheet has an edge in the picture.
const QPointF canvasOrigin(-10, -10);

bool fail(const QString &message)
{
    QTextStream(stderr) << message << '\n';
    return false;
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return (file.open(QIODevice::WriteOnly) && file.write(content) == content.size())
        || fail(path + ": " + file.errorString());
}

/// Shows the window so that its middle, the tools and the canvas, has the size of the clip.
void showSheet(MainWindow &window)
{
    auto *canvas = window.findChild<Canvas *>("canvas");
    canvas->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    canvas->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    window.setTheme(Theme::Light);
    window.show();
    window.activateWindow();
    window.resize(clipSize.width(), window.height() - canvas->height() + clipSize.height());
    QCoreApplication::processEvents();
    canvas->zoomToActualSize();
    canvas->centerOn(canvasOrigin + QRectF(canvas->viewport()->rect()).center());
    QCoreApplication::processEvents();
}

/// The window's picture from the upper edge of the canvas on.
QRect pictureOf(const MainWindow &window)
{
    return { QPoint(0, window.centralWidget()->y()), clipSize };
}

bool record(const ClipScript &script, const QString &clip)
{
    MainWindow window;
    showSheet(window);
    const QRect picture = pictureOf(window);
    ClipStage stage(window);
    ClipOverlay overlay;
    ClipWriter writer(clip + ".mp4", clipSize, picturesPerSecond);
    if (!writer.open())
        return fail(writer.error());
    ClipPlayer player(stage, picturesPerSecond, [&](const QStringList &keys) {
        QCoreApplication::processEvents();
        QImage grabbed = window.grab(picture).toImage().convertToFormat(QImage::Format_RGB32);
        overlay.paint(grabbed, stage.pointer() - picture.topLeft(), stage.isPressed(), keys);
        return writer.add(grabbed);
    });
    if (!player.play(script) || !writer.close())
        return fail(player.error() + ' ' + writer.error());
    const QStringList locales = player.captions().locales();
    return std::all_of(locales.begin(), locales.end(), [&](const QString &locale) {
        return writeFile(QString("%1.%2.vtt").arg(clip, locale),
            player.captions().toWebVtt(locale, player.seconds()));
    });
}

bool recordScript(const QString &path, const QString &folder)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(path + ": " + file.errorString());
    const ClipScript script = ClipScript::fromText(QString::fromUtf8(file.readAll()));
    if (!script.error().isEmpty())
        return fail(path + ": " + script.error());
    return record(script, QDir(folder).filePath(QFileInfo(path).completeBaseName()));
}

} // namespace

} // namespace Sketchpad

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // A blinking text cursor would go by another clock than the clip.
    QApplication::setCursorFlashTime(0);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: clip-recorder SCRIPT FOLDER\n";
        return 2;
    }
    return Sketchpad::recordScript(arguments[1], arguments[2]) ? 0 : 1;
}
