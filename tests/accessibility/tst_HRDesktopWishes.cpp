// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "accessibility/MockPortal.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Hintreels;

namespace {

const QString appearance = "org.freedesktop.appearance";
const QString gnome = "org.gnome.desktop.interface";
const QString gnomeAccess = "org.gnome.desktop.a11y.interface";

const HRPortalSettings moreContrast{ { appearance, { { "contrast", 1U } } } };
const HRPortalSettings lessMotion{ { appearance, { { "reduced-motion", 1U } } } };

} // namespace

class tst_HRDesktopWishes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wishes_areReadFromSettings_data();
    void wishes_areReadFromSettings();
    void portal_isNotAsked_beforeSomebodyFollows();
    void portal_answersLate();
    void portal_answersSomethingElse_data();
    void portal_answersSomethingElse();
    void portal_tellsOfChanges();
    void portal_comesLater();
    void bus_isNotStarted_data();
    void bus_isNotStarted();
};

void tst_HRDesktopWishes::wishes_areReadFromSettings_data()
{
    QTest::addColumn<HRPortalSettings>("settings");
    QTest::addColumn<bool>("highContrast");
    QTest::addColumn<bool>("reducedMotion");
    QTest::addColumn<qreal>("textScale");
    QTest::addColumn<qreal>("textSize");

    const auto row = [](const char *name, const HRPortalSettings &settings) -> QTestData & {
        return QTest::newRow(name) << settings;
    };
    const auto in = [](const QString &space, const QString &key, const QVariant &value) {
        return HRPortalSettings{ { space, { { key, value } } } };
    };
    row("none", {}) << false << false << 1.0 << 0.0;
    row("contrast", moreContrast) << true << false << 1.0 << 0.0;
    row("no contrast", in(appearance, "contrast", 0U)) << false << false << 1.0 << 0.0;
    row("unknown contrast", in(appearance, "contrast", 2U)) << false << false << 1.0 << 0.0;
    row("contrast as a text", in(appearance, "contrast", "1")) << false << false << 1.0 << 0.0;
    row("contrast elsewhere", in(gnome, "contrast", 1U)) << false << false << 1.0 << 0.0;
    row("GNOME's contrast", in(gnomeAccess, "high-contrast", true)) << true << false << 1.0 << 0.0;
    row("motion", lessMotion) << false << true << 1.0 << 0.0;
    row("animations", in(gnome, "enable-animations", false)) << false << true << 1.0 << 0.0;
    row("animations as a number", in(gnome, "enable-animations", 0))
        << false << false << 1.0 << 0.0;
    row("larger text", in(gnome, "text-scaling-factor", 1.5)) << false << false << 1.5 << 0.0;
    row("smaller text", in(gnome, "text-scaling-factor", 0.5)) << false << false << 1.0 << 0.0;
    row("huge text", in(gnome, "text-scaling-factor", 1e300)) << false << false << 3.0 << 0.0;
    row("no number", in(gnome, "text-scaling-factor", qQNaN())) << false << false << 1.0 << 0.0;
    row("font", in(gnome, "font-name", "Cantarell Bold 11")) << false << false << 1.0 << 11.0;
    row("font without a size", in(gnome, "font-name", "Cantarell")) << false << false << 1.0 << 0.0;
    row("everything",
        { { appearance, { { "contrast", 1U }, { "reduced-motion", 1U } } },
            { gnome, { { "text-scaling-factor", 1.25 }, { "font-name", "Sans 10.5" } } } })
        << true << true << 1.25 << 10.5;
}

void tst_HRDesktopWishes::wishes_areReadFromSettings()
{
    QFETCH(HRPortalSettings, settings);
    const HRWishes wishes = wishesIn(settings);
    QTEST(wishes.highContrast, "highContrast");
    QTEST(wishes.reducedMotion, "reducedMotion");
    QTEST(wishes.textScale, "textScale");
    QTEST(wishes.textSize, "textSize");
}

void tst_HRDesktopWishes::portal_isNotAsked_beforeSomebodyFollows()
{
    MockPortal portal;
    HRDesktopWishes early;
    portal.tellOfChange();
    HRDesktopWishes desktop;
    desktop.follow();
    desktop.follow();
    QTRY_VERIFY(!portal.questions.isEmpty());
    QCOMPARE(portal.questions[0].arguments(),
        QVariantList{ QStringList({ appearance, gnome, gnomeAccess }) });
    portal.answerSettings(moreContrast);
    QTRY_VERIFY(desktop.wishes().highContrast);
    QCOMPARE(portal.asked, 1);
}

void tst_HRDesktopWishes::portal_answersLate()
{
    MockPortal portal;
    HRDesktopWishes desktop;
    QSignalSpy changed(&desktop, &HRDesktopWishes::changed);
    desktop.follow();
    QTRY_COMPARE(portal.questions.size(), 1);
    QVERIFY(!desktop.wishes().highContrast);

    portal.answerSettings(moreContrast);

    QTRY_COMPARE(changed.size(), 1);
    QVERIFY(desktop.wishes().highContrast);
}

void tst_HRDesktopWishes::portal_answersSomethingElse_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::newRow("an error") << QVariant();
    QTest::newRow("a number") << QVariant(1U);
    QTest::newRow("a map of values") << QVariant(QVariantMap{ { appearance, 1U } });
    QTest::newRow("nothing new") << QVariant::fromValue(HRPortalSettings());
}

void tst_HRDesktopWishes::portal_answersSomethingElse()
{
    QFETCH(QVariant, answer);
    MockPortal portal;
    HRDesktopWishes desktop;
    QSignalSpy changed(&desktop, &HRDesktopWishes::changed);
    desktop.follow();
    QTRY_COMPARE(portal.questions.size(), 1);

    if (answer.isValid())
        portal.answer(answer);
    else
        portal.fail();

    portal.change(lessMotion);
    QTRY_VERIFY(desktop.wishes().reducedMotion);
    QCOMPARE(changed.size(), 1);
}

void tst_HRDesktopWishes::portal_tellsOfChanges()
{
    MockPortal portal;
    HRDesktopWishes desktop;
    desktop.follow();
    portal.answerSettings(moreContrast);
    QTRY_VERIFY(desktop.wishes().highContrast);

    portal.change(lessMotion);
    QTRY_VERIFY(desktop.wishes().reducedMotion);
    QVERIFY(!desktop.wishes().highContrast);
    portal.change({});
    QTRY_VERIFY(!desktop.wishes().reducedMotion);
}

/// Before that, the bus answers in its place that there is none.
void tst_HRDesktopWishes::portal_comesLater()
{
    HRDesktopWishes desktop;
    desktop.follow();
    MockPortal portal;
    portal.change(moreContrast);
    QTRY_VERIFY(desktop.wishes().highContrast);
}

void tst_HRDesktopWishes::bus_isNotStarted_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("no address") << QByteArray();
    QTest::newRow("one to be started") << QByteArray("autolaunch:");
}

/// The first would ask the bus that Qt has opened already.
void tst_HRDesktopWishes::bus_isNotStarted()
{
    QFETCH(QByteArray, address);
    MockPortal portal;
    const QByteArray own = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    HRDesktopWishes without;
    without.follow();
    qputenv("DBUS_SESSION_BUS_ADDRESS", own);
    HRDesktopWishes desktop;
    desktop.follow();
    portal.answerSettings(moreContrast);
    QTRY_VERIFY(desktop.wishes().highContrast);
    QCOMPARE(portal.asked, 1);
}

QTEST_MAIN(tst_HRDesktopWishes)
#include "tst_HRDesktopWishes.moc"
