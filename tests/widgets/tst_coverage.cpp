// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "support/TestPackage.h"
#include "widgets/HRWidgetsInterface.h"
#include "widgets/PartsWindow.h"
#include "widgets/coverage_p.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <utility>

using namespace Hintreels;

namespace {

QStringList keysOf(const QVector<HRCoveredPart> &parts)
{
    QStringList keys;
    for (const HRCoveredPart &part : parts)
        keys.append(part.keys.value(0));
    return keys;
}

bool tells(const QVector<HRCoveredPart> &parts, const QString &key)
{
    return keysOf(parts).contains(key);
}

/// A model of one cell that does something once when its column's name is asked for.
class BusyModel : public QStandardItemModel
{
public:
    explicit BusyModel(QObject *parent)
        : QStandardItemModel(parent)
    {
        auto *cell = new QStandardItem;
        cell->setData("cell", HRWidgetsInterface::keyRole);
        appendRow(cell);
    }

    QVariant headerData(int, Qt::Orientation, int) const override
    {
        if (onHeader)
            std::exchange(onHeader, nullptr)();
        return {};
    }

    mutable std::function<void()> onHeader;
};

/// An empty window with buttons of these names.
struct Buttons : QWidget
{
    explicit Buttons(const QStringList &names)
    {
        setObjectName("window");
        for (const QString &name : names)
            (new QPushButton(name, this))->setObjectName(name);
        show();
    }
};

} // namespace

class tst_coverage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void part_withoutContent_isTold();
    void part_withoutName_isTold();
    void content_ofSeveralParts_isTold();
    void content_ofOneAction_isNot();
    void content_thatNobodyShows_isTold();
    void window_isWalkedWhole();
    void area_isThatOfWhatIsOpen();
    void pieces_areNoParts();
    void cell_isTold_whereItHasAKey();
    void interface_looksAtOpenWindows_inSilence();
    void menu_isWalkedOnce_whateverLeadsToIt();
    void menusAndToolTips_areNoWindows();
    void qtsOwn_areNoParts_unlessTheyAreNamed();
    void model_mayDelete_whenAsked_data();
    void model_mayDelete_whenAsked();
};

void tst_coverage::part_withoutContent_isTold()
{
    Buttons window({ "brew", "pour" });
    const HRCoverage coverage = coverageOf(walkParts(&window), { "brew" });
    QCOMPARE(keysOf(coverage.withoutHint), QStringList("window/pour"));
    QCOMPARE(coverage.withoutHint[0].text, QString("pour"));
    QVERIFY(coverage.nameless.isEmpty());
    QVERIFY(coverage.shared.isEmpty());
    QVERIFY(coverage.unusedKeys.isEmpty());
}

void tst_coverage::part_withoutName_isTold()
{
    Buttons window({ "brew", "" });
    const HRCoverage coverage = coverageOf(walkParts(&window), { "brew" });
    QCOMPARE(coverage.nameless.size(), 1);
    QVERIFY(coverage.nameless[0].keys.isEmpty());
    QVERIFY(coverage.withoutHint.isEmpty());
}

void tst_coverage::content_ofSeveralParts_isTold()
{
    Buttons window({ "brew", "brew", "pour" });
    const HRCoverage coverage = coverageOf(walkParts(&window), { "brew", "pour" });
    QCOMPARE(coverage.shared.keys(), QStringList("brew"));
    QCOMPARE(coverage.shared["brew"].size(), 2);
}

void tst_coverage::content_ofOneAction_isNot()
{
    PartsWindow window; // has "fileOpen" in a menu and in a tool bar
    const HRCoverage coverage = coverageOf(walkParts(&window), { "fileOpen" });
    QVERIFY(coverage.shared.isEmpty());
    QVERIFY(!tells(coverage.withoutHint, "PartsWindow/fileOpen"));
}

void tst_coverage::content_thatNobodyShows_isTold()
{
    Buttons window({ "brew" });
    const QStringList keys{ "brew", "tea", "window/brew", "tea", "window" };
    const HRCoverage coverage = coverageOf(walkParts(&window), keys);
    // The window's button shows its special hint, never the general one.
    QCOMPARE(coverage.unusedKeys, QStringList({ "brew", "tea" }));
}

void tst_coverage::window_isWalkedWhole()
{
    PartsWindow window;
    new QPushButton("hidden", window.ui.colorTab);
    new QPushButton("hidden", window.ui.stamps);
    for (const QWidget *page : { window.ui.colorTab, window.ui.stamps })
        page->findChild<QPushButton *>()->setObjectName("onOtherPage");
    const HRCoverage coverage = coverageOf(walkParts(&window), {});
    for (const char *key : { "PartsWindow/menuFile", "PartsWindow/fileQuit",
             "PartsWindow/recentClear", "finder", "PartsWindow/fontTab", "PartsWindow/colorTab",
             "PartsWindow/people/Age", "PartsWindow/people", "PartsWindow/fontTab/size",
             "PartsWindow/fontTab/family", "PartsWindow/buttons/Save", "PartsWindow/strikeout",
             "shape", "PartsWindow/canvas", "PartsWindow/colorTab/onOtherPage",
             "PartsWindow/brushes", "PartsWindow/stamps", "PartsWindow/stamps/onOtherPage" })
        QVERIFY2(tells(coverage.withoutHint, key), key);
    for (const char *key : { "PartsWindow/tabs", "PartsWindow/zoom", "ink" })
        QVERIFY2(!tells(coverage.withoutHint, key), key);
}

void tst_coverage::area_isThatOfWhatIsOpen()
{
    QTabWidget window;
    auto *hidden = new QTabWidget;
    hidden->addTab(new QWidget, "Inside");
    window.addTab(new QWidget, "Before");
    window.addTab(hidden, "Behind");
    window.show();
    const HRCoverage coverage = coverageOf(walkParts(&window), {});
    QMap<QString, QRect> areas;
    for (const HRCoveredPart &part : coverage.nameless)
        areas[part.text] = part.area;
    QCOMPARE(areas.keys(), QStringList({ "Before", "Behind", "Inside" }));
    QVERIFY(!areas["Before"].isNull());
    QVERIFY(!areas["Behind"].isNull());
    QVERIFY(areas["Inside"].isNull());
}

void tst_coverage::pieces_areNoParts()
{
    PartsWindow window;
    const HRCoverage coverage = coverageOf(walkParts(&window), {});
    for (const HRCoveredPart &part : coverage.nameless)
        qWarning() << part.widget << part.text;
    QVERIFY(coverage.nameless.isEmpty());
}

void tst_coverage::cell_isTold_whereItHasAKey()
{
    QWidget window;
    QTableWidget table(3, 2, &window);
    table.setObjectName("people");
    table.setHorizontalHeaderLabels({ "Name", "Age" });
    table.setVerticalHeaderItem(1, new QTableWidgetItem("Second"));
    for (int row = 0; row < 3; ++row)
        table.setItem(row, 0, new QTableWidgetItem("somebody"));
    auto *answer = new QTableWidgetItem("42");
    answer->setData(HRWidgetsInterface::keyRole, "answer");
    table.setItem(2, 1, answer);
    window.show();
    const HRCoverage coverage = coverageOf(walkParts(&window), {});
    QStringList keys = keysOf(coverage.withoutHint);
    keys.sort();
    // The table, one cell, its columns, and the row that is more than a number.
    QCOMPARE(
        keys, QStringList({ "answer", "people", "people/Age", "people/Name", "people/Second" }));
}

void tst_coverage::interface_looksAtOpenWindows_inSilence()
{
    class Host : public HRWidgetsInterface
    {
    public:
        using HRWidgetsInterface::HRWidgetsInterface;
        void handleMessage(HRMessageType, const QString &message) override
        {
            messages.append(message);
        }
        QStringList messages;
    };

    TestPackages packages;
    packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
    packages.writeControl("A", "a.xml",
        "<hintreel key='brew' title='Brew'/><hintreel key='tea'/><hintreel key='none'/>",
        "ui='ui/Popup.qml'");
    HRContext context;
    context.set(fallbackKeyKey, "none");
    context.set(hideDelayKey, 0);
    Host host(context, { packages.path() });
    Buttons open({ "brew", "pour" });
    Buttons closed({ "tea" });
    closed.hide();
    host.show("brew", QPoint(10, 10), nullptr);
    host.context().set(messageLevelKey, int(messageDebug));

    const HRCoverage coverage = host.coverage();

    QCOMPARE(keysOf(coverage.withoutHint), QStringList("window/pour"));
    QVERIFY(coverage.nameless.isEmpty());
    QCOMPARE(coverage.unusedKeys, QStringList("tea"));
    QCOMPARE(host.messages, QStringList());
}

void tst_coverage::menu_isWalkedOnce_whateverLeadsToIt()
{
    QMainWindow window;
    QMenu *menu = window.menuBar()->addMenu("Brew");
    menu->addAction("Pour")->setObjectName("pour");
    window.menuBar()->addAction(menu->menuAction());
    window.menuBar()->addMenu("More")->addMenu(menu);
    QStringList keys = keysOf(coverageOf(walkParts(&window), {}).withoutHint);
    QCOMPARE(keys.count("pour"), 1);

    menu->addAction("Pour all")->setObjectName("pour");
    const HRCoverage coverage = coverageOf(walkParts(&window), { "pour" });
    QCOMPARE(coverage.shared["pour"].size(), 2);
}

void tst_coverage::menusAndToolTips_areNoWindows()
{
    HRContext context;
    HRWidgetsInterface host(context, {});
    Buttons window({ "brew" });
    for (const Qt::WindowType type : { Qt::Popup, Qt::ToolTip }) {
        Buttons other({ "pour" });
        other.setWindowFlags(type);
        other.show();
        QCOMPARE(keysOf(host.coverage().withoutHint), QStringList("window/brew"));
    }
}

void tst_coverage::qtsOwn_areNoParts_unlessTheyAreNamed()
{
    Buttons window({ "qt_pour", "brew" });
    QCOMPARE(keysOf(coverageOf(walkParts(&window), {}).withoutHint), QStringList("window/brew"));
    window.findChild<QPushButton *>("qt_pour")->setProperty("hintreelKey", "pour");
    const HRCoverage coverage = coverageOf(walkParts(&window), {});
    QCOMPARE(keysOf(coverage.withoutHint), QStringList({ "pour", "window/brew" }));
    QVERIFY(coverage.nameless.isEmpty());
}

void tst_coverage::model_mayDelete_whenAsked_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("what comes later") << "later" << QStringList("window/first");
    QTest::newRow("what has been seen") << "first" << QStringList("window/last");
    QTest::newRow("all around it, the model too") << "window" << QStringList();
    QTest::newRow("its view") << "view" << QStringList({ "window/first", "window/last" });
    QTest::newRow("the interface") << "interface" << QStringList();
}

void tst_coverage::model_mayDelete_whenAsked()
{
    QFETCH(QString, victim);
    QFETCH(QStringList, told);
    HRContext context;
    auto *host = new HRWidgetsInterface(context, {});
    host->setObjectName("interface");
    auto *window = new Buttons({ "first" });
    auto *view = new QTableView(window);
    view->setObjectName("view");
    auto *model = new BusyModel(view);
    view->setModel(model);
    auto *last = new QPushButton(window);
    last->setObjectName("last");
    view->show();
    last->show();
    const QMap<QString, QObject *> victims{ { "later", last },
        { "first", window->findChild<QWidget *>("first") }, { "window", window }, { "view", view },
        { "interface", host } };
    const QPointer<QObject> doomed = victims[victim];
    model->onHeader = [&] { delete doomed; };

    const HRCoverage coverage = host->coverage();

    QVERIFY(!doomed);
    QCOMPARE(keysOf(coverage.withoutHint).filter(QRegularExpression("/(first|last)$")), told);
    delete (victim == "window" ? nullptr : window);
    delete (victim == "interface" ? nullptr : host);
}

QTEST_MAIN(tst_coverage)
#include "tst_coverage.moc"
