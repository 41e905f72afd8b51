// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Hintreels/HRWidgetsInterface>

namespace Sketchpad {

class MainWindow;

/// Connects the hints with the drawing program: where links, messages and detached hints go.
class SketchpadHints : public Hintreels::HRWidgetsInterface
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

    bool openExternalResource(
        Hintreels::HRExternalResourceType type, const QString &resource) override;
    void handleMessage(Hintreels::HRMessageType type, const QString &message) override;

private:
    void showSettings();

    MainWindow &m_window;
};

} // namespace Sketchpad
