// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Drawing.h"
#include "window/Theme.h"

#include <QMainWindow>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QAction;
class QLabel;
QT_END_NAMESPACE

namespace Sketchpad {

class Canvas;
class HelpWindow;
class MessageLog;
class Tool;

/// The window of the drawing program. It knows nothing of the hints that explain it: those find
/// its actions and widgets by their object names.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Drawing &drawing() { return m_drawing; }
    MessageLog &messageLog() { return *m_messageLog; }

    /// The action of this object name; null where there is none.
    QAction *action(const QString &name) const;

    void setTheme(Theme theme);
    /// Marks the language in the menu that is the locale's, and tells of it.
    void setHintLocale(const QString &locale);

    /// @return false where there is no such page
    bool showHelp(const QString &page);

Q_SIGNALS:
    void hintLocaleChosen(const QString &locale);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeTools();
    void makeToolBars();
    void makeStatusBar();
    void makeLanguages();
    void connectFileAndHelp();
    void connectEditing();
    void connectAligning();
    void connectView();

    void addTool(const QString &name, std::unique_ptr<Tool> tool);
    void chooseTool(Tool *tool, bool selects);
    void addStyleWidgets(QToolBar *bar);
    void on(const QString &name, std::function<void()> slot);
    void startAnew();
    bool mayLoseDrawing();
    void exportPicture();
    void updateEnabled();
    void updateIcons();

    // The tools outlive the drawing that they draw on, which is why they stand first.
    std::vector<std::unique_ptr<Tool>> m_tools;
    Drawing m_drawing;
    Canvas *m_canvas;
    MessageLog *m_messageLog;
    HelpWindow *m_help;
};

} // namespace Sketchpad
