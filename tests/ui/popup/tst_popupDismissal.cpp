// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/popupDismissal_p.h"

#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QQuickItem>
#include <QtTest>

using namespace Hintreels;

namespace {

/// A popup, with a reference in a dialog of a window.
struct Fixture
{
    Fixture()
    {
        popup.setView(new HRView(nullptr, nullptr));
        reference->setObjectName("reference");
        inside->setObjectName("inside");
        beside->setObjectName("beside");
        subWindow->setObjectName("subWindow");
        menu.setObjectName("menu");
    }

    QObject *named(const QString &name)
    {
        const QMap<QString, QObject *> objects{ { "window", &window }, { "dialog", &dialog },
            { "sub-window", subWindow }, { "reference", reference }, { "beside", beside },
            { "other window", &otherWindow }, { "popup", &popup }, { "in the popup", inside },
            { "view", popup.view() }, { "menu", &menu }, { "item of a scene", &item } };
        return objects.value(name);
    }

    QWidget window;
    QWidget dialog{ &window, Qt::Dialog };
    QWidget otherWindow;
    QMenu menu;
    QQuickItem item;
    QMdiSubWindow *subWindow = new QMdiSubWindow(&dialog);
    QWidget *beside = new QWidget(&dialog);
    QWidget *reference = new QWidget(subWindow);
    HRWidget popup{ nullptr, nullptr, reference };
    QWidget *inside = new QWidget(&popup);
};

} // namespace

class tst_popupDismissal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesAway_forEvents_data();
    void takesAway_forEvents();
    void takesAway_forKeys_butNotForModifiers_data();
    void takesAway_forKeys_butNotForModifiers();
    void takesAway_forMenuThatCloses_data();
    void takesAway_forMenuThatCloses();
    void takesAway_withoutReferenceAndView();
};

void tst_popupDismissal::takesAway_forEvents_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("watched");
    QTest::addColumn<bool>("takesAway");
    const auto row = [](const char *name, QEvent::Type type, const QString &watched, bool away) {
        QTest::addRow("%s of %s", name, qPrintable(watched)) << int(type) << watched << away;
    };
    for (const char *watched : { "window", "beside", "other window" }) {
        row("wheel", QEvent::Wheel, watched, true);
        row("drag", QEvent::DragEnter, watched, true);
    }
    for (const char *watched : { "popup", "in the popup", "view", "item of a scene" }) {
        row("wheel", QEvent::Wheel, watched, false);
        row("drag", QEvent::DragEnter, watched, false);
    }
    for (const char *watched : { "window", "dialog", "sub-window" })
        row("move", QEvent::Move, watched, true);
    for (const char *watched : { "reference", "beside", "other window", "popup" })
        row("move", QEvent::Move, watched, false);
    row("show", QEvent::Show, "menu", true);
    row("show", QEvent::Show, "other window", false);
    row("show", QEvent::Show, "reference", false);
    row("hide", QEvent::Hide, "reference", true);
    row("hide", QEvent::Hide, "menu", true);
    row("hide", QEvent::Hide, "beside", false);
    for (const QEvent::Type type : { QEvent::MouseMove, QEvent::Enter, QEvent::Leave, QEvent::Paint,
             QEvent::KeyRelease, QEvent::FocusIn, QEvent::Timer })
        row(qPrintable(QString::number(type)), type, "window", false);
}

void tst_popupDismissal::takesAway_forEvents()
{
    QFETCH(int, type);
    QFETCH(QString, watched);
    Fixture f;
    QTEST(takesAway(f.popup, *f.named(watched), QEvent(QEvent::Type(type))), "takesAway");
}

void tst_popupDismissal::takesAway_forKeys_butNotForModifiers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("takesAway");
    for (const Qt::Key key : { Qt::Key_A, Qt::Key_Escape, Qt::Key_F10, Qt::Key_Down, Qt::Key_Menu })
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << int(key) << true;
    for (const Qt::Key key : { Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt,
             Qt::Key_AltGr, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_Super_L })
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << int(key) << false;
}

void tst_popupDismissal::takesAway_forKeys_butNotForModifiers()
{
    QFETCH(int, key);
    Fixture f;
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::ShortcutOverride }) {
        const QKeyEvent event(type, key, Qt::NoModifier);
        QTEST(takesAway(f.popup, *f.beside, event), "takesAway");
        QVERIFY(!takesAway(f.popup, *f.popup.view(), event));
    }
}

void tst_popupDismissal::takesAway_forMenuThatCloses_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("the hint's menu closes") << false;
    QTest::newRow("a menu beside it closes") << true;
}

void tst_popupDismissal::takesAway_forMenuThatCloses()
{
    QFETCH(bool, isOpen);
    Fixture f;
    QWidget list(nullptr, Qt::Popup);
    HRWidget popup(nullptr, nullptr, new QWidget(&list));
    list.setVisible(isOpen);
    QCOMPARE(takesAway(popup, f.menu, QEvent(QEvent::Hide)), !isOpen);
}

void tst_popupDismissal::takesAway_withoutReferenceAndView()
{
    Fixture f;
    const HRWidget popup(nullptr, nullptr, nullptr);
    QVERIFY(takesAway(popup, f.window, QEvent(QEvent::Wheel)));
    QVERIFY(takesAway(popup, f.menu, QEvent(QEvent::Hide)));
    QVERIFY(!takesAway(popup, f.window, QEvent(QEvent::Move)));
}

QTEST_MAIN(tst_popupDismissal)
#include "tst_popupDismissal.moc"
