// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Hintreels/HRInterface>

namespace Sketchpad {

class MainWindow;

/// Connects the hints with the drawing program: which widget has which key, which shortcut an
/// action has at the moment, where links, messages and detached hints go.
class SketchpadHints : public Hintreels::HRInterface
{
    Q_OBJECT

public:
    /// @param context the settings; see settings()
    /// @param window must outlive the hints
    /// @param index must outlive the hints; null for one in memory
    SketchpadHints(HRContext &context, const QStringList &dataPaths, MainWindow &window,
        Hintreels::HRIndex *index = nullptr);

    /// Fills a context with what Sketchpad wants different from the defaults.
    static void configure(HRContext &context);

    QWidget *createWindow(Hintreels::HRWindowType type) override;
    QString keyForObject(QObject *object) override;
    bool openExternalResource(
        Hintreels::HRExternalResourceType type, const QString &resource) override;
    void handleMessage(Hintreels::HRMessageType type, const QString &message) override;
    QString shortCutForObject(
        const QString &key, QObject *object, const QString &shortcut) override;

private:
    MainWindow &m_window;
};

} // namespace Sketchpad
