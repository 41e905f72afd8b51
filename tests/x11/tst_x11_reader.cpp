// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestReader.h"
#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QMenu>
#include <QtTest>

using namespace Hintreels;

namespace {

/// A host whose popup goes soon and for all that takes native tool tips away, with a reader.
struct Host : HintHost
{
    explicit Host(TestReader &reader)
        : HintHost([&reader](HRContext &context) {
            context.set(nativeDismissalKey, true);
            context.set(popupPressesKey, true);
            context.set(readerSettingsKey, reader.asValue());
        })
    {
    }

    /// Opens the hint's menu; null where none comes.
    QMenu *openMenu() const
    {
        RealInput::clickRight(areaOf(popup()).center());
        const auto menu = [] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); };
        return QTest::qWaitFor(menu) && QTest::qWaitForWindowExposed(menu()) ? menu() : nullptr;
    }
};

QPoint entryOf(const QMenu &menu, int index)
{
    return menu.mapToGlobal(menu.actionGeometry(menu.actions()[index]).center());
}

} // namespace

/// What a reader decides in the hint itself, on a real X server.
class tst_x11_reader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hint_stays_whileItsMenuIsUsed();
    void hint_goes_onceItsMenuHasClosed();
    void menu_closes_forAPressInTheHint();
};

void tst_x11_reader::init()
{
    RealInput::movePointer(QPoint(1000, 700));
}

void tst_x11_reader::hint_stays_whileItsMenuIsUsed()
{
    TestReader reader;
    const Host host(reader);
    QVERIFY(host.hover(host.red));
    QPointer<QMenu> menu = host.openMenu();
    QVERIFY(menu);
    QVERIFY(host.popup().isVisible());

    RealInput::click(entryOf(*menu, 1));

    QTRY_COMPARE(reader.settings.detail(), HRReaderSettings::textDetail);
    QTRY_VERIFY(!menu || !menu->isVisible());
    QVERIFY(host.popup().isVisible());
}

void tst_x11_reader::hint_goes_onceItsMenuHasClosed()
{
    TestReader reader;
    const Host host(reader);
    QVERIFY(host.hover(host.red));
    const QPointer<QMenu> menu = host.openMenu();
    QVERIFY(menu);

    RealInput::movePointer(QPoint(1000, 700));
    QVERIFY(host.otherPopupsGo());
    QVERIFY(host.popup().isVisible());

    RealInput::key("Escape");
    QTRY_VERIFY(!host.popup().isVisible());
}

void tst_x11_reader::menu_closes_forAPressInTheHint()
{
    TestReader reader;
    const Host host(reader);
    QVERIFY(host.hover(host.red));
    const QPointer<QMenu> menu = host.openMenu();
    QVERIFY(menu);

    RealInput::click(areaOf(host.popup()).topLeft() + QPoint(60, 60));

    QTRY_VERIFY(!menu || !menu->isVisible());
    QVERIFY(host.popup().isVisible());
    QCOMPARE(host.messages, QStringList());
}

QTEST_MAIN(tst_x11_reader)
#include "tst_x11_reader.moc"
