// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/TestClip.h"
#include "support/TestPackage.h"
#include "ui/StandardUiFixture.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "widgets/HRWidgetsInterface.h"
#include "x11/RealInput.h"

#include <QComboBox>
#include <QMenu>
#include <QQuickItem>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

constexpr int longTime = 20000; // ms: other programs may keep the processor busy

/// A link opens nothing here.
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

QByteArray longHint(const QByteArray &key)
{
    QByteArray blocks = "<link to='the/page'>The page</link><video source='clip.mp4' width='320'/>";
    for (int i = 0; i < 40; ++i)
        blocks += "<text>A line of text that makes the hint longer.</text>";
    return "<hintreel key='" + key + "' title='Opens'>" + blocks + "</hintreel>";
}

/// A window with a menu and a combo box, whose entries have a hint of the standard user interface.
struct Fixture
{
    Fixture()
    {
        TestClip clip;
        clip.size = QSize(320, 180);
        clip.pictures = 59;
        clip.rate = 2;
        packages.writeControl(
            "A", "a.xml", longHint("open") + longHint("combo"), "search='Standard'");
        QDir(packages.path()).mkpath("A.hintreels/Resources");
        clip.write(packages.path() + "/A.hintreels/Resources/clip.mp4");
        HRContext context;
        host = std::make_unique<Host>(
            context, QStringList{ packages.path(), HINTREELS_SOURCE_DIR "/packages" });
        open.setObjectName("open");
        menu.addActions({ &open, &further });
        combo.setObjectName("combo");
        combo.addItems({ "one", "two" });
        window.setGeometry(60, 60, 200, 100);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitFor([this] { return window.isActiveWindow(); }, longTime))
            qFatal("the window does not become active");
    }

    /// Opens the menu, or the list, and rests the pointer on its first entry until the hint plays.
    bool showIn(const QString &list)
    {
        if (list == "menu")
            menu.popup(window.mapToGlobal(QPoint(0, 100)));
        else
            combo.showPopup();
        opened = QApplication::activePopupWidget();
        if (!opened || !QTest::qWaitForWindowExposed(opened))
            return false;
        RealInput::movePointer(opened->mapToGlobal(QPoint(opened->width() / 2, 15)));
        return QTest::qWaitFor(
            [this] {
                popup = host->manager()->widget();
                return popup && HRWidgetPrivate::of(*popup).isPainted() && isNamed("Pause");
            },
            longTime);
    }

    QQuickItem *find(const char *property, const QString &value) const
    {
        const auto items = itemsBelow(popup->view()->rootObject());
        for (QQuickItem *item : items) {
            if (item->property(property).toString() == value)
                return item;
        }
        return nullptr;
    }
    bool isNamed(const QString &name) const { return find("name", name); }
    qreal scrolled() const { return find("objectName", "page")->property("contentY").toReal(); }

    QPoint middleOf(const QString &name) const
    {
        const QQuickItem *item = find("name", name);
        const QPointF middle(item->width() / 2, item->height() / 2);
        return popup->mapToGlobal(item->mapToScene(middle).toPoint());
    }

    bool isOpen() const { return opened && QApplication::activePopupWidget() == opened; }

    MessageGuard guard; // errors of the X server are messages, too
    TestPackages packages;
    std::unique_ptr<Host> host;
    QWidget window;
    QComboBox combo{ &window };
    QAction open{ "Open" };
    QAction further{ "Save" };
    QMenu menu{ &window };
    QPointer<QWidget> opened;
    QPointer<HRWidget> popup;
};

} // namespace

/// The pointer in the hint of a menu's entry, in the standard user interface.
class tst_x11_menuUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { RealInput::movePointer(QPoint(1200, 750)); }
    void hint_isUsed_whileTheListStaysOpen_data();
    void hint_isUsed_whileTheListStaysOpen();
};

void tst_x11_menuUi::hint_isUsed_whileTheListStaysOpen_data()
{
    QTest::addColumn<QString>("list");
    QTest::newRow("menu") << "menu";
    QTest::newRow("list of a combo box") << "combo box";
}

void tst_x11_menuUi::hint_isUsed_whileTheListStaysOpen()
{
    QFETCH(QString, list);
    Fixture f;
    QVERIFY(f.showIn(list));

    RealInput::click(f.middleOf("Pause"));
    QTRY_VERIFY(f.isNamed("Play"));
    RealInput::click(f.middleOf("The page"));
    QTRY_COMPARE(f.host->opened, QStringList{ "the/page" });
    RealInput::scroll();
    QTRY_VERIFY(f.scrolled() > 0);
    QVERIFY(f.isOpen());
    QVERIFY(f.popup->isVisible());

    RealInput::click(f.middleOf("Keep open in a window"));
    QTRY_VERIFY(f.host->manager()->widget() != f.popup);
    QVERIFY(f.popup->window() != f.popup);
    QVERIFY(QTest::qWaitForWindowExposed(f.popup->window()));
    QVERIFY(f.isOpen());
    RealInput::key("Down");
    RealInput::key("Escape");
    QTRY_VERIFY(!f.isOpen());
    QVERIFY(f.popup && f.popup->isVisible());
}

QTEST_MAIN(tst_x11_menuUi)
#include "tst_x11_menuUi.moc"
