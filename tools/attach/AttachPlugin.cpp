// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <Hintreels/HRContext>
#include <Hintreels/HRManager>
#include <Hintreels/HRWidget>
#include <Hintreels/HRWidgetsInterface>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QGenericPlugin>
#include <QLocale>
#include <QPointer>

#include <cstdio>
#include <utility>

namespace Hintreels {

namespace {

constexpr char pluginsVariable[] = "QT_QPA_GENERIC_PLUGINS";
constexpr char packagesVariable[] = "HINTREELS_PACKAGES"; // set by `hintreels run`

/// Writes to the standard error output: the program may keep what passes through Qt to itself.
void tell(const QString &message)
{
    std::fprintf(stderr, "hintreels: %s\n", qPrintable(message));
}

class AttachedHints : public HRWidgetsInterface
{
public:
    using HRWidgetsInterface::HRWidgetsInterface;

    void handleMessage(HRMessageType, const QString &message) override { tell(message); }
};

AttachedHints *hints = nullptr; // there is one application at a time

void stop()
{
    if (!hints)
        return;
    // The interface leaves its popup to the event loop, and there may be none any more.
    const QPointer<QWidget> popup = hints->manager()->widget();
    delete std::exchange(hints, nullptr);
    delete popup.data();
}

void start()
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        tell(QFileInfo(QCoreApplication::applicationFilePath()).fileName()
            + QLatin1String(" is no program of Qt Widgets; it runs without hints."));
        return;
    }
    const QString packages = qEnvironmentVariable(packagesVariable);
    HRContext settings;
    settings.set(localeKey, QLocale().name());
    hints = new AttachedHints(settings, packages.split(QDir::listSeparator(), Qt::SkipEmptyParts));
    // The first where the program ends its event loop but never its application; the second where
    // it has no loop of the application's.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, &stop);
    qAddPostRoutine(&stop);
}

/// What the program starts in turn runs as ever.
void leaveChildrenAlone(const QString &plugin)
{
    QStringList plugins = qEnvironmentVariable(pluginsVariable).split(u',');
    plugins.removeAll(plugin);
    qputenv(pluginsVariable, plugins.join(u',').toLocal8Bit());
}

} // namespace

/// Brings the hints of the data paths in HINTREELS_PACKAGES to the program that loads it.
class AttachPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "attach.json")

public:
    /// @return an object that ends with the application
    QObject *create(const QString &name, const QString &) override
    {
        leaveChildrenAlone(name);
        auto *starter = new QObject;
        // The application is still under construction.
        QMetaObject::invokeMethod(starter, &start, Qt::QueuedConnection);
        return starter;
    }
};

} // namespace Hintreels

#include "AttachPlugin.moc"
