// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Options.h"
#include "drawing/WelcomeDrawing.h"
#include "hints/IndexChoice.h"
#include "hints/SketchpadHints.h"
#include "window/GeometryReport.h"
#include "window/MainWindow.h"

#include <Hintreels/HRContext>
#include <Hintreels/HRIndex>

#include <QApplication>

#include <memory>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    application.setOrganizationName(QStringLiteral("Hintreels"));
    application.setApplicationName(QStringLiteral("Sketchpad"));
    const Sketchpad::Options options = Sketchpad::readOptions(application);

    Sketchpad::MainWindow window;
    window.setTheme(options.theme);
    Sketchpad::drawWelcome(window.drawing());

    HRContext context;
    Sketchpad::SketchpadHints::configure(context);
    const QStringList dataPaths{ STANDARD_PACKAGES_DIR, SKETCHPAD_PACKAGES_DIR };
    const auto index = Sketchpad::makeIndex(options.index, context, dataPaths);
    Sketchpad::SketchpadHints hints(context, dataPaths, window, index.get());
    window.setHintLocale(options.locale);

    std::unique_ptr<Sketchpad::GeometryReport> report;
    if (!options.geometryFile.isEmpty())
        report = std::make_unique<Sketchpad::GeometryReport>(options.geometryFile);
    window.show();
    const int status = application.exec();
    if (index)
        index->close();
    return status;
}
