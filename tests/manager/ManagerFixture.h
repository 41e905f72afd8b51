// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QtTest>

#include <memory>

/// A place that is neither over a widget nor near the popup, wherever that went.
inline const QPoint farAway(-5000, -5000);

inline const QByteArray uiAttribute = " ui=\"ui/Popup.qml\"";

/// A host with one package: "pen" in English and German, "ink" in English, "lost" in French.
struct ManagerFixture
{
    explicit ManagerFixture(const QMap<int, QVariant> &settings = {})
    {
        packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
        packages.writeControl("A", "en.xml",
            "<hintreel key=\"pen\" title=\"Pen\" shortcut=\"P\"/><hintreel key=\"ink\"/>",
            "locale=\"en_US\"" + uiAttribute);
        packages.writeControl("A", "de.xml", "<hintreel key=\"pen\" title=\"Stift\"/>",
            "locale=\"de_DE\"" + uiAttribute);
        packages.writeControl(
            "A", "fr.xml", "<hintreel key=\"lost\"/>", "locale=\"fr_FR\"" + uiAttribute);
        context.set(Hintreels::hideAnimationDurationKey, 0);
        context.set(Hintreels::hideDelayKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
        host->context().set(Hintreels::messageLevelKey, int(Hintreels::messageDebug));
    }

    Hintreels::HRManager &manager() { return *host->manager(); }
    Hintreels::HRWidget *popup() { return manager().widget(); }
    Hintreels::HRXmlElement *content() { return popup()->view()->content(); }
    QString title() { return content() ? content()->attribute("title") : QString(); }
    bool show(const QString &key, QObject *object = nullptr)
    {
        return manager().show(key, QPoint(10, 10), object);
    }

    TestPackages packages;
    HRContext context;
    std::unique_ptr<RecordingHost> host;
};
