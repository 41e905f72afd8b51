// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/GeometryReport.h"

#include <QAction>
#include <QEvent>
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

QByteArray lineFor(const QString &name, const QWidget &widget)
{
    const QPoint corner = widget.mapToGlobal(QPoint());
    return QStringLiteral("%1 %2 %3 %4 %5\n")
        .arg(name)
        .arg(corner.x())
        .arg(corner.y())
        .arg(widget.width())
        .arg(widget.height())
        .toUtf8();
}

} // namespace

GeometryReport::GeometryReport(QWidget &window, const QString &path)
    : m_window(window)
    , m_path(path)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settlingTime);
    connect(&m_settled, &QTimer::timeout, this, &GeometryReport::write);
    window.installEventFilter(this);
}

bool GeometryReport::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
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
    for (const QWidget *widget : m_window.findChildren<QWidget *>()) {
        const QString name = nameOf(*widget);
        if (widget->isVisible() && !name.isEmpty() && !name.startsWith(QLatin1String("qt_")))
            lines += lineFor(name, *widget);
    }
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) < 0 || !file.commit())
        qWarning("Could not write %s", qPrintable(m_path));
}

} // namespace Sketchpad
