// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/setting_p.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "support/TestReader.h"
#include "ui/popup/HRWidget.h"
#include "widgets/HRWidgetsInterface.h"

#include <QHelpEvent>
#include <QPushButton>
#include <QWindow>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Hintreels;

namespace {

/// A host whose button has a hint, and a reader of it.
struct Fixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = {})
    {
        packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
        packages.writeControl(
            "A", "a.xml", "<hintreel key='save' title='Hint'/>", "ui='ui/Popup.qml'");
        button.setObjectName("save");
        HRContext context;
        context.set(hideAnimationDurationKey, 0);
        context.set(readerSettingsKey, reader.asValue());
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<HRWidgetsInterface>(context, QStringList{ packages.path() });
    }

    /// As Qt does when the pointer rests on the button.
    bool hover()
    {
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), button.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&button, &event);
        return isShown();
    }
    HRWidget *popup() const { return host->manager()->widget(); }
    bool isShown() const { return popup() && popup()->isVisible(); }
    bool isAboutToHide() const
    {
        const QList<QTimer *> timers = popup()->findChildren<QTimer *>();
        return std::any_of(timers.begin(), timers.end(),
            [](const QTimer *timer) { return timer->isSingleShot() && timer->isActive(); });
    }

    TestPackages packages;
    TestReader reader;
    QPushButton button{ "Save" };
    std::unique_ptr<HRWidgetsInterface> host;
};

/// Has modifiers held until other keys are pressed.
void hold(int modifiers)
{
    QWindow window;
    QTest::keyPress(&window, Qt::Key_A, Qt::KeyboardModifiers(modifiers));
}

} // namespace

class tst_ReaderSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void settings_areTheHosts_orOnesOwn();
    void settings_mayGo();
    void hints_areOff_whereTheReaderSaysSo();
    void hints_stayOff_whereTheHostSaysSo();
    void hint_goes_whenTheReaderTurnsThemOff();
    void occasion_isFollowed_data();
    void occasion_isFollowed();
    void hint_comesByCtrl_whereThePointerRestsAlready();
    void duration_isTheReaders_data();
    void duration_isTheReaders();
    void delay_isTheReaders();
};

// What is kept nowhere else goes into a folder of the test's own.
void tst_ReaderSettings::initTestCase()
{
    static const QTemporaryDir home;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    QCoreApplication::setOrganizationName("Host");
}

void tst_ReaderSettings::settings_areTheHosts_orOnesOwn()
{
    Fixture f;
    QCOMPARE(f.host->readerSettings(), &f.reader.settings);

    HRContext context;
    HRWidgetsInterface own(context, {});
    QVERIFY(own.readerSettings());
    own.readerSettings()->setTextSize(150);
    QCOMPARE(QSettings().value("Hintreels/textSize").toInt(), 150);

    context.set(readerSettingsKey, QVariant());
    HRWidgetsInterface none(context, {});
    QVERIFY(!none.readerSettings());
}

void tst_ReaderSettings::settings_mayGo()
{
    auto reader = std::make_unique<TestReader>();
    Fixture f({ { readerSettingsKey, reader->asValue() } });
    reader->settings.setOccasion(HRReaderSettings::occasionKey);
    QVERIFY(!f.hover());
    reader.reset();
    QVERIFY(f.hover());
}

void tst_ReaderSettings::hints_areOff_whereTheReaderSaysSo()
{
    Fixture f;
    f.reader.settings.setHintsShown(false);
    QVERIFY(!f.hover());
    QVERIFY(!f.host->show("save", QPoint(5, 5), &f.button));

    f.reader.settings.setHintsShown(true);
    QVERIFY(f.hover());
}

void tst_ReaderSettings::hints_stayOff_whereTheHostSaysSo()
{
    Fixture f({ { disabledKey, true } });
    f.reader.settings.setHintsShown(true);
    QVERIFY(!f.hover());
}

void tst_ReaderSettings::hint_goes_whenTheReaderTurnsThemOff()
{
    Fixture f;
    QVERIFY(f.hover());
    f.reader.settings.setTextSize(150);
    QVERIFY(f.isShown());
    f.reader.settings.setHintsShown(false);
    QVERIFY(!f.isShown());
}

void tst_ReaderSettings::occasion_isFollowed_data()
{
    QTest::addColumn<int>("occasion");
    QTest::addColumn<int>("hostsModifier");
    QTest::addColumn<int>("held");
    QTest::addColumn<bool>("shown");
    QTest::newRow("hover") << int(HRReaderSettings::occasionHover) << 0 << 0 << true;
    QTest::newRow("by key") << int(HRReaderSettings::occasionKey) << 0 << 0 << false;
    QTest::newRow("modifier is not held")
        << int(HRReaderSettings::occasionModifier) << 0 << 0 << false;
    QTest::newRow("modifier is held")
        << int(HRReaderSettings::occasionModifier) << 0 << int(Qt::ControlModifier) << true;
    QTest::newRow("the host's is not held")
        << int(HRReaderSettings::occasionHover) << int(Qt::AltModifier) << 0 << false;
    QTest::newRow("the host's is held") << int(HRReaderSettings::occasionModifier)
                                        << int(Qt::AltModifier) << int(Qt::AltModifier) << true;
}

void tst_ReaderSettings::occasion_isFollowed()
{
    QFETCH(int, occasion);
    QFETCH(int, hostsModifier);
    QFETCH(int, held);
    Fixture f({ { modifierKey, hostsModifier } });
    f.reader.settings.setOccasion(HRReaderSettings::Occasion(occasion));
    hold(held);
    QTEST(f.hover(), "shown");
    hold(Qt::NoModifier);
}

void tst_ReaderSettings::hint_comesByCtrl_whereThePointerRestsAlready()
{
    Fixture f;
    f.reader.settings.setOccasion(HRReaderSettings::occasionModifier);
    f.reader.settings.setDelay(1);
    f.button.setAttribute(Qt::WA_AlwaysShowToolTips);
    f.button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.button));
    QCursor::setPos(f.button.mapToGlobal(QPoint(5, 5)));
    QTRY_COMPARE(QCursor::pos(), f.button.mapToGlobal(QPoint(5, 5)));
    QVERIFY(!f.isShown());

    QTest::keyPress(f.button.windowHandle(), Qt::Key_Control, Qt::ControlModifier);

    QTRY_VERIFY(f.isShown());
    hold(Qt::NoModifier);
}

void tst_ReaderSettings::duration_isTheReaders_data()
{
    QTest::addColumn<int>("hosts");
    QTest::addColumn<int>("readers");
    QTest::addColumn<bool>("hides");
    QTest::newRow("the host's") << 60'000 << -1 << true;
    QTest::newRow("the host's, for ever") << 0 << -1 << false;
    QTest::newRow("the reader's") << 0 << 60'000 << true;
    QTest::newRow("the reader's, for ever") << 60'000 << 0 << false;
}

void tst_ReaderSettings::duration_isTheReaders()
{
    QFETCH(int, hosts);
    QFETCH(int, readers);
    Fixture f({ { hideDelayKey, hosts } });
    QCursor::setPos(700, 700); // away from the popup
    f.reader.settings.setDuration(readers);
    QVERIFY(f.hover());
    QTEST(f.isAboutToHide(), "hides");

    f.reader.settings.setDuration(0);
    QVERIFY(!f.isAboutToHide());
}

// The desktop's tooltip event is one that comes too early while the pointer has yet to rest.
void tst_ReaderSettings::delay_isTheReaders()
{
    Fixture f;
    f.button.setAttribute(Qt::WA_AlwaysShowToolTips);
    f.button.show();
    f.reader.settings.setDelay(10'000);
    QTest::mouseMove(&f.button, QPoint(5, 5));
    QCoreApplication::processEvents();
    QVERIFY(!f.hover());

    f.reader.settings.setDelay(1);
    QTest::mouseMove(&f.button, QPoint(6, 6));
    QTRY_VERIFY(f.isShown());
}

QTEST_MAIN(tst_ReaderSettings)
#include "tst_ReaderSettings.moc"
