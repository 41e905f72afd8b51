// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partPlace_p.h"
#include "widgets/parts/viewParts_p.h"

#include <QDialogButtonBox>
#include <QDockWidget>
#include <QGraphicsRectItem>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>
#include <QWizard>

#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

/// A widget that is looked at, in a window that owns it.
struct Looked
{
    std::unique_ptr<QWidget> window;
    QWidget *widget;
};

template <class Widget>
Looked alone(std::unique_ptr<Widget> widget)
{
    QWidget *looked = widget.get();
    return { std::move(widget), looked };
}

template <class Widget>
std::unique_ptr<Widget> named(const char *name)
{
    auto widget = std::make_unique<Widget>();
    widget->setObjectName(name);
    return widget;
}

std::unique_ptr<QToolButton> toolButton(bool hasIcon, Qt::ToolButtonStyle style)
{
    auto button = named<QToolButton>("brush");
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    if (hasIcon)
        button->setIcon(picture);
    button->setText("&Brush...");
    button->setToolButtonStyle(style);
    return button;
}

Looked dialogButton(const char *boxName, bool isStandard)
{
    auto box = named<QDialogButtonBox>(boxName);
    QPushButton *button = isStandard ? box->addButton(QDialogButtonBox::Save)
                                     : box->addButton("Pour", QDialogButtonBox::ActionRole);
    button->setText(isStandard ? "Save" : "Pour");
    return { std::move(box), button };
}

/// A dock in a window, which only has a title where the platform does not give it one.
Looked dock(bool hasContent, QDockWidget::DockWidgetFeatures features = {})
{
    auto window = std::make_unique<QMainWindow>();
    auto *dock = new QDockWidget("Layers", window.get());
    dock->setObjectName("layers");
    dock->setFeatures(features);
    if (hasContent)
        dock->setWidget(new QLabel("content"));
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    window->resize(300, 200);
    return { std::move(window), dock };
}

Looked subWindow(bool hasContent)
{
    auto area = std::make_unique<QMdiArea>();
    auto *window = new QMdiSubWindow;
    window->setObjectName("drawing");
    window->setWindowTitle("Drawing");
    if (hasContent)
        window->setWidget(named<QLabel>("sketch").release());
    area->addSubWindow(window);
    area->resize(300, 200);
    window->resize(150, 100);
    return { std::move(area), window };
}

Looked tab(const QVariant &data)
{
    auto bar = std::make_unique<QTabBar>();
    bar->addTab("&Colors");
    bar->setTabData(0, data);
    return alone(std::move(bar));
}

/// Such a bar stands for docks, which it knows by their titles only.
Looked tabOfAWindow(const char *title)
{
    auto window = std::make_unique<QMainWindow>();
    auto *dock = new QDockWidget("Layers", window.get());
    dock->setObjectName("layers");
    auto *bar = new QTabBar(window.get());
    bar->addTab(title);
    return { std::move(window), bar };
}

struct Case
{
    const char *name;
    Looked (*make)();
    QStringList names;
    const char *text;
    bool showsText;
};

const Case cases[] = {
    { "tool button with an icon alone",
        [] { return alone(toolButton(true, Qt::ToolButtonIconOnly)); }, { "brush" }, "Brush",
        false },
    { "tool button with icon and text",
        [] { return alone(toolButton(true, Qt::ToolButtonTextBesideIcon)); }, { "brush" }, "Brush",
        true },
    { "tool button without an icon",
        [] { return alone(toolButton(false, Qt::ToolButtonIconOnly)); }, { "brush" }, "Brush",
        true },
    { "tool button with a menu",
        [] {
            auto button = toolButton(false, Qt::ToolButtonIconOnly);
            auto *menu = new QMenu(button.get());
            menu->setObjectName("brushes");
            button->setMenu(menu);
            return alone(std::move(button));
        },
        { "brush", "brushes" }, "Brush", true },
    { "tool button of the same name as its action",
        [] {
            auto button = toolButton(false, Qt::ToolButtonIconOnly);
            auto *action = new QAction("&Paint...", button.get());
            action->setObjectName("brush");
            button->setDefaultAction(action);
            return alone(std::move(button));
        },
        { "brush" }, "Paint", true },
    { "standard button", [] { return dialogButton("buttons", true); }, { "buttons/Save", "Save" },
        "Save", true },
    { "standard button of a nameless box", [] { return dialogButton("", true); }, { "Save" },
        "Save", true },
    { "host's own button of a box", [] { return dialogButton("buttons", false); }, {}, "Pour",
        true },
    { "label without a buddy",
        [] {
            auto label = named<QLabel>("total");
            label->setText("&Total");
            return alone(std::move(label));
        },
        { "total" }, "Total", true },
    { "tab with a text for data", [] { return tab("colors"); }, { "colors" }, "Colors", true },
    { "tab with a number for data", [] { return tab(7); }, {}, "Colors", true },
    { "tab with an empty text for data", [] { return tab(""); }, {}, "Colors", true },
    { "tab of a dock", [] { return tabOfAWindow("Layers"); }, { "layers" }, "Layers", true },
    { "tab of a dock that is gone", [] { return tabOfAWindow("Brushes"); }, {}, "Brushes", true },
    { "group box",
        [] {
            auto box = named<QGroupBox>("effects");
            box->setTitle("&Effects");
            return alone(std::move(box));
        },
        { "effects" }, "Effects", true },
    { "group box with a check box",
        [] {
            auto box = named<QGroupBox>("effects");
            box->setTitle("&Effects");
            box->setCheckable(true);
            return alone(std::move(box));
        },
        { "effects" }, "Effects", true },
    { "dock", [] { return dock(true); }, { "layers" }, "Layers", true },
    { "dock without content", [] { return dock(false); }, { "layers" }, "Layers", true },
    { "dock with a title at its side",
        [] { return dock(true, QDockWidget::DockWidgetVerticalTitleBar); }, { "layers" }, "Layers",
        true },
    { "sub-window", [] { return subWindow(true); }, { "drawing", "sketch" }, "Drawing", true },
    { "sub-window without content", [] { return subWindow(false); }, { "drawing" }, "Drawing",
        true },
    { "line edit", [] { return alone(named<QLineEdit>("size")); }, { "size" }, "", false },
};

/// Inside of every title.
constexpr QPoint onTitle(12, 8);

} // namespace

/// The rarer kinds, one by one; tst_partAt has the usual ones in a window.
class tst_partKinds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void part_isNamed_data();
    void part_isNamed();
    void title_liesBesideTheContent_data();
    void title_liesBesideTheContent();
    void menu_hasPartsForWhatIsSeen();
    void tabBar_isOnePart_besideItsTabs();
    void item_ofAScene_mayLieInAnother();
    void page_ofAWizard_isAPlace();
};

void tst_partKinds::part_isNamed_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(cases)); ++i)
        QTest::newRow(cases[i].name) << i;
}

void tst_partKinds::part_isNamed()
{
    QFETCH(int, row);
    const Looked looked = cases[row].make();
    looked.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(looked.window.get()));
    const HRPart part = partAt(looked.widget, looked.widget->mapToGlobal(onTitle));
    QCOMPARE(part.names, cases[row].names);
    QCOMPARE(part.text, QString(cases[row].text));
    QCOMPARE(part.showsText, cases[row].showsText);
}

void tst_partKinds::title_liesBesideTheContent_data()
{
    QTest::addColumn<int>("features");
    QTest::addColumn<bool>("isAbove");
    QTest::newRow("above") << int(QDockWidget::NoDockWidgetFeatures) << true;
    QTest::newRow("at the side") << int(QDockWidget::DockWidgetVerticalTitleBar) << false;
}

void tst_partKinds::title_liesBesideTheContent()
{
    QFETCH(int, features);
    QFETCH(bool, isAbove);
    const Looked looked = dock(true, QDockWidget::DockWidgetFeatures(features));
    looked.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(looked.window.get()));
    const QWidget *content = qobject_cast<QDockWidget *>(looked.widget)->widget();
    const QRect title = partAt(looked.widget, looked.widget->mapToGlobal(QPoint(2, 2))).area;
    const QRect around(looked.widget->mapToGlobal(QPoint(0, 0)), looked.widget->size());
    const QPoint inside = content->mapToGlobal(QPoint(0, 0));
    QCOMPARE(title.topLeft(), around.topLeft());
    QCOMPARE(title.right() + 1, isAbove ? around.right() + 1 : inside.x());
    QCOMPARE(title.bottom() + 1, isAbove ? inside.y() : around.bottom() + 1);
}

void tst_partKinds::menu_hasPartsForWhatIsSeen()
{
    QMenu menu;
    for (const char *name : { "brew", "hidden", "pour" })
        menu.addAction(name)->setObjectName(name);
    menu.addSeparator()->setObjectName("line");
    menu.actions().at(1)->setVisible(false);
    QStringList names;
    const QVector<HRPart> parts = partsOf(&menu);
    for (const HRPart &part : parts) {
        names += part.names;
        QVERIFY(part.area.isNull());
    }
    QCOMPARE(names, QStringList({ "brew", "pour" }));
    QCOMPARE(keysOf(parts.first()), QStringList("brew"));
}

void tst_partKinds::tabBar_isOnePart_besideItsTabs()
{
    Looked looked = tab("colors");
    looked.widget->setObjectName("bar");
    QCOMPARE(partAt(looked.widget, looked.widget->mapToGlobal(QPoint(-5, -5))).names,
        QStringList("bar"));
    const QVector<HRPart> parts = partsOf(looked.widget);
    QCOMPARE(parts.size(), 1);
    QCOMPARE(parts[0].names, QStringList("colors"));
}

void tst_partKinds::item_ofAScene_mayLieInAnother()
{
    QGraphicsScene scene;
    auto *outer = scene.addRect(0, 0, 100, 80);
    outer->setData(partKeyRole, "shape");
    new QGraphicsRectItem(10, 10, 20, 20, outer);
    QGraphicsView view(&scene);
    view.setObjectName("canvas");
    view.resize(300, 200);
    const QPoint inner = view.viewport()->mapTo(&view, view.mapFromScene(20, 20));
    const HRPart part = partAt(&view, view.mapToGlobal(inner));
    QCOMPARE(part.key, QString("shape"));
    QCOMPARE(part.names, QStringList("canvas"));
    QVERIFY(part.area.width() >= 100);
}

void tst_partKinds::page_ofAWizard_isAPlace()
{
    QWizard wizard;
    wizard.setObjectName("setup");
    auto *page = new QWizardPage;
    page->setObjectName("paper");
    auto *field = new QLineEdit(page);
    field->setObjectName("size");
    wizard.addPage(page);
    QVERIFY(isPlace(page));
    QVERIFY(!isPlace(field));
    QCOMPARE(keysOf(wholePart(field)), QStringList({ "setup/paper/size", "paper/size", "size" }));
}

QTEST_MAIN(tst_partKinds)
#include "tst_partKinds.moc"
