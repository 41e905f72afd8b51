// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/HostSnapshot.h"

#include "support/Descriptors.h"
#include "video/HRFFmpegHandle_p.h"

#include <QApplication>
#include <QDir>
#include <QMetaProperty>
#include <QPixmapCache>
#include <QQuickWindow>
#include <QSqlDatabase>
#include <QStyle>
#include <QStyleHints>
#include <QSurfaceFormat>
#include <QThreadPool>
#include <QTranslator>
#include <QWidget>

#include <clocale>
#include <csignal>

#include <fenv.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

namespace {

QString text(const QVariant &value)
{
    QString result;
    QDebug(&result).nospace() << value;
    return result;
}

template <typename Attribute, typename Test>
QString setAttributes(int count, Test test)
{
    QStringList set;
    for (int i = 0; i < count; ++i) {
        if (test(Attribute(i)))
            set.append(QString::number(i));
    }
    return set.join(' ');
}

QString threadNames()
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    QStringList names;
    const QStringList ids = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &id : ids) {
        QFile file(tasks.filePath(id + "/comm"));
        if (file.open(QIODevice::ReadOnly))
            names.append(QString::fromLocal8Bit(file.readAll().trimmed()));
    }
    names.sort();
    return names.join(' ');
}

QString signalHandlers()
{
    QStringList handlers;
    for (int number = 1; number < SIGRTMAX; ++number) {
        struct sigaction action = {};
        ::sigaction(number, nullptr, &action);
        handlers.append(QString::number(quintptr(action.sa_handler), 16));
    }
    return handlers.join(' ');
}

QString processMask()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return QString::number(mask, 8);
}

QString environmentText()
{
    QStringList variables;
    for (char **variable = environ; *variable; ++variable)
        variables.append(QString::fromLocal8Bit(*variable));
    variables.sort();
    return variables.join('\n');
}

QString topLevels()
{
    QStringList names;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets)
        names.append(widget->metaObject()->className());
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow *window : windows)
        names.append(window->metaObject()->className());
    names.sort();
    return names.join(' ');
}

QString messageHandler()
{
    const QtMessageHandler handler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(handler);
    return QString::number(quintptr(handler), 16);
}

void addProcess(HostSnapshot &snapshot)
{
    snapshot["descriptors"] = openDescriptors().join(' ');
    snapshot["threads"] = threadNames();
    snapshot["environment"] = environmentText();
    snapshot["C locale"] = QString::fromLatin1(std::setlocale(LC_ALL, nullptr));
    snapshot["signal handlers"] = signalHandlers();
    snapshot["file mask"] = processMask();
    snapshot["working directory"] = QDir::currentPath();
    snapshot["rounding"] = QString::number(::fegetround());
    snapshot["FFmpeg's log level"] = QString::number(av_log_get_level());
}

void addQt(HostSnapshot &snapshot)
{
    snapshot["application attributes"]
        = setAttributes<Qt::ApplicationAttribute>(Qt::AA_AttributeCount,
            [](Qt::ApplicationAttribute a) { return QCoreApplication::testAttribute(a); });
    snapshot["default locale"] = QLocale().name();
    snapshot["message handler"] = messageHandler();
    snapshot["library paths"] = QCoreApplication::libraryPaths().join(' ');
    snapshot["database connections"] = QSqlDatabase::connectionNames().join(' ');
    snapshot["translation"] = QCoreApplication::translate("StandardUI", "Tip");
    snapshot["thread pool"] = QString("%1 of %2")
                                  .arg(QThreadPool::globalInstance()->activeThreadCount())
                                  .arg(QThreadPool::globalInstance()->maxThreadCount());
    snapshot["priority"] = QString::number(QThread::currentThread()->priority());
}

void addGui(HostSnapshot &snapshot)
{
    const QStyleHints *hints = QGuiApplication::styleHints();
    for (int i = 0; i < hints->metaObject()->propertyCount(); ++i) {
        const QMetaProperty hint = hints->metaObject()->property(i);
        snapshot[QString("style hint ") + hint.name()] = text(hint.read(hints));
    }
    snapshot["override cursor"] = QGuiApplication::overrideCursor() ? "set" : "none";
    snapshot["style"]
        = QApplication::style()->objectName() + QApplication::style()->metaObject()->className();
    snapshot["palette"] = text(QGuiApplication::palette());
    snapshot["font"] = QGuiApplication::font().toString();
    snapshot["style sheet"] = qApp->styleSheet();
    snapshot["last window ends it"] = text(QGuiApplication::quitOnLastWindowClosed());
    snapshot["desktop settings"] = text(QGuiApplication::desktopSettingsAware());
    snapshot["double click"] = QString::number(QApplication::doubleClickInterval());
    snapshot["surface format"]
        = QString::number(int(QSurfaceFormat::defaultFormat().renderableType()));
    snapshot["picture cache"] = QString::number(QPixmapCache::cacheLimit());
    snapshot["Qt Quick backend"] = QQuickWindow::sceneGraphBackend();
    snapshot["windows"] = topLevels();
    snapshot["focus"] = text(QVariant::fromValue<QObject *>(QApplication::focusWidget()));
    snapshot["grabber"] = text(QVariant::fromValue<QObject *>(QWidget::mouseGrabber()));
}

void addWindow(HostSnapshot &snapshot, const QWidget &window)
{
    snapshot["window attributes"] = setAttributes<Qt::WidgetAttribute>(
        Qt::WA_AttributeCount, [&](Qt::WidgetAttribute a) { return window.testAttribute(a); });
    snapshot["window flags"] = QString::number(int(window.windowFlags()), 16);
    snapshot["window cursor"] = QString::number(window.cursor().shape());
    snapshot["window mouse tracking"] = text(window.hasMouseTracking());
    snapshot["window children"] = QString::number(window.children().size());
    snapshot["window tool tip"] = window.toolTip();
    snapshot["application children"] = QString::number(qApp->children().size());
}

} // namespace

HostSnapshot hostSnapshot(const QWidget &window)
{
    HostSnapshot snapshot;
    addProcess(snapshot);
    addQt(snapshot);
    addGui(snapshot);
    addWindow(snapshot, window);
    return snapshot;
}

QString differences(const HostSnapshot &before, const HostSnapshot &after)
{
    QStringList lines;
    for (const QString &name : differingNames(before, after))
        lines.append(name + ": " + before.value(name) + " -> " + after.value(name));
    return lines.join('\n');
}

QStringList differingNames(const HostSnapshot &before, const HostSnapshot &after)
{
    QStringList names;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (it.value() != after.value(it.key()))
            names.append(it.key());
    }
    return names;
}
