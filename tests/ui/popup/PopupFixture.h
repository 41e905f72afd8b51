// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QPropertyAnimation>
#include <QQuickItem>
#include <QtTest>

#include <memory>

inline constexpr int shortTime = 50; // ms
inline constexpr int longTime = 60000; // ms
inline const QPoint farAway(700, 700);
inline const QPoint showPosition(100, 100);

inline const QByteArray hintQml = R"(
import QtQuick 2.15
Rectangle {
    property string key: hintreel.attribute("key")
    width: key === "large" ? 300 : 200; height: 80
    color: key === "large" ? "blue" : "red"
    property var seam: key === "ink" ? Qt.rgba(0, 1, 0, 1) : undefined
    states: State { name: "open" }
}
)";

/// A popup as the manager puts it together, with the pointer far away from it.
struct PopupFixture
{
    explicit PopupFixture(const QMap<int, QVariant> &settings = {})
    {
        packages.write("Tools.hintreels/ui/HintreelUI.qml", hintQml);
        packages.writeControl("Tools", "en_US.xml",
            "<hintreel key='pen' title='Pen'/><hintreel key='ink'/><hintreel key='large'/>");
        HRContext context;
        context.set(Hintreels::hideDelayKey, longTime);
        context.set(Hintreels::hideAnimationDurationKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
        host->context().set(Hintreels::messageLevelKey, int(Hintreels::messageDebug));
        QCursor::setPos(farAway);
        reference.setGeometry(300, 400, 100, 40);
    }

    Hintreels::HRXmlElement *show(const QString &key = "pen", const QPoint &position = showPosition)
    {
        host->show(key, position - QPoint(35, 30), &reference);
        popup = host->manager()->widget();
        return popup->view()->content();
    }

    /// The popup's size around content: one pixel more, and the title bar, which this platform
    /// gives to tool tips, too.
    QSize around(int width, int height) const
    {
        const QWidget *window = popup->window();
        const int titleBar = window->geometry().top() - window->frameGeometry().top();
        return QSize(width + 1, height + 1 + titleBar);
    }

    QTimer *timer() const
    {
        const QList<QTimer *> timers = popup->findChildren<QTimer *>();
        for (QTimer *timer : timers)
            if (timer->isSingleShot())
                return timer;
        return nullptr;
    }
    QPropertyAnimation *animation() const { return popup->findChild<QPropertyAnimation *>(); }
    QQuickItem *root() const { return popup->view()->rootObject(); }

    TestPackages packages;
    QWidget reference;
    std::unique_ptr<RecordingHost> host;
    QPointer<Hintreels::HRWidget> popup;
};
