// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestReader.h"
#include "ui/popup/HRReaderMenu_p.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest>

using namespace Hintreels;

namespace {

struct Fixture
{
    Fixture() { popup.show(); }

    bool press(Qt::MouseButton button)
    {
        QMouseEvent event(QEvent::MouseButtonPress, QPoint(5, 5), popup.mapToGlobal(QPoint(5, 5)),
            button, button, {});
        return menu.eventFilter(&popup, &event);
    }
    bool press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        return menu.eventFilter(&popup, &event);
    }
    /// Opens the menu and does what its entry says.
    void choose(const QString &text)
    {
        press(Qt::RightButton);
        QAction *action = entry(text);
        QVERIFY(action && action->isEnabled());
        action->trigger();
    }
    QAction *entry(const QString &text) const
    {
        const auto *shown = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        const QList<QAction *> actions = shown ? shown->actions() : QList<QAction *>();
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }

    QWidget popup;
    TestReader reader;
    bool decides = true;
    int changes = 0;
    HRReaderMenu menu{ popup, [this] { return decides ? &reader.settings : nullptr; },
        [](const QString &text) { return text.toUpper(); }, [this] { ++changes; } };
};

} // namespace

class tst_HRReaderMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menu_opens_data();
    void menu_opens();
    void menu_staysAway_whereNothingIsDecided();
    void detail_goesUpAndDown();
    void clips_areKeptStill();
    void settings_areOffered_whereTheHostOpensThem();
};

void tst_HRReaderMenu::menu_opens_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("opens");
    QTest::newRow("right button") << int(Qt::RightButton) << 0 << 0 << true;
    QTest::newRow("left button") << int(Qt::LeftButton) << 0 << 0 << false;
    QTest::newRow("menu key") << 0 << int(Qt::Key_Menu) << 0 << true;
    QTest::newRow("Shift+F10") << 0 << int(Qt::Key_F10) << int(Qt::ShiftModifier) << true;
    QTest::newRow("F10") << 0 << int(Qt::Key_F10) << 0 << false;
}

void tst_HRReaderMenu::menu_opens()
{
    QFETCH(int, button);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, opens);
    Fixture f;
    const bool isTaken = button != 0 ? f.press(Qt::MouseButton(button))
                                     : f.press(key, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(isTaken, opens);
    QCOMPARE(f.menu.isOpen(), opens);
    QCOMPARE(f.changes, opens ? 1 : 0);
    f.menu.close();
    QVERIFY(!f.menu.isOpen());
    QTRY_COMPARE(f.changes, opens ? 2 : 0);
}

void tst_HRReaderMenu::menu_staysAway_whereNothingIsDecided()
{
    Fixture f;
    f.decides = false;
    QVERIFY(!f.press(Qt::RightButton));
    QVERIFY(!f.menu.isOpen());
}

void tst_HRReaderMenu::detail_goesUpAndDown()
{
    Fixture f;
    f.press(Qt::RightButton);
    QVERIFY(!f.entry("MORE")->isEnabled());
    f.choose("LESS");
    QCOMPARE(f.reader.settings.detail(), HRReaderSettings::textDetail);
    f.choose("LESS");
    QCOMPARE(f.reader.settings.detail(), HRReaderSettings::summaryDetail);
    f.press(Qt::RightButton);
    QVERIFY(!f.entry("LESS")->isEnabled());
    f.choose("MORE");
    QCOMPARE(f.reader.settings.detail(), HRReaderSettings::textDetail);
}

void tst_HRReaderMenu::clips_areKeptStill()
{
    Fixture f;
    const QString text = QStringLiteral("NO CLIPS BY THEMSELVES");
    f.choose(text);
    QCOMPARE(f.reader.settings.clips(), HRReaderSettings::clipsOnRequest);
    f.press(Qt::RightButton);
    QVERIFY(f.entry(text)->isChecked());
    f.choose(text);
    QCOMPARE(f.reader.settings.clips(), HRReaderSettings::clipsByThemselves);
}

void tst_HRReaderMenu::settings_areOffered_whereTheHostOpensThem()
{
    Fixture f;
    const QString text = QStringLiteral("HINT SETTINGS");
    f.press(Qt::RightButton);
    QVERIFY(!f.entry(text));
    const QSignalSpy requests(&f.reader.settings, &HRReaderSettings::pageRequested);
    f.choose(text);
    QCOMPARE(requests.count(), 1);
}

QTEST_MAIN(tst_HRReaderMenu)
#include "tst_HRReaderMenu.moc"
