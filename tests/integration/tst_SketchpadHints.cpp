// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "SketchpadFixture.h"
#include "hints/IndexChoice.h"
#include "window/ActionTable.h"
#include "window/GeometryReport.h"

#include <Hintreels/HRIndex>

#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

using namespace Sketchpad;

namespace {

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

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_SketchpadHints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
    void geometryReport_namesToolsAndEntries();
    void question_isAnsweredByItsButtons_data();
    void question_isAnsweredByItsButtons();
};

void tst_SketchpadHints::index_holdsContent_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : indexNames())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_SketchpadHints::index_holdsContent()
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

void tst_SketchpadHints::everyAction_hasContent()
{
    SketchpadFixture f;
    const QStringList keys = f.hints.keys();
    QStringList without;
    for (const QString &name : actionNames()) {
        QVERIFY2(f.window.action(name), qPrintable(name));
        if (!keys.contains(name))
            without.append(name);
    }
    QCOMPARE(without, QStringList());
}

void tst_SketchpadHints::everyNamedWidget_hasContent()
{
    SketchpadFixture f;
    const QStringList keys = f.hints.keys();
    for (const char *name :
        { "canvas", "strokeColor", "fillColor", "strokeWidth", "statusPosition", "statusZoom" }) {
        QVERIFY2(f.window.findChild<QWidget *>(name), name);
        QVERIFY2(keys.contains(name), name);
    }
}

void tst_SketchpadHints::everyDocumentationName_hasPage()
{
    SketchpadFixture f;
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

void tst_SketchpadHints::key_isThatOfButtonsAction()
{
    SketchpadFixture f;
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

void tst_SketchpadHints::key_isThatOfMenusActiveAction()
{
    SketchpadFixture f;
    QMenu menu;
    menu.setObjectName("menu");
    QCOMPARE(f.hints.keyForObject(&menu), QString("menu"));
    menu.addAction(f.window.action("fileExport"));
    menu.setActiveAction(f.window.action("fileExport"));
    QCOMPARE(f.hints.keyForObject(&menu), QString("fileExport"));
}

void tst_SketchpadHints::key_isThatOfCanvas_forItsViewport()
{
    SketchpadFixture f;
    QCOMPARE(f.hints.keyForObject(f.canvas.viewport()), QString("canvas"));
}

void tst_SketchpadHints::shortcut_isTheActionsPresentOne()
{
    SketchpadFixture f;
    QCOMPARE(f.hints.shortCutForObject("toolPen", nullptr, "X"), QString("P"));
    f.window.action("toolPen")->setShortcut(QKeySequence("Ctrl+J"));
    QCOMPARE(f.hints.shortCutForObject("toolPen", nullptr, "X"), QString("Ctrl+J"));
    QCOMPARE(f.hints.shortCutForObject("canvas", nullptr, "X"), QString("X"));
}

void tst_SketchpadHints::language_changesLocale()
{
    SketchpadFixture f;
    f.choose("languageGerman");
    QCOMPARE(f.hints.context().get(Hintreels::localeKey, {}).toString(), QString("de_DE"));
    f.window.setHintLocale("en_US");
    QCOMPARE(f.hints.context().get(Hintreels::localeKey, {}).toString(), QString("en_US"));
    QVERIFY(f.window.action("languageEnglish")->isChecked());
}

void tst_SketchpadHints::geometryReport_namesToolsAndEntries()
{
    QTemporaryDir directory;
    const QString path = directory.filePath("geometry");
    MainWindow window;
    const GeometryReport report(path);
    window.show();
    QTRY_VERIFY(QFile::exists(path));

    const QByteArray lines = contentOf(path);
    for (const char *name : { "toolPen ", "strokeWidth ", "statusZoom ", "canvas " })
        QVERIFY2(lines.contains(name), name);
    QVERIFY(!lines.contains("menu/"));

    QMenu *menu = window.menuBar()->actions().constFirst()->menu();
    menu->popup({ 200, 200 });
    QTRY_VERIFY(contentOf(path).contains("menu/fileNew "));
}

void tst_SketchpadHints::question_isAnsweredByItsButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isLost");
    QTest::newRow("start anew") << "startAnew" << true;
    QTest::newRow("cancel") << "" << false;
}

void tst_SketchpadHints::question_isAnsweredByItsButtons()
{
    QFETCH(QString, button);
    QFETCH(bool, isLost);
    SketchpadFixture f;
    QVERIFY(f.hints.keys().contains("newDrawing/startAnew"));
    f.addRectangle({ 100, 100, 50, 50 });
    QTimer::singleShot(0, this, [&] {
        auto *question = f.window.findChild<QMessageBox *>("newDrawing");
        auto *named = question->findChild<QPushButton *>("startAnew");
        (button.isEmpty() ? question->button(QMessageBox::Cancel) : named)->click();
    });

    f.choose("fileNew");

    QCOMPARE(!f.drawing.history().canUndo(), isLost);
}

QTEST_MAIN(tst_SketchpadHints)
#include "tst_SketchpadHints.moc"
