// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/reader/HRContentReader_p.h"
#include "widgets/HRWidgetsInterface.h"
#include "x11/RealInput.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QQmlContext>
#include <QQuickItem>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

const QPoint farAway(1000, 700);

/// A dialog of a host with the standard user interface, used without a pointer.
class Host : public HRWidgetsInterface
{
public:
    using HRWidgetsInterface::HRWidgetsInterface;
    bool openExternalResource(HRExternalResourceType, const QString &resource) override
    {
        opened.append(resource);
        return true;
    }
    QStringList opened;
};

struct Fixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = {})
    {
        QByteArray paragraphs;
        for (int i = 0; i < 60; ++i)
            paragraphs += "<text>A line of text that makes the hint longer.</text>";
        packages.writeControl("A", "a.xml",
            "<hintreel key='field' title='Field'><summary>Takes text.</summary>"
            "<text>See [the first](first/link).</text><link to='second/link'>The second</link>"
                + paragraphs + "</hintreel><hintreel key='open' title='Opens a file'/>",
            "search='Standard'");
        HRContext context;
        context.set(hideAnimationDurationKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<Host>(
            context, QStringList{ packages.path(), HINTREELS_SOURCE_DIR "/packages" });
        field.setObjectName("field");
        open.setObjectName("open");
        menu.addActions({ &open, &close });
        layout.addWidget(&field);
        layout.addWidget(&button);
        dialog.setGeometry(100, 100, 300, 120);
        dialog.show();
        dialog.activateWindow();
        constexpr int longTime = 30000; // ms: other programs may keep the processor busy
        if (!QTest::qWaitFor([this] { return dialog.isActiveWindow(); }, longTime))
            qFatal("the dialog does not become active");
        field.setFocus();
    }

    /// What is left of the active window would take the next fixture's keys.
    ~Fixture()
    {
        host.reset();
        dialog.hide();
        [[maybe_unused]] const bool told
            = QTest::qWaitFor([] { return !QGuiApplication::focusWindow(); }, 1000);
    }

    HRWidget *popup() const { return host->manager()->widget(); }
    bool showsPopup() const { return popup() && popup()->isVisible(); }
    HRView &view() const { return *popup()->view(); }
    bool isPainted() const { return popup() && HRWidgetPrivate::of(*popup()).isPainted(); }

    bool show() const
    {
        RealInput::key("shift+F1");
        return QTest::qWaitFor([this] { return isPainted(); });
    }
    bool enter() const
    {
        RealInput::key("shift+F1");
        return QTest::qWaitFor([this] { return focusedName() == QString("page"); });
    }

    /// What in the hint has the keyboard, as assistive technology calls it.
    QString focusedName() const
    {
        const auto *reader
            = view().rootContext()->contextProperty("hintreelReader").value<HRContentReader *>();
        QQuickItem *item = reader->focusItem();
        if (!item)
            return {};
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        const QString name = accessible ? accessible->text(QAccessible::Name) : QString();
        return name.isEmpty() ? item->objectName() : name;
    }
    qreal scrolled() const
    {
        const auto *page = view().rootObject()->findChild<QQuickItem *>("page");
        return page->property("contentY").toReal();
    }

    MessageGuard guard; // errors of the X server are messages, too
    TestPackages packages;
    std::unique_ptr<Host> host;
    QDialog dialog;
    QVBoxLayout layout{ &dialog };
    QLineEdit field;
    QPushButton button{ "Fine" };
    QAction open{ "Open" };
    QAction close{ "Close" };
    QMenu menu{ &dialog };
};

} // namespace

/// Hints without a pointer, on a real X server with a window manager.
class tst_x11_keys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { RealInput::movePointer(farAway); }
    void escape_leavesTheDialogOpen_whileAHintShows();
    void escape_takesAHoveredHintAway();
    void ctrlAlone_takesTheHintAway();
    void tab_goesThroughPinAndLinks();
    void keys_scrollTheHint();
    void hint_isCopied();
    void menu_staysOpen_whileItsHintIsWalkedThrough();
    void pinnedHint_givesTheFocusBack();
    void menu_staysOpen_whenItsHintIsPinned();
    void focus_isSeen();
};

void tst_x11_keys::escape_leavesTheDialogOpen_whileAHintShows()
{
    Fixture f;
    QVERIFY(f.show());
    RealInput::type("a");
    QTRY_VERIFY(!f.showsPopup());
    QTRY_COMPARE(f.field.text(), QString("a"));
    QVERIFY(f.show());
    RealInput::key("Escape");
    QTRY_VERIFY(!f.showsPopup());
    RealInput::type("b");
    QTRY_COMPARE(f.field.text(), QString("ab"));
    QVERIFY(f.dialog.isVisible());
    RealInput::key("Escape");
    QTRY_VERIFY(!f.dialog.isVisible());
}

void tst_x11_keys::escape_takesAHoveredHintAway()
{
    Fixture f;
    RealInput::movePointer(f.field.mapToGlobal(f.field.rect().center()));
    QTRY_VERIFY(f.isPainted());
    RealInput::key("Escape");
    QTRY_VERIFY(!f.showsPopup());
    RealInput::type("a");
    QTRY_COMPARE(f.field.text(), QString("a"));
    QVERIFY(f.dialog.isVisible());
}

void tst_x11_keys::ctrlAlone_takesTheHintAway()
{
    Fixture f({ { dismissalByCtrlKey, true } });
    QVERIFY(f.show());
    RealInput::key("ctrl");
    QTRY_VERIFY(!f.showsPopup());
    QVERIFY(f.dialog.isVisible());
}

void tst_x11_keys::tab_goesThroughPinAndLinks()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(f.enter());
    for (const char *name :
        { "Keep open in a window", "the first", "The second", "Keep open in a window" }) {
        RealInput::key("Tab");
        QTRY_COMPARE(f.focusedName(), QString(name));
    }
    for (const char *name : { "The second", "the first" }) {
        RealInput::key("shift+Tab");
        QTRY_COMPARE(f.focusedName(), QString(name));
    }
    RealInput::key("Return");
    QTRY_COMPARE(f.host->opened, QStringList{ "first/link" });
    RealInput::key("Tab");
    RealInput::key("space");
    QTRY_COMPARE(f.host->opened, (QStringList{ "first/link", "second/link" }));
    QVERIFY(f.dialog.isActiveWindow());
    QCOMPARE(f.field.text(), QString());
    RealInput::key("shift+F1");
    QTRY_COMPARE(f.focusedName(), QString());
    QVERIFY(f.showsPopup());
    RealInput::type("a");
    QTRY_COMPARE(f.field.text(), QString("a"));
}

void tst_x11_keys::keys_scrollTheHint()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(f.enter());
    RealInput::key("Down");
    QTRY_VERIFY(f.scrolled() > 0);
    const qreal line = f.scrolled();
    RealInput::key("Next");
    QTRY_VERIFY(f.scrolled() > 2 * line);
    RealInput::key("Prior");
    RealInput::key("Up");
    QTRY_COMPARE(f.scrolled(), 0.0);
    RealInput::key("End");
    QTRY_VERIFY(f.scrolled() > 0);
    RealInput::key("Home");
    QTRY_COMPARE(f.scrolled(), 0.0);
}

void tst_x11_keys::hint_isCopied()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(f.enter());
    RealInput::key("ctrl+c");
    QTRY_VERIFY(QGuiApplication::clipboard()->text().startsWith(
        "Field\n\nTakes text.\n\nSee the first.\n\nThe second\nsecond/link\n\nA line"));
    QVERIFY(f.showsPopup());
}

void tst_x11_keys::menu_staysOpen_whileItsHintIsWalkedThrough()
{
    Fixture f;
    f.menu.popup(f.dialog.geometry().bottomLeft());
    QVERIFY(QTest::qWaitForWindowExposed(&f.menu));
    RealInput::key("Down");
    QTRY_COMPARE(f.menu.activeAction(), &f.open);
    QVERIFY(f.show());
    QVERIFY(!f.popup()->frameGeometry().intersects(f.menu.frameGeometry()));
    QVERIFY(f.enter());
    RealInput::key("Tab");
    QTRY_COMPARE(f.focusedName(), QString("Keep open in a window"));
    RealInput::key("Down");
    RealInput::key("Escape");
    QTRY_COMPARE(f.focusedName(), QString());
    QVERIFY(f.showsPopup());
    QCOMPARE(f.menu.activeAction(), &f.open);
    RealInput::key("Escape");
    QTRY_VERIFY(!f.showsPopup());
    QVERIFY(f.menu.isVisible());
    QCOMPARE(QApplication::activePopupWidget(), &f.menu);
    RealInput::key("Down");
    QTRY_COMPARE(f.menu.activeAction(), &f.close);
    RealInput::key("Escape");
    QTRY_VERIFY(!f.menu.isVisible());
    QVERIFY(f.dialog.isVisible());
}

void tst_x11_keys::pinnedHint_givesTheFocusBack()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(f.enter());
    const QPointer<HRWidget> pinned = f.popup();
    RealInput::key("Tab");
    RealInput::key("space");
    QTRY_VERIFY(pinned != f.popup());
    QTRY_VERIFY(pinned->isActiveWindow());
    RealInput::key("shift+F1");
    QTRY_VERIFY(f.dialog.isActiveWindow());
    RealInput::type("a");
    QTRY_COMPARE(f.field.text(), QString("a"));
    RealInput::key("shift+F1");
    QTRY_VERIFY(pinned->isActiveWindow());
    RealInput::key("Escape");
    QTRY_VERIFY(!pinned);
    QTRY_VERIFY(f.dialog.isActiveWindow());
    RealInput::type("b");
    QTRY_COMPARE(f.field.text(), QString("ab"));
}

void tst_x11_keys::menu_staysOpen_whenItsHintIsPinned()
{
    Fixture f;
    QMenuBar bar;
    f.layout.setMenuBar(&bar);
    f.menu.setTitle("&Tools");
    bar.addMenu(&f.menu);
    RealInput::key("alt+t");
    QTRY_COMPARE(f.menu.activeAction(), &f.open);
    QVERIFY(f.show());
    QVERIFY(f.enter());
    const QPointer<HRWidget> pinned = f.popup();
    RealInput::key("Tab");
    QTRY_COMPARE(f.focusedName(), QString("Keep open in a window"));
    RealInput::key("space");
    QTRY_VERIFY(pinned != f.popup());
    QVERIFY(QTest::qWaitForWindowExposed(pinned->window()));
    RealInput::key("Down");
    QTRY_COMPARE(f.menu.activeAction(), &f.close);
    RealInput::key("Up");
    QTRY_COMPARE(f.menu.activeAction(), &f.open);

    RealInput::key("shift+F1");
    QTRY_COMPARE(QApplication::activeWindow(), pinned->window());
    QVERIFY(!f.menu.isVisible());
    RealInput::key("Escape");
    QTRY_VERIFY(!pinned);
    QTRY_VERIFY(f.dialog.isActiveWindow());
    RealInput::type("a");
    QTRY_COMPARE(f.field.text(), QString("a"));
}

void tst_x11_keys::focus_isSeen()
{
    Fixture f;
    QVERIFY(f.show());
    const auto look = [&] { return RealInput::screenshot().copy(f.popup()->frameGeometry()); };
    QImage before = look();
    RealInput::key("shift+F1");
    QTRY_VERIFY(look() != before); // the page
    for (int i = 0; i < 3; ++i) { // pin and links
        before = look();
        RealInput::key("Tab");
        QTRY_VERIFY(look() != before);
    }
}

QTEST_MAIN(tst_x11_keys)
#include "tst_x11_keys.moc"
