// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <Hintreels/HRContext>
#include <Hintreels/HRIndex>
#include <Hintreels/HRInterface>
#include <Hintreels/HRManager>
#include <Hintreels/HRScrollBarComponent>
#include <Hintreels/HRStyledRectangleComponent>
#include <Hintreels/HRView>
#include <Hintreels/HRWidget>
#include <Hintreels/HRXmlElement>
#include <Hintreels/HRXmlParser>

#include <QApplication>
#include <QDir>

/// Shows a hint of the data path given as argument, with the installed user interface.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    HRContext context;
    context.set(Hintreels::hideDelayKey, 0);
    Hintreels::HRInterface hints(context, { PACKAGES_DIR, application.arguments().value(1) });
    QWidget window;
    const bool shown = hints.show("pen", QPoint(10, 10), &window);
    const Hintreels::HRWidget *popup = hints.manager()->widget();
    const bool loaded = popup && popup->view()->status() == QQuickView::Ready;
    const QString source = popup ? popup->view()->source().toLocalFile() : QString();
    const bool installedUi = QDir(PACKAGES_DIR).relativeFilePath(source)
        == QString("Standard.hintreels/ui/HintreelUI.qml");
    return shown && loaded && installedUi ? 0 : 1;
}
