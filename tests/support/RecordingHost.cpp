// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/RecordingHost.h"

using namespace Hintreels;

QWidget *RecordingHost::createWindow(HRWindowType type)
{
    windowRequests.append(type);
    return window;
}

bool RecordingHost::openExternalResource(HRExternalResourceType type, const QString &resource)
{
    openedResources.append({ type, resource });
    return true;
}

void RecordingHost::handleMessage(HRMessageType type, const QString &message)
{
    messages.append({ type, message });
}

QString RecordingHost::shortCutForObject(
    const QString &key, QObject *object, const QString &contentShortcut)
{
    shortcutRequests.append(key + ':' + contentShortcut);
    return shortcut.isEmpty() ? HRInterface::shortCutForObject(key, object, contentShortcut)
                              : shortcut;
}

QStringList RecordingHost::takeMessages(HRMessageType type)
{
    QStringList taken;
    for (int i = 0; i < messages.size();) {
        if (messages.at(i).first == type)
            taken.append(messages.takeAt(i).second);
        else
            ++i;
    }
    return taken;
}

QByteArray rectangleQml(int width, int height, const QByteArray &color)
{
    return "import QtQuick 2.15\nRectangle { width: " + QByteArray::number(width)
        + "; height: " + QByteArray::number(height) + "; color: \"" + color + "\" }\n";
}
