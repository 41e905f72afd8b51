// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "widgets/HRWidgetsInterface.h"
#include "widgets/PartsWindow.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Hintreels;

namespace {

/// A host that does something once when it is called back.
class Host : public HRWidgetsInterface
{
public:
    using HRWidgetsInterface::HRWidgetsInterface;

    QString keyForObject(QObject *object) override
    {
        const QString key = HRWidgetsInterface::keyForObject(object);
        const QString own = keys.value(object);
        if (onKey)
            std::exchange(onKey, nullptr)();
        return own.isNull() ? key : own;
    }
    QString shortCutForObject(const QString &key, QObject *object, const QString &text) override
    {
        const QString live = HRWidgetsInterface::shortCutForObject(key, object, text);
        if (onShortcut)
            std::exchange(onShortcut, nullptr)();
        return live;
    }
    void handleMessage(HRMessageType, const QString &message) override
    {
        messages.append(message);
        if (onMessage)
            std::exchange(onMessage, nullptr)();
    }

    QMap<QObject *, QString> keys; ///< what the host calls objects itself
    QStringList messages;
    std::function<void()> onKey;
    std::function<void()> onShortcut;
    std::function<void()> onMessage;
};

struct Fixture
{
    explicit Fixture(const QByteArray &entries, const QMap<int, QVariant> &settings = {})
        : window(std::make_unique<PartsWindow>())
    {
        packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
        packages.writeControl("A", "a.xml", entries, "ui='ui/Popup.qml'");
        context.set(hideAnimationDurationKey, 0);
        context.set(hideDelayKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<Host>(context, QStringList{ packages.path() });
    }

    HRWidget *popup() const { return host->manager()->widget(); }
    const HRXmlElement *shown() const
    {
        return popup() && popup()->isVisible() ? popup()->view()->content() : nullptr;
    }
    QString shown(const QString &attribute) const
    {
        return shown() ? shown()->attribute(attribute) : QString();
    }
    QString shownKey() const { return shown("key"); }

    /// Tells the innermost widget at a spot, and then those around it, as Qt does.
    bool hover(const Spot &spot) const { return hover(spot.innermost(), spot.global()); }
    bool hover(QWidget *widget, const QPoint &position) const
    {
        QHelpEvent event(QEvent::ToolTip, widget->mapFromGlobal(position), position);
        event.setAccepted(false);
        return QCoreApplication::sendEvent(widget, &event) && popup() && popup()->isVisible();
    }
    bool hover(QWidget *widget) const { return hover(Spot{ widget, widget->rect().center() }); }

    TestPackages packages;
    HRContext context;
    std::unique_ptr<PartsWindow> window;
    std::unique_ptr<Host> host;
};

QByteArray entry(const QString &key, const QByteArray &more = "title='Hint'")
{
    return "<hintreel key='" + key.toUtf8() + "' " + more + "/>";
}

QAction &actionOf(const Fixture &f)
{
    return *f.window->ui.fileOpen;
}

QToolButton *buttonOf(const Fixture &f)
{
    return qobject_cast<QToolButton *>(f.window->ui.toolBar->widgetForAction(&actionOf(f)));
}

} // namespace

class tst_HRWidgetsInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hint_isShown_forEachKind_data();
    void hint_isShown_forEachKind();
    void hint_isTheMostSpecialOne_data();
    void hint_isTheMostSpecialOne();
    void dialogs_areToldApart();
    void place_isShown_whereItsContentCoversIt_data();
    void place_isShown_whereItsContentCoversIt();
    void widgetAround_doesNotAnswer_forOneWithoutContent();
    void position_isTheEvents();
    void fallback_isShown_forWhatHasNoName();
    void settings_areOn_unlessHostSetsThem();
    void hint_isNotSpoken_whileNobodyListens();
    void pinnedHint_getsAWindowOfItsName();
    void window_isMade_forPinnedHintsOnly();
    void filter_isOff_whereHostSaysSo();
    void managerFilter_isReplaced();
    void hostsKey_wins();
    void hostsObjectName_isNotItsOwn();
    void keyForObject_names_whatAnObjectStandsFor();
    void hint_thatRepeatsItsPart_isNotShown();
    void hint_isNotShown_inAPopupWithoutView();
    void shortcutAndTitle_areTheActions();
    void shortcut_isTheActions_whereHostNamesItsKey();
    void host_mayDelete_whenCalledBack_data();
    void host_mayDelete_whenCalledBack();
};

void tst_HRWidgetsInterface::hint_isShown_forEachKind_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < partCases().size(); ++i)
        QTest::newRow(partCases()[i].name) << i;
}

void tst_HRWidgetsInterface::hint_isShown_forEachKind()
{
    QFETCH(int, row);
    const QString key = partCases()[row].keys.first();
    Fixture f(entry(key));
    const Spot spot = partCases()[row].spot(*f.window);

    QVERIFY(f.hover(spot));

    QCOMPARE(f.shownKey(), key);
    QCOMPARE(f.popup()->referenceWidget(), spot.innermost());
    QCOMPARE(HRWidgetPrivate::of(*f.popup()).area, spot.globalArea());
}

void tst_HRWidgetsInterface::hint_isTheMostSpecialOne_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("shown");
    QTest::newRow("window") << QStringList{ "size", "fontTab/size", "PartsWindow/fontTab/size" }
                            << "PartsWindow/fontTab/size";
    QTest::newRow("page") << QStringList{ "size", "fontTab/size" } << "fontTab/size";
    QTest::newRow("name") << QStringList{ "size", "colorTab/size" } << "size";
    QTest::newRow("none") << QStringList{ "colorTab/size", "Size" } << "";
}

void tst_HRWidgetsInterface::hint_isTheMostSpecialOne()
{
    QFETCH(QStringList, keys);
    QFETCH(QString, shown);
    QByteArray entries;
    for (const QString &key : keys)
        entries += entry(key);
    Fixture f(entries);
    QCOMPARE(f.hover(f.window->ui.size), !shown.isEmpty());
    QCOMPARE(f.shownKey(), shown);
}

void tst_HRWidgetsInterface::dialogs_areToldApart()
{
    Fixture f(entry("name") + entry("people/name"));
    for (const char *name : { "people", "places" }) {
        QDialog dialog;
        dialog.setObjectName(name);
        auto *field = new QLineEdit(&dialog);
        field->setObjectName("name");
        dialog.show();
        QVERIFY(f.hover(field));
        QCOMPARE(f.shownKey(), QString(name == QByteArray("people") ? "people/name" : "name"));
    }
}

void tst_HRWidgetsInterface::place_isShown_whereItsContentCoversIt_data()
{
    QTest::addColumn<QByteArray>("entries");
    QTest::addColumn<QString>("shown");
    const QByteArray covers = "title='Hint' covers='inside'";
    QTest::newRow("does not") << entry("fontTab") + entry("PartsWindow") << "";
    QTest::newRow("page") << entry("fontTab", covers) + entry("PartsWindow", covers) << "fontTab";
    QTest::newRow("window") << entry("fontTab") + entry("PartsWindow", covers) << "PartsWindow";
    QTest::newRow("other word") << entry("fontTab", "title='Hint' covers='outside'") << "";
    QTest::newRow("own content") << entry("fontTab", covers) + entry("reset") << "reset";
}

void tst_HRWidgetsInterface::place_isShown_whereItsContentCoversIt()
{
    QFETCH(QByteArray, entries);
    Fixture f(entries);
    f.hover(f.window->ui.reset);
    QTEST(f.shownKey(), "shown");
}

void tst_HRWidgetsInterface::widgetAround_doesNotAnswer_forOneWithoutContent()
{
    Fixture f(entry("effects"));
    QVERIFY(!f.hover(f.window->ui.strikeout));
    QVERIFY(f.hover(Spot{ f.window->ui.effects, QPoint(4, f.window->ui.effects->height() - 6) }));
}

// The pointer of this platform is elsewhere.
void tst_HRWidgetsInterface::position_isTheEvents()
{
    Fixture f(entry("fontTab") + entry("colorTab"));
    QTabBar *bar = f.window->ui.tabs->tabBar();
    for (int i : { 1, 0, 1 }) {
        QVERIFY(f.hover(Spot{ bar, bar->tabRect(i).center() }));
        QCOMPARE(f.shownKey(), QString(i == 0 ? "fontTab" : "colorTab"));
    }
}

void tst_HRWidgetsInterface::fallback_isShown_forWhatHasNoName()
{
    Fixture f(entry("none"), { { fallbackKeyKey, "none" } });
    QVERIFY(f.hover(Spot{ f.window.get(), QPoint(2, 300) }));
    QCOMPARE(f.shownKey(), QString("none"));
}

void tst_HRWidgetsInterface::settings_areOn_unlessHostSetsThem()
{
    HRContext context;
    Host all(context, {});
    QVERIFY(all.context().get(ownFilesOnlyKey, false).toBool());
    QVERIFY(all.context().get(applicationFilterKey, false).toBool());
    QCOMPARE(all.context().get(placementKey, 0).toInt(), int(placementBeside));
    for (const int key : { popupPressesKey, nativeDismissalKey, hostToolTipsKey, hostColorsKey,
             reportBrokenFilesKey, requireUiKey, dismissalByEscapeKey, spokenHintsKey })
        QVERIFY(all.context().get(key, false).toBool());
    QCOMPARE(all.context().get(hintShortcutKey, {}).toString(), QString("Shift+F1"));
    for (const int key : { hintOnFocusKey, dismissalByCtrlKey, announceHoverKey })
        QVERIFY(!all.context().contains(key));
    QVERIFY(context.keys().isEmpty());
    context.set(ownFilesOnlyKey, false);
    Host some(context, {});
    QVERIFY(!some.context().get(ownFilesOnlyKey, true).toBool());
}

void tst_HRWidgetsInterface::hint_isNotSpoken_whileNobodyListens()
{
    Fixture f("<hintreel key='size' title='Size'/>", { { announceHoverKey, true } });
    QVERIFY(f.hover(f.window->ui.size));
    QVERIFY(!QAccessible::isActive());
    QCOMPARE(f.popup()->accessibleName(), QString());
    QCOMPARE(f.window->ui.size->accessibleDescription(), QString());
}

void tst_HRWidgetsInterface::pinnedHint_getsAWindowOfItsName()
{
    Fixture f("<hintreel key='size' title='Size'/>");
    QVERIFY(f.hover(f.window->ui.size));
    const QPointer<HRWidget> popup = f.host->manager()->widget();
    popup->view()->setReserved(true);
    QVERIFY(popup && popup->parentWidget());
    QCOMPARE(popup->window()->windowTitle(), QString("Size"));
    QCOMPARE(popup->window()->parentWidget(), f.window.get());
    const HRCoverage coverage = f.host->coverage();
    for (const HRCoveredPart &part : coverage.withoutHint + coverage.nameless)
        QVERIFY(part.widget->window() != popup->window());
    QVERIFY(f.window->testAttribute(Qt::WA_AlwaysShowToolTips));
    QVERIFY(popup->window()->close());
    QTRY_VERIFY(!popup);
}

void tst_HRWidgetsInterface::window_isMade_forPinnedHintsOnly()
{
    Fixture f(entry("size"));
    QVERIFY(!f.host->createWindow(reservedPopupWindow)); // nothing is shown yet
    QVERIFY(f.hover(f.window->ui.size));
    QVERIFY(!f.host->createWindow(HRWindowType(reservedPopupWindow + 1)));
    const std::unique_ptr<QWidget> window(f.host->createWindow(reservedPopupWindow));
    QVERIFY(window && window->isWindow());
    f.popup()->setView(nullptr);
    QVERIFY(!f.host->createWindow(reservedPopupWindow));
}

void tst_HRWidgetsInterface::filter_isOff_whereHostSaysSo()
{
    Fixture f(entry("size"), { { applicationFilterKey, false } });
    QVERIFY(!f.hover(f.window->ui.size));
    QVERIFY(f.host->show("size", QPoint(10, 10), f.window->ui.size));
}

// The manager would look up the object name once more, and hide for a press of its own.
void tst_HRWidgetsInterface::managerFilter_isReplaced()
{
    Fixture f(entry("size"));
    f.host->context().set(messageLevelKey, int(messageInformation));
    f.hover(f.window->ui.reset);
    QCOMPARE(f.host->messages,
        QStringList({ "looking for Hintreel for key:PartsWindow/fontTab/reset",
            "looking for Hintreel for key:fontTab/reset", "looking for Hintreel for key:reset",
            "looking for Hintreel for key:PartsWindow/fontTab",
            "looking for Hintreel for key:fontTab", "looking for Hintreel for key:PartsWindow" }));

    QVERIFY(f.hover(f.window->ui.size));
    QTest::mousePress(f.window->ui.reset, Qt::LeftButton);
    QVERIFY(!f.shown());
}

void tst_HRWidgetsInterface::hostsKey_wins()
{
    Fixture f(entry("mine") + entry("fontTab") + entry("colorTab"));
    QTabBar *bar = f.window->ui.tabs->tabBar();
    f.host->keys[bar] = "mine";
    QVERIFY(f.hover(Spot{ bar, bar->tabRect(1).center() }));
    QCOMPARE(f.shownKey(), QString("mine"));
    QVERIFY(HRWidgetPrivate::of(*f.popup()).area.isNull());

    f.host->keys[bar] = "without content";
    QVERIFY(!f.hover(Spot{ bar, bar->tabRect(1).center() }) || f.shownKey() == "mine");
}

void tst_HRWidgetsInterface::hostsObjectName_isNotItsOwn()
{
    Fixture f(entry("fileQuit"));
    QMenu *menu = f.window->ui.menuFile;
    f.host->keys[menu] = menu->objectName();
    menu->popup(QPoint(50, 50));
    QVERIFY(f.hover(Spot{ menu, menu->actionGeometry(f.window->ui.fileQuit).center() }));
    QCOMPARE(f.shownKey(), QString("fileQuit"));
}

void tst_HRWidgetsInterface::keyForObject_names_whatAnObjectStandsFor()
{
    Fixture f(entry("size"));
    const auto &ui = f.window->ui;
    QCOMPARE(f.host->keyForObject(ui.size), QString("size"));
    QCOMPARE(f.host->keyForObject(buttonOf(f)), QString("fileOpen"));
    QCOMPARE(f.host->keyForObject(ui.label), QString("size"));
    QCOMPARE(f.host->keyForObject(ui.swatch), QString("ink"));
    QCOMPARE(f.host->keyForObject(ui.canvas->viewport()), QString("canvas"));
    QCOMPARE(f.host->keyForObject(ui.editFind), QString("finder"));
    QCOMPARE(f.host->keyForObject(ui.fileOpen), QString("fileOpen"));
    QCOMPARE(f.host->keyForObject(nullptr), QString());
}

void tst_HRWidgetsInterface::hint_thatRepeatsItsPart_isNotShown()
{
    Fixture f(entry("reset", "title='Reset'") + entry("strikeout", "title='Strike out'"));
    QVERIFY(!f.hover(f.window->ui.reset));
    QVERIFY(f.hover(f.window->ui.strikeout));
}

void tst_HRWidgetsInterface::hint_isNotShown_inAPopupWithoutView()
{
    Fixture f(entry("reset", "title='Reset'") + entry("size"));
    QVERIFY(f.hover(f.window->ui.size));
    f.popup()->hide();
    f.popup()->setView(nullptr);
    QVERIFY(!f.hover(f.window->ui.reset));
    QVERIFY(!f.hover(f.window->ui.size));
    QCOMPARE(f.host->manager()->translateString("text", "context"), QString("text"));
}

void tst_HRWidgetsInterface::shortcutAndTitle_areTheActions()
{
    Fixture f(entry("fileOpen", "shortcut='X' summary='Opens a file'"));
    QVERIFY(f.hover(buttonOf(f)));
    QCOMPARE(f.shown("title"), QString("Open"));
    QCOMPARE(f.shown("shortcut"), QString("Ctrl+O"));

    f.popup()->hide();
    actionOf(f).setShortcut(QKeySequence());
    QMenu *menu = f.window->ui.menuFile;
    menu->popup(QPoint(50, 50));
    const Spot inMenu{ menu, menu->actionGeometry(&actionOf(f)).center() };
    QVERIFY(f.hover(inMenu));
    QCOMPARE(f.shown("shortcut"), QString("X"));

    f.popup()->hide();
    actionOf(f).setShortcut(QKeySequence("F3"));
    QVERIFY(f.hover(inMenu));
    QCOMPARE(f.shown("shortcut"), QString("F3"));
}

void tst_HRWidgetsInterface::shortcut_isTheActions_whereHostNamesItsKey()
{
    Fixture f(entry("fileOpen"));
    QCOMPARE(f.host->shortCutForObject("fileOpen", nullptr, "X"), QString("Ctrl+O"));
    QCOMPARE(f.host->shortCutForObject("fileOpen", buttonOf(f), "X"), QString("Ctrl+O"));
    QCOMPARE(f.host->shortCutForObject("other", buttonOf(f), "X"), QString("X"));
    QCOMPARE(f.host->shortCutForObject("other", nullptr, "X"), QString("X"));
    QCOMPARE(f.host->shortCutForObject("other", &actionOf(f), "X"), QString("Ctrl+O"));
    QCOMPARE(f.host->shortCutForObject("other", f.host.get(), "X"), QString("X"));
}

using Deed = void (*)(Fixture &f);
Q_DECLARE_METATYPE(Deed)

void tst_HRWidgetsInterface::host_mayDelete_whenCalledBack_data()
{
    QTest::addColumn<int>("callback");
    QTest::addColumn<Deed>("deed");
    const char *callbacks[] = { "key", "message", "shortcut" };
    for (int i = 0; i < 3; ++i) {
        const auto row = [&](const char *what, Deed deed) {
            QTest::addRow("%s: deletes %s", callbacks[i], what) << i << deed;
        };
        row("the interface", [](Fixture &f) { f.host.reset(); });
        row("the window", [](Fixture &f) { f.window.reset(); });
        row("the action", [](Fixture &f) { delete f.window->ui.fileOpen; });
        row("both", [](Fixture &f) {
            f.host.reset();
            f.window.reset();
        });
    }
}

void tst_HRWidgetsInterface::host_mayDelete_whenCalledBack()
{
    QFETCH(int, callback);
    QFETCH(Deed, deed);
    Fixture f(entry("fileOpen"));
    f.host->context().set(messageLevelKey, int(messageInformation));
    bool done = false;
    const auto act = [&] {
        done = true;
        deed(f);
    };
    (callback == 0 ? f.host->onKey : callback == 1 ? f.host->onMessage : f.host->onShortcut) = act;
    QWidget *button = buttonOf(f);
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(button, &event);
    QVERIFY(done);
}

QTEST_MAIN(tst_HRWidgetsInterface)
#include "tst_HRWidgetsInterface.moc"
