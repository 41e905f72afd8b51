// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "accessibility/BusReader.h"
#include "context/HRContext.h"
#include "manager/HRManager.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "widgets/HRWidgetsInterface.h"

#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

const QString announcement = "object:state-changed:showing 1 tool tip \"Pen\" \"Draws lines.\"";

/// A host with a button that has a hint, and one that has the focus.
struct BusHost
{
    explicit BusHost(bool announcesHover = false)
    {
        packages.writeControl("Test", "en.xml",
            "<hintreel key='pen' title='Pen'><summary>Draws lines.</summary></hintreel>"
            "<hintreel key='ink' title='Ink'/>",
            "search=\"Standard\"");
        HRContext context;
        context.set(hideDelayKey, 0);
        context.set(hideAnimationDurationKey, 0);
        context.set(announceHoverKey, announcesHover);
        host = std::make_unique<HRWidgetsInterface>(
            context, QStringList{ packages.path(), HINTREELS_SOURCE_DIR "/packages" });
        pen.setAccessibleDescription("own");
        window.setGeometry(100, 100, 200, 200);
        ink.setGeometry(0, 60, 80, 30);
        other.setGeometry(0, 120, 80, 30);
        window.show();
        other.setFocus();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the host's window does not become active");
        bus.events();
    }

    bool show(const QString &key, QWidget *widget)
    {
        return host->show(key, widget->mapToGlobal(widget->rect().center()), widget)
            && QTest::qWaitForWindowExposed(&popup());
    }

    HRWidget &popup() const { return *host->manager()->widget(); }

    /// As a key that shows a hint does it.
    void announce() const { HRWidgetPrivate::of(popup()).spoken.announce(); }

    /// What is said of a tool tip that has appeared, and of the focus.
    QStringList news()
    {
        const QStringList events = bus.events();
        return events.filter("showing 1 tool tip") + events.filter(":focused");
    }

    TestPackages packages;
    QWidget window;
    QPushButton pen{ "pen", &window };
    QPushButton ink{ "ink", &window };
    QPushButton other{ "other", &window };
    std::unique_ptr<HRWidgetsInterface> host;
    BusReader bus;
};

} // namespace

/// What assistive technology is told of a popup and of the widget that it belongs to.
class tst_bus_popup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hover_isSilent();
    void hover_isAnnouncedOnce_whereSet();
    void key_isAnnouncedOnce();
    void reference_isDescribed_whileTheHintShows();
    void pinnedHint_isInItsWindow();
};

void tst_bus_popup::hover_isSilent()
{
    BusHost f;
    QVERIFY(f.show("pen", &f.pen));
    QVERIFY(f.bus.tree().contains("tool tip \"Pen\" \"Draws lines.\""));
    QVERIFY(f.show("ink", &f.ink));
    f.popup().hide();
    QCOMPARE(f.news(), QStringList());
}

void tst_bus_popup::hover_isAnnouncedOnce_whereSet()
{
    BusHost f(true);
    QVERIFY(f.show("pen", &f.pen));
    QVERIFY(f.show("pen", &f.pen));
    QCOMPARE(f.news(), QStringList{ announcement });
    QVERIFY(f.show("ink", &f.ink));
    QCOMPARE(f.news(), QStringList{ "object:state-changed:showing 1 tool tip \"Ink\"" });
}

void tst_bus_popup::key_isAnnouncedOnce()
{
    BusHost f;
    QVERIFY(f.show("pen", &f.pen));
    f.announce();
    f.announce();
    QCOMPARE(f.news(), QStringList{ announcement });
    f.popup().hide();
    QVERIFY(f.show("pen", &f.pen));
    f.announce();
    QCOMPARE(f.news(), QStringList{ announcement });
}

void tst_bus_popup::reference_isDescribed_whileTheHintShows()
{
    BusHost f;
    const QString own = " push button \"pen\" \"own\"";
    QVERIFY(f.bus.tree().contains(own));
    QVERIFY(f.show("pen", &f.pen));
    QVERIFY(f.bus.tree().contains(" push button \"pen\" \"Pen: Draws lines.\""));
    QVERIFY(f.show("ink", &f.ink));
    QVERIFY(f.bus.tree().contains(own));
    QVERIFY(f.bus.tree().contains(" push button \"ink\" \"Ink\""));
    f.popup().hide();
    QVERIFY(f.bus.tree().contains(" push button \"ink\""));
}

void tst_bus_popup::pinnedHint_isInItsWindow()
{
    BusHost f;
    QVERIFY(f.show("pen", &f.pen));
    const QPointer<HRWidget> popup = &f.popup();
    popup->view()->setReserved(true);
    QVERIFY(popup && popup->window() != popup);
    QVERIFY(QTest::qWaitForWindowExposed(popup->window()));
    const QStringList tree = f.bus.tree();
    const int window = tree.indexOf("filler \"Pen\"");
    QVERIFY2(window >= 0, qPrintable(tree.join('\n')));
    QCOMPARE(tree.mid(window + 1, 4),
        (QStringList{ " panel \"Pen\" \"Draws lines.\"", "  panel", "   heading \"Pen\"",
            "   paragraph \"Draws lines.\"" }));
    QVERIFY(tree.contains(" push button \"pen\" \"own\""));
    popup->window()->close();
}

QTEST_MAIN(tst_bus_popup)
#include "tst_bus_popup.moc"
