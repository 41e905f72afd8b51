// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"
#include "hints/IndexChoice.h"
#include "hints/SketchpadHints.h"
#include "window/ActionTable.h"
#include "window/GeometryReport.h"
#include "window/MainWindow.h"

#include <Hintreels/HRContext>
#include <Hintreels/HRIndex>

#include <QAction>
#include <QMenu>
#include <QToolButton>
#include <QtTest>

using namespace Sketchpad;

namespace {

HRContext configuredContext()
{
    HRContext context;
    SketchpadHints::configure(context);
    return context;
}

// The window with its hints, and a hand that draws on the sheet in the sheet's coordinates.
struct Fixture
{
    Fixture()
        : context(configuredContext())
        , hints(context, { STANDARD_PACKAGES_DIR, SKETCHPAD_PACKAGES_DIR }, window)
        , canvas(*window.findChild<Canvas *>())
        , drawing(window.drawing())
    {
        window.show();
        QApplication::setActiveWindow(&window);
        canvas.setFocus();
    }

    void choose(const char *name) { window.action(name)->trigger(); }

    QPoint at(const QPointF &point) const { return canvas.mapFromScene(point); }

    void press(const QPointF &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(canvas.viewport(), Qt::LeftButton, modifiers, at(point));
    }

    // With the button held, which QTest::mouseMove() leaves out.
    void moveTo(const QPointF &point)
    {
        QMouseEvent move(QEvent::MouseMove, at(point), canvas.viewport()->mapToGlobal(at(point)),
            Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas.viewport(), &move);
    }

    void release(const QPointF &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseRelease(canvas.viewport(), Qt::LeftButton, modifiers, at(point));
    }

    void drag(const QPointF &from, const QPointF &to)
    {
        press(from);
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
    }

    void click(const QPointF &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(point, modifiers);
        release(point, modifiers);
    }

    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&canvas, key, modifiers);
    }

    void addRectangle(const QRectF &rect)
    {
        choose("toolRectangle");
        drag(rect.topLeft(), rect.bottomRight());
    }

    int itemCount() const { return drawing.items().size(); }
    int stepCount() const { return drawing.history().count(); }

    MainWindow window;
    HRContext context;
    SketchpadHints hints;
    Canvas &canvas;
    Drawing &drawing;
};

QStringList actionNames()
{
    QStringList names;
    for (const MenuRows &menu : actionTable()) {
        for (const ActionRow &row : menu.rows) {
            if (row.name)
                names.append(row.name);
        }
    }
    return names;
}

} // namespace

class tst_Sketchpad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawingTools_addOneItemAndOneStep_data();
    void drawingTools_addOneItemAndOneStep();
    void undo_takesBackAndRedoRepeats();
    void undo_remembersHundredSteps();
    void escape_dropsShapeWhileButtonIsHeld();
    void click_drawsNoEmptyShape();
    void eraser_removesAllTouchedInOneStep();
    void fill_colorsItemOrSheet();
    void text_isOneStep_afterEscape();
    void text_leavesNothing_whenEmpty();
    void text_isEditedByDoubleClick();
    void select_movesInOneStep();
    void escape_putsMovedItemBack();
    void arrowKeys_moveSelectionInOneStep();
    void align_movesSelectionTogether();
    void deleteSelection_comesBackInPlace();
    void startAnew_forgetsItemsAndSteps();
    void export_showsSheetWithoutSelection();
    void zoomTool_zoomsInOutAndToFrame();

    void index_holdsContent_data();
    void index_holdsContent();
    void everyAction_hasContent();
    void everyNamedWidget_hasContent();
    void everyDocumentationName_hasPage();
    void key_isThatOfButtonsAction();
    void key_isThatOfMenusActiveAction();
    void key_isThatOfCanvas_forItsViewport();
    void shortcut_isTheActionsPresentOne();
    void language_changesLocale();
    void geometryReport_namesTools();
};

void tst_Sketchpad::drawingTools_addOneItemAndOneStep_data()
{
    QTest::addColumn<QByteArray>("tool");
    for (const char *tool : { "toolPen", "toolLine", "toolRectangle", "toolEllipse" })
        QTest::newRow(tool) << QByteArray(tool);
}

void tst_Sketchpad::drawingTools_addOneItemAndOneStep()
{
    QFETCH(QByteArray, tool);
    Fixture f;
    f.choose(tool.constData());
    f.drag({ 100, 100 }, { 300, 200 });

    QCOMPARE(f.itemCount(), 1);
    QCOMPARE(f.stepCount(), 1);
    const QRectF drawn = f.drawing.items().first()->sceneBoundingRect();
    QVERIFY(drawn.contains(QRectF(101, 101, 198, 98)));
    QVERIFY(QRectF(90, 90, 220, 120).contains(drawn));
}

void tst_Sketchpad::undo_takesBackAndRedoRepeats()
{
    Fixture f;
    QVERIFY(!f.window.action("editUndo")->isEnabled());
    f.addRectangle({ 100, 100, 80, 60 });
    f.addRectangle({ 300, 100, 80, 60 });

    f.choose("editUndo");
    QCOMPARE(f.itemCount(), 1);
    f.choose("editUndo");
    QCOMPARE(f.itemCount(), 0);
    QVERIFY(!f.window.action("editUndo")->isEnabled());
    f.choose("editRedo");
    f.choose("editRedo");
    QCOMPARE(f.itemCount(), 2);
    QVERIFY(!f.window.action("editRedo")->isEnabled());
}

void tst_Sketchpad::undo_remembersHundredSteps()
{
    Fixture f;
    for (int i = 0; i < Drawing::undoLimit + 5; ++i)
        f.drawing.fillAt({ 450, 300 });
    QCOMPARE(f.stepCount(), Drawing::undoLimit);
}

void tst_Sketchpad::escape_dropsShapeWhileButtonIsHeld()
{
    Fixture f;
    for (const char *tool : { "toolPen", "toolRectangle" }) {
        f.choose(tool);
        f.press({ 100, 100 });
        f.moveTo({ 200, 200 });
        QCOMPARE(f.itemCount(), 1);
        f.type(Qt::Key_Escape);
        QCOMPARE(f.itemCount(), 0);
        f.release({ 200, 200 });
    }
    QCOMPARE(f.stepCount(), 0);
}

void tst_Sketchpad::click_drawsNoEmptyShape()
{
    Fixture f;
    for (const char *tool : { "toolPen", "toolLine", "toolRectangle", "toolEllipse" }) {
        f.choose(tool);
        f.click({ 100, 100 });
    }
    QCOMPARE(f.itemCount(), 0);
    QCOMPARE(f.stepCount(), 0);
}

void tst_Sketchpad::eraser_removesAllTouchedInOneStep()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    f.addRectangle({ 300, 100, 80, 60 });
    f.addRectangle({ 100, 400, 80, 60 });
    f.choose("toolEraser");
    f.drag({ 140, 130 }, { 340, 130 });

    QCOMPARE(f.itemCount(), 1);
    QCOMPARE(f.stepCount(), 4);
    f.choose("editUndo");
    QCOMPARE(f.itemCount(), 3);
    QVERIFY(f.drawing.itemAt({ 140, 130 }, {})->isVisible());
}

void tst_Sketchpad::fill_colorsItemOrSheet()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    f.drawing.style().fill = Qt::red;
    f.choose("toolFill");
    f.click({ 140, 130 });
    QCOMPARE(fillOf(f.drawing.items().first()), QColor(Qt::red));
    QCOMPARE(f.drawing.paper(), QColor(Qt::white));

    f.click({ 500, 400 });
    QCOMPARE(f.drawing.paper(), QColor(Qt::red));
    f.choose("editUndo");
    f.choose("editUndo");
    QCOMPARE(f.drawing.paper(), QColor(Qt::white));
    QVERIFY(fillOf(f.drawing.items().first()) != QColor(Qt::red));
}

void tst_Sketchpad::text_isOneStep_afterEscape()
{
    Fixture f;
    f.choose("toolText");
    f.click({ 200, 200 });
    QTest::keyClicks(&f.canvas, "Hello");
    f.type(Qt::Key_Escape);

    QCOMPARE(f.stepCount(), 1);
    auto *text = qgraphicsitem_cast<TextItem *>(f.drawing.items().first());
    QVERIFY(text);
    QCOMPARE(text->toPlainText(), QString("Hello"));
    f.choose("editUndo");
    QCOMPARE(f.itemCount(), 0);
}

void tst_Sketchpad::text_leavesNothing_whenEmpty()
{
    Fixture f;
    f.choose("toolText");
    f.click({ 200, 200 });
    QCOMPARE(f.itemCount(), 1);
    f.choose("toolPen");
    QCOMPARE(f.itemCount(), 0);
    QCOMPARE(f.stepCount(), 0);
}

void tst_Sketchpad::text_isEditedByDoubleClick()
{
    Fixture f;
    f.choose("toolText");
    f.click({ 200, 200 });
    QTest::keyClicks(&f.canvas, "Hello");
    f.choose("toolSelect");
    QTest::mouseDClick(f.canvas.viewport(), Qt::LeftButton, {}, f.at({ 220, 200 }));
    QTest::keyClicks(&f.canvas, "!");
    f.type(Qt::Key_Escape);

    QCOMPARE(f.stepCount(), 2);
    auto *text = qgraphicsitem_cast<TextItem *>(f.drawing.items().first());
    QCOMPARE(text->toPlainText(), QString("Hello!"));
    f.choose("editUndo");
    QCOMPARE(text->toPlainText(), QString("Hello"));
}

void tst_Sketchpad::select_movesInOneStep()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    QGraphicsItem *item = f.drawing.items().first();
    f.choose("toolSelect");
    f.drag({ 140, 130 }, { 240, 230 });

    QVERIFY((item->pos() - QPointF(100, 100)).manhattanLength() < 4);
    QCOMPARE(f.stepCount(), 2);
    f.choose("editUndo");
    QCOMPARE(item->pos(), QPointF());
}

void tst_Sketchpad::escape_putsMovedItemBack()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    QGraphicsItem *item = f.drawing.items().first();
    f.choose("toolSelect");
    f.press({ 140, 130 });
    f.moveTo({ 200, 200 });
    f.moveTo({ 240, 230 });
    QVERIFY(item->pos() != QPointF());
    f.type(Qt::Key_Escape);
    QCOMPARE(item->pos(), QPointF());
    f.release({ 240, 230 });
    QCOMPARE(f.stepCount(), 1);
}

void tst_Sketchpad::arrowKeys_moveSelectionInOneStep()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    QGraphicsItem *item = f.drawing.items().first();
    f.choose("toolSelect");
    f.click({ 140, 130 });
    f.type(Qt::Key_Right);
    f.type(Qt::Key_Right);
    f.type(Qt::Key_Up, Qt::ShiftModifier);

    QCOMPARE(item->pos(), QPointF(2, -10));
    QCOMPARE(f.stepCount(), 2);
    f.choose("editUndo");
    QCOMPARE(item->pos(), QPointF());
}

void tst_Sketchpad::align_movesSelectionTogether()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    f.addRectangle({ 300, 250, 80, 60 });
    f.choose("toolSelect");
    QVERIFY(!f.window.action("alignLeft")->isEnabled());
    f.choose("editSelectAll");
    QVERIFY(f.window.action("alignLeft")->isEnabled());
    f.choose("alignLeft");

    const QList<QGraphicsItem *> items = f.drawing.items();
    QCOMPARE(items[0]->sceneBoundingRect().left(), items[1]->sceneBoundingRect().left());
    QCOMPARE(f.stepCount(), 3);
    f.choose("editUndo");
    QVERIFY(items[0]->sceneBoundingRect().left() > items[1]->sceneBoundingRect().left() + 150);
}

void tst_Sketchpad::deleteSelection_comesBackInPlace()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    f.addRectangle({ 120, 110, 80, 60 });
    QGraphicsItem *below = f.drawing.items().last();
    f.choose("toolSelect");
    f.click({ 105, 105 });
    f.choose("editDelete");
    QCOMPARE(f.itemCount(), 1);
    f.choose("editUndo");
    QCOMPARE(f.drawing.items().last(), below);
}

void tst_Sketchpad::startAnew_forgetsItemsAndSteps()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    f.choose("editUndo");
    f.choose("editRedo");
    f.drawing.setPaper(Qt::blue);
    f.drawing.startAnew();
    QCOMPARE(f.itemCount(), 0);
    QCOMPARE(f.stepCount(), 0);
    QCOMPARE(f.drawing.paper(), QColor(Qt::white));
}

void tst_Sketchpad::export_showsSheetWithoutSelection()
{
    Fixture f;
    f.addRectangle({ 100, 100, 80, 60 });
    f.drawing.setPaper(Qt::green);
    const QImage plain = f.drawing.toImage();
    f.drawing.selectAll();
    const QImage selected = f.drawing.toImage();

    QCOMPARE(plain.size(), QSize(900, 600));
    QCOMPARE(plain.pixelColor(5, 5), QColor(Qt::green));
    QCOMPARE(plain.pixelColor(140, 130), f.drawing.style().fill);
    QCOMPARE(selected, plain);
    QCOMPARE(f.drawing.selectedItems().size(), 1);
}

void tst_Sketchpad::zoomTool_zoomsInOutAndToFrame()
{
    Fixture f;
    const qreal before = f.canvas.zoom();
    f.choose("toolZoom");
    f.click({ 450, 300 });
    QVERIFY(f.canvas.zoom() > before);
    f.click({ 450, 300 }, Qt::AltModifier);
    QCOMPARE(f.canvas.zoom(), before);
    f.drag({ 400, 280 }, { 450, 310 });
    QVERIFY(f.canvas.zoom() > 4 * before);
    QVERIFY((f.canvas.mapToScene(f.canvas.viewport()->rect().center()) - QPointF(425, 295))
                .manhattanLength()
        < 5);
}

void tst_Sketchpad::index_holdsContent_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : indexNames())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Sketchpad::index_holdsContent()
{
    QFETCH(QString, name);
    MainWindow window;
    QTemporaryDir directory;
    HRContext context = configuredContext();
    context.set(Hintreels::persistentDirectoryKey, directory.path());
    const QStringList dataPaths{ STANDARD_PACKAGES_DIR, SKETCHPAD_PACKAGES_DIR };
    const std::unique_ptr<Hintreels::HRIndex> index = makeIndex(name, context, dataPaths);
    SketchpadHints hints(context, dataPaths, window, index.get());

    QCOMPARE(hints.hintreelAttribute("toolPen", "title", {}), QString("Pen"));
    QVERIFY(hints.show("toolPen", { 100, 100 }, &window));
}

void tst_Sketchpad::everyAction_hasContent()
{
    Fixture f;
    const QStringList keys = f.hints.keys();
    QStringList without;
    for (const QString &name : actionNames()) {
        QVERIFY2(f.window.action(name), qPrintable(name));
        if (!keys.contains(name))
            without.append(name);
    }
    QCOMPARE(without, QStringList());
}

void tst_Sketchpad::everyNamedWidget_hasContent()
{
    Fixture f;
    const QStringList keys = f.hints.keys();
    for (const char *name :
        { "canvas", "strokeColor", "fillColor", "strokeWidth", "statusPosition", "statusZoom" }) {
        QVERIFY2(f.window.findChild<QWidget *>(name), name);
        QVERIFY2(keys.contains(name), name);
    }
}

void tst_Sketchpad::everyDocumentationName_hasPage()
{
    Fixture f;
    int pages = 0;
    for (const QString &key : f.hints.keys()) {
        const QString page = f.hints.hintreelAttribute(key, "documentation", {});
        if (page.isEmpty())
            continue;
        ++pages;
        QVERIFY2(f.window.showHelp(page), qPrintable(page));
    }
    QVERIFY(pages >= 10);
    QVERIFY(!f.window.showHelp("no such page"));
}

void tst_Sketchpad::key_isThatOfButtonsAction()
{
    Fixture f;
    int buttons = 0;
    for (QToolButton *button : f.window.findChildren<QToolButton *>()) {
        if (!button->defaultAction())
            continue;
        ++buttons;
        QCOMPARE(f.hints.keyForObject(button), button->defaultAction()->objectName());
    }
    QVERIFY(buttons > 20);
    QCOMPARE(
        f.hints.keyForObject(f.window.findChild<QToolButton *>("fillColor")), QString("fillColor"));
}

void tst_Sketchpad::key_isThatOfMenusActiveAction()
{
    Fixture f;
    QMenu menu;
    menu.setObjectName("menu");
    QCOMPARE(f.hints.keyForObject(&menu), QString("menu"));
    menu.addAction(f.window.action("fileExport"));
    menu.setActiveAction(f.window.action("fileExport"));
    QCOMPARE(f.hints.keyForObject(&menu), QString("fileExport"));
}

void tst_Sketchpad::key_isThatOfCanvas_forItsViewport()
{
    Fixture f;
    QCOMPARE(f.hints.keyForObject(f.canvas.viewport()), QString("canvas"));
}

void tst_Sketchpad::shortcut_isTheActionsPresentOne()
{
    Fixture f;
    QCOMPARE(f.hints.shortCutForObject("toolPen", nullptr, "X"), QString("P"));
    f.window.action("toolPen")->setShortcut(QKeySequence("Ctrl+J"));
    QCOMPARE(f.hints.shortCutForObject("toolPen", nullptr, "X"), QString("Ctrl+J"));
    QCOMPARE(f.hints.shortCutForObject("canvas", nullptr, "X"), QString("X"));
}

void tst_Sketchpad::language_changesLocale()
{
    Fixture f;
    f.choose("languageGerman");
    QCOMPARE(f.hints.context().get(Hintreels::localeKey, {}).toString(), QString("de_DE"));
    f.window.setHintLocale("en_US");
    QCOMPARE(f.hints.context().get(Hintreels::localeKey, {}).toString(), QString("en_US"));
    QVERIFY(f.window.action("languageEnglish")->isChecked());
}

void tst_Sketchpad::geometryReport_namesTools()
{
    QTemporaryDir directory;
    const QString path = directory.filePath("geometry");
    MainWindow window;
    const GeometryReport report(window, path);
    window.show();
    QTRY_VERIFY(QFile::exists(path));

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray lines = file.readAll();
    for (const char *name : { "toolPen ", "strokeWidth ", "statusZoom ", "canvas " })
        QVERIFY2(lines.contains(name), name);
}

QTEST_MAIN(tst_Sketchpad)
#include "tst_Sketchpad.moc"
