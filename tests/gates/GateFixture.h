// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/RecordingHost.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QQuickItem>
#include <QtTest>

#include <memory>

/// A host with the hint "key" of the package "Own", whose UI file is a test's.
///
/// What Qt itself writes is left alone: it complains of what it does not get.
struct GateFixture
{
    explicit GateFixture(const QMap<int, QVariant> &hostSettings = {})
        : settings(hostSettings)
    {
        // As in Qt 5, where requests for files need no leave of the host's.
        qputenv("QML_XHR_ALLOW_FILE_READ", "1");
        qputenv("QML_XHR_ALLOW_FILE_WRITE", "1");
    }
    ~GateFixture()
    {
        const QPointer<Hintreels::HRWidget> popup = host ? host->manager()->widget() : nullptr;
        host.reset();
        delete popup;
        guard.takeMessages();
    }

    void writeUi(const QByteArray &body, const QByteArray &imports = {})
    {
        write("ui/Ui.qml",
            "import QtQuick 2.15\n" + imports + "\nItem { width: 50; height: 50\n" + body
                + "\n}\n");
    }
    QString write(const QString &path, const QByteArray &text)
    {
        return packages.write("Own.hintreels/" + path, text);
    }

    /// Shows the hint; its control file is written before the first time.
    bool show()
    {
        if (!host)
            start();
        return host->show("key", QPoint(50, 50), nullptr);
    }
    void start()
    {
        packages.writeControl("Own", "own.xml",
            "<hintreel key='key'" + attributes + ">" + content + "</hintreel>", root);
        HRContext context;
        context.set(Hintreels::hideDelayKey, 0);
        context.set(Hintreels::messageLevelKey, int(Hintreels::messageDebug));
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
    }

    Hintreels::HRView *view() const { return host->manager()->widget()->view(); }
    QStringList warnings() { return host->takeMessages(Hintreels::messageWarning); }

    MessageGuard guard;
    TestPackages packages;
    QMap<int, QVariant> settings;
    QByteArray root = "ui='ui/Ui.qml'"; ///< attributes of the control file's root
    QByteArray attributes; ///< of the hint
    QByteArray content; ///< of the hint
    std::unique_ptr<RecordingHost> host;
};
