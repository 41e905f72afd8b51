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

static_assert(__cplusplus / 100 == 2000 + STANDARD);

/// Where the installed packages are: the build may name it, the library finds it by itself.
static QString packagesDir()
{
#ifdef PACKAGES_DIR
    return PACKAGES_DIR;
#else
    return Hintreels::HRInterface::standardPackages();
#endif
}

/// The user interface in which a hint of a data path shows; empty where none does.
static QUrl shownIn(const QString &dataPath, bool fromStrangers)
{
    HRContext context;
    context.set(Hintreels::hideDelayKey, 0);
    context.set(Hintreels::strangersKey, fromStrangers);
    Hintreels::HRInterface hints(context, { packagesDir(), dataPath });
    QWidget window;
    const bool shown = hints.show("pen", QPoint(10, 10), &window);
    const Hintreels::HRWidget *popup = hints.manager()->widget();
    const bool loaded = popup && popup->view()->status() == QQuickView::Ready;
    return shown && loaded ? popup->view()->source() : QUrl();
}

/// Whether the library finds what lies beside it; one that is linked in need not.
static bool findsPackages()
{
    const QString found = Hintreels::HRInterface::standardPackages();
    return found.isNull() || QDir(found) == QDir(QDir(packagesDir()).canonicalPath());
}

/// Shows a hint of the data path given as argument, with the installed user interface and with the
/// one inside the library.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString dataPath = application.arguments().value(1);
    const QString installed = shownIn(dataPath, false).toLocalFile();
    const bool showsInstalled = QDir(packagesDir()).relativeFilePath(installed)
        == QString("Standard.hintreels/ui/HintreelUI.qml");
    const QUrl ownUi("qrc:/hintreels/standard/ui/HintreelUI.qml");
    return showsInstalled && shownIn(dataPath, true) == ownUi && findsPackages() ? 0 : 1;
}
