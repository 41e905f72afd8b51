// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/GeometryReport.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QSaveFile>
#include <QToolButton>
#include <QWidget>

namespace Sketchpad {

namespace {

// A window manager moves and resizes a new window in several steps.
constexpr int settlingTime = 200; // ms

QString nameOf(const QWidget &widget)
{
    const auto *button = qobject_cast<const QToolButton *>(&widget);
    return button && button->defaultAction() ? button->defaultAction()->objectName()
                                             : widget.objectName();
}

QByteArray lineFor(const QString &name, const QRect &area)
{
    return QStringLiteral("%1 %2 %3 %4 %5\n")
        .arg(name)
        .arg(area.x())
        .arg(area.y())
        .arg(area.width())
        .arg(area.height())
        .toUtf8();
}

QByteArray linesOfEntries(const QMenu &menu)
{
    QByteArray lines;
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions) {
        const QRect area = menu.actionGeometry(action).translated(menu.mapToGlobal(QPoint()));
        if (!action->objectName().isEmpty())
            lines += lineFor(QLatin1String("menu/") + action->objectName(), area);
    }
    return lines;
}

QByteArray linesOf(const QWidget &widget)
{
    if (!widget.isVisible())
        return {};
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        return linesOfEntries(*menu);
    const QString name = nameOf(widget);
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_")))
        return {};
    return lineFor(name, QRect(widget.mapToGlobal(QPoint()), widget.size()));
}

} // namespace

GeometryReport::GeometryReport(const QString &path)
    : m_path(path)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settlingTime);
    connect(&m_settled, &QTimer::timeout, this, &GeometryReport::write);
    QCoreApplication::instance()->installEventFilter(this);
}

bool GeometryReport::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        if (watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow())
            m_settled.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void GeometryReport::write() const
{
    QByteArray lines;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets)
        lines += linesOf(*widget);
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) < 0 || !file.commit())
        qWarning("Could not write %s", qPrintable(m_path));
}

} // namespace Sketchpad
