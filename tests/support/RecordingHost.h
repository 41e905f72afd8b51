// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "interface/HRInterface.h"
#include "support/TestPackage.h"

#include <QPair>
#include <QPointer>
#include <QWidget>

/// A host that records what it is told, and answers as its fields say.
class RecordingHost : public Hintreels::HRInterface
{
    Q_OBJECT

public:
    using HRInterface::HRInterface;

    QWidget *createWindow(Hintreels::HRWindowType type) override;
    bool openExternalResource(
        Hintreels::HRExternalResourceType type, const QString &resource) override;
    void handleMessage(Hintreels::HRMessageType type, const QString &message) override;
    QString shortCutForObject(
        const QString &key, QObject *object, const QString &shortcut) override;

    QPointer<QWidget> window; ///< what createWindow() answers
    QString shortcut; ///< what shortCutForObject() answers, unless it is empty

    QList<Hintreels::HRWindowType> windowRequests;
    QList<QPair<int, QString>> openedResources;
    QList<QPair<int, QString>> messages;
    QStringList shortcutRequests; ///< "key:shortcut" of each request

    /// The messages of one type, which are then forgotten.
    QStringList takeMessages(Hintreels::HRMessageType type);
};

/// The QML of a popup that asks for nothing: a plain rectangle of the given size.
QByteArray rectangleQml(int width, int height, const QByteArray &color = "white");
