// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "SketchpadFixture.h"

using namespace Sketchpad;

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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
    for (int i = 0; i < Drawing::undoLimit + 5; ++i)
        f.drawing.fillAt({ 450, 300 });
    QCOMPARE(f.stepCount(), Drawing::undoLimit);
}

void tst_Sketchpad::escape_dropsShapeWhileButtonIsHeld()
{
    SketchpadFixture f;
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
    SketchpadFixture f;
    for (const char *tool : { "toolPen", "toolLine", "toolRectangle", "toolEllipse" }) {
        f.choose(tool);
        f.click({ 100, 100 });
    }
    QCOMPARE(f.itemCount(), 0);
    QCOMPARE(f.stepCount(), 0);
}

void tst_Sketchpad::eraser_removesAllTouchedInOneStep()
{
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
    f.choose("toolText");
    f.click({ 200, 200 });
    QCOMPARE(f.itemCount(), 1);
    f.choose("toolPen");
    QCOMPARE(f.itemCount(), 0);
    QCOMPARE(f.stepCount(), 0);
}

void tst_Sketchpad::text_isEditedByDoubleClick()
{
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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
    SketchpadFixture f;
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

QTEST_MAIN(tst_Sketchpad)
#include "tst_Sketchpad.moc"
