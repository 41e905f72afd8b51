// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/MainWindow.h"

#include "drawing/Canvas.h"
#include "tools/ClickTools.h"
#include "tools/EraserTool.h"
#include "tools/PenTool.h"
#include "tools/SelectTool.h"
#include "tools/ShapeTool.h"
#include "tools/ZoomTool.h"
#include "window/ActionTable.h"
#include "window/ColorButton.h"
#include "window/HelpWindow.h"
#include "window/Icons.h"
#include "window/MessageLog.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolBar>

namespace Sketchpad {

namespace {

const QVector<QPair<QString, Alignment>> alignments{
    { QStringLiteral("alignLeft"), Alignment::Left },
    { QStringLiteral("alignCenter"), Alignment::Center },
    { QStringLiteral("alignRight"), Alignment::Right },
    { QStringLiteral("alignTop"), Alignment::Top },
    { QStringLiteral("alignMiddle"), Alignment::Middle },
    { QStringLiteral("alignBottom"), Alignment::Bottom },
};

const QVector<QPair<QString, QString>> languages{
    { QStringLiteral("languageEnglish"), QStringLiteral("en_US") },
    { QStringLiteral("languageGerman"), QStringLiteral("de_DE") },
};

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_canvas(new Canvas(m_drawing, this))
    , m_messageLog(new MessageLog(this))
    , m_help(new HelpWindow(this))
{
    setWindowTitle(tr("Sketchpad"));
    resize(1120, 720);
    m_canvas->setObjectName(QStringLiteral("canvas"));
    setCentralWidget(m_canvas);
    addDockWidget(Qt::BottomDockWidgetArea, m_messageLog);
    m_messageLog->hide();
    addMenus(menuBar(), this);
    makeTools();
    makeToolBars();
    makeStatusBar();
    makeLanguages();
    connectFileAndHelp();
    connectEditing();
    connectAligning();
    connectView();
    updateEnabled();
    updateIcons();
}

MainWindow::~MainWindow()
{
    // The drawing goes before the widgets that show it, and tells of its end what it selected.
    m_drawing.disconnect(this);
    m_drawing.history().disconnect(this);
    m_drawing.setTool(nullptr);
}

QAction *MainWindow::action(const QString &name) const
{
    return findChild<QAction *>(name, Qt::FindDirectChildrenOnly);
}

void MainWindow::on(const QString &name, std::function<void()> slot)
{
    connect(action(name), &QAction::triggered, this, slot);
}

void MainWindow::makeTools()
{
    auto *group = new QActionGroup(this);
    for (QAction *action : findChildren<QAction *>(QRegularExpression(QStringLiteral("^tool"))))
        group->addAction(action);
    addTool(QStringLiteral("toolSelect"), std::make_unique<SelectTool>(m_drawing));
    addTool(QStringLiteral("toolPen"), std::make_unique<PenTool>(m_drawing));
    addTool(QStringLiteral("toolLine"),
        std::make_unique<ShapeTool>(m_drawing, linePath, tr("Line"), false));
    addTool(QStringLiteral("toolRectangle"),
        std::make_unique<ShapeTool>(m_drawing, rectanglePath, tr("Rectangle"), true));
    addTool(QStringLiteral("toolEllipse"),
        std::make_unique<ShapeTool>(m_drawing, ellipsePath, tr("Ellipse"), true));
    addTool(QStringLiteral("toolText"), std::make_unique<TextTool>(m_drawing));
    addTool(QStringLiteral("toolEraser"), std::make_unique<EraserTool>(m_drawing));
    addTool(QStringLiteral("toolFill"), std::make_unique<FillTool>(m_drawing));
    addTool(QStringLiteral("toolZoom"), std::make_unique<ZoomTool>(*m_canvas));
    action(QStringLiteral("toolSelect"))->trigger();
}

void MainWindow::addTool(const QString &name, std::unique_ptr<Tool> tool)
{
    m_tools.push_back(std::move(tool));
    Tool *added = m_tools.back().get();
    on(name, [this, added] { chooseTool(added, added == m_tools.front().get()); });
}

void MainWindow::chooseTool(Tool *tool, bool selects)
{
    m_drawing.setTool(tool);
    m_canvas->setDragMode(selects ? QGraphicsView::RubberBandDrag : QGraphicsView::NoDrag);
    m_canvas->viewport()->setCursor(tool->cursor());
}

void MainWindow::makeToolBars()
{
    QToolBar *top = addToolBar(tr("Edit"));
    for (const char *name : { "fileNew", "fileExport", "", "editUndo", "editRedo", "editDelete", "",
             "alignLeft", "alignCenter", "alignRight", "alignTop", "alignMiddle", "alignBottom", "",
             "viewZoomIn", "viewZoomOut", "viewZoomFit", "viewDarkTheme" }) {
        if (*name)
            top->addAction(action(QLatin1String(name)));
        else
            top->addSeparator();
    }
    auto *tools = new QToolBar(tr("Tools"), this);
    addToolBar(Qt::LeftToolBarArea, tools);
    tools->addActions(action(QStringLiteral("toolPen"))->actionGroup()->actions());
    tools->addSeparator();
    addStyleWidgets(tools);
    for (QToolBar *bar : { top, tools }) {
        bar->setMovable(false);
        bar->setIconSize({ 24, 24 });
    }
}

void MainWindow::addStyleWidgets(QToolBar *bar)
{
    auto *stroke = new ColorButton(tr("Stroke Color"), m_drawing.style().stroke);
    stroke->setObjectName(QStringLiteral("strokeColor"));
    connect(stroke, &ColorButton::colorChanged, this,
        [this](const QColor &color) { m_drawing.style().stroke = color; });
    auto *fill = new ColorButton(tr("Fill Color"), m_drawing.style().fill);
    fill->setObjectName(QStringLiteral("fillColor"));
    connect(fill, &ColorButton::colorChanged, this,
        [this](const QColor &color) { m_drawing.style().fill = color; });
    auto *width = new QSpinBox;
    width->setObjectName(QStringLiteral("strokeWidth"));
    width->setRange(1, 40);
    width->setValue(qRound(m_drawing.style().width));
    width->setFocusPolicy(Qt::ClickFocus);
    width->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(width, QOverload<int>::of(&QSpinBox::valueChanged), this,
        [this](int value) { m_drawing.style().width = value; });
    bar->addWidget(stroke);
    bar->addWidget(fill);
    bar->addWidget(width);
}

void MainWindow::makeStatusBar()
{
    auto *position = new QLabel(QStringLiteral("0, 0"));
    position->setObjectName(QStringLiteral("statusPosition"));
    position->setMinimumWidth(90);
    connect(m_canvas, &Canvas::pointerMoved, position, [position](const QPointF &at) {
        position->setText(QStringLiteral("%1, %2").arg(qRound(at.x())).arg(qRound(at.y())));
    });
    auto *zoom = new QLabel(QStringLiteral("100 %"));
    zoom->setObjectName(QStringLiteral("statusZoom"));
    zoom->setMinimumWidth(60);
    connect(m_canvas, &Canvas::zoomChanged, zoom,
        [zoom](qreal factor) { zoom->setText(tr("%1 %").arg(qRound(100 * factor))); });
    statusBar()->addPermanentWidget(position);
    statusBar()->addPermanentWidget(zoom);
}

void MainWindow::makeLanguages()
{
    auto *group = new QActionGroup(this);
    for (const auto &[name, locale] : languages) {
        group->addAction(action(name));
        on(name, [this, locale = locale] { Q_EMIT hintLocaleChosen(locale); });
    }
    action(QStringLiteral("languageEnglish"))->setChecked(true);
}

void MainWindow::setHintLocale(const QString &locale)
{
    for (const auto &[name, itsLocale] : languages)
        action(name)->setChecked(itsLocale == locale);
    Q_EMIT hintLocaleChosen(locale);
}

void MainWindow::connectFileAndHelp()
{
    on(QStringLiteral("fileNew"), [this] { startAnew(); });
    on(QStringLiteral("fileExport"), [this] { exportPicture(); });
    on(QStringLiteral("fileQuit"), [this] { close(); });
    on(QStringLiteral("helpContents"), [this] { showHelp(QStringLiteral("index")); });
}

void MainWindow::connectEditing()
{
    // Ends the editing of a text first, so that it is a step like any other.
    on(QStringLiteral("editUndo"), [this] {
        m_drawing.setFocusItem(nullptr);
        m_drawing.history().undo();
    });
    on(QStringLiteral("editRedo"), [this] { m_drawing.history().redo(); });
    on(QStringLiteral("editDelete"), [this] { m_drawing.deleteSelection(); });
    on(QStringLiteral("editSelectAll"), [this] { m_drawing.selectAll(); });
    connect(&m_drawing.history(), &QUndoStack::indexChanged, this, &MainWindow::updateEnabled);
    connect(&m_drawing, &QGraphicsScene::selectionChanged, this, &MainWindow::updateEnabled);
}

void MainWindow::connectAligning()
{
    for (const auto &[name, alignment] : alignments)
        on(name, [this, alignment = alignment] { m_drawing.alignSelection(alignment); });
}

void MainWindow::connectView()
{
    connect(action(QStringLiteral("viewZoomIn")), &QAction::triggered, m_canvas, &Canvas::zoomIn);
    connect(action(QStringLiteral("viewZoomOut")), &QAction::triggered, m_canvas, &Canvas::zoomOut);
    connect(
        action(QStringLiteral("viewZoomFit")), &QAction::triggered, m_canvas, &Canvas::zoomToFit);
    connect(action(QStringLiteral("viewActualSize")), &QAction::triggered, m_canvas,
        &Canvas::zoomToActualSize);
    connect(action(QStringLiteral("viewDarkTheme")), &QAction::toggled, this,
        [](bool dark) { applyTheme(dark ? Theme::Dark : Theme::Light); });
    QAction *log = action(QStringLiteral("viewMessageLog"));
    connect(log, &QAction::triggered, m_messageLog, &QWidget::setVisible);
    connect(m_messageLog->toggleViewAction(), &QAction::toggled, log, &QAction::setChecked);
}

void MainWindow::setTheme(Theme theme)
{
    applyTheme(theme);
    action(QStringLiteral("viewDarkTheme"))->setChecked(theme == Theme::Dark);
}

bool MainWindow::showHelp(const QString &page)
{
    return m_help->showPage(page);
}

void MainWindow::startAnew()
{
    const bool isUntouched = !m_drawing.history().canUndo();
    if (isUntouched || mayLoseDrawing())
        m_drawing.startAnew();
}

bool MainWindow::mayLoseDrawing()
{
    QMessageBox question(QMessageBox::Question, tr("New Drawing"),
        tr("The drawing and its steps will be lost. Start a new one?"), QMessageBox::Cancel, this);
    question.setObjectName(QStringLiteral("newDrawing"));
    QPushButton *start = question.addButton(tr("Start Anew"), QMessageBox::AcceptRole);
    start->setObjectName(QStringLiteral("startAnew"));
    question.exec();
    return question.clickedButton() == start;
}

void MainWindow::exportPicture()
{
    QString path = QFileDialog::getSaveFileName(
        this, tr("Export to PNG"), tr("drawing.png"), tr("PNG pictures (*.png)"));
    if (path.isEmpty())
        return;
    if (m_drawing.toImage().save(path, "PNG"))
        statusBar()->showMessage(tr("Exported to %1").arg(path), 5000);
    else
        QMessageBox::warning(
            this, tr("Export to PNG"), tr("The file %1 could not be written.").arg(path));
}

void MainWindow::updateEnabled()
{
    const int selected = m_drawing.selectedItems().size();
    action(QStringLiteral("editUndo"))->setEnabled(m_drawing.history().canUndo());
    action(QStringLiteral("editRedo"))->setEnabled(m_drawing.history().canRedo());
    action(QStringLiteral("editDelete"))->setEnabled(selected > 0);
    for (const auto &entry : alignments)
        action(entry.first)->setEnabled(selected > 1);
}

void MainWindow::updateIcons()
{
    const auto actions = findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAction *action : actions)
        action->setIcon(themedIcon(action->objectName(), palette()));
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateIcons();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    m_canvas->zoomTo(m_drawing.sheet());
}

} // namespace Sketchpad
