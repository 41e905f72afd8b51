// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"
#include "reader/HRDesktopWishes_p.h"
#include "support/MessageGuard.h"
#include "support/TestReader.h"
#include "ui/reader/HRSceneSettings_p.h"

#include <QProxyStyle>
#include <QtTest>

using namespace Hintreels;

namespace {

/// The style of a desktop whose user wants less motion, or of one that moves.
class MovingStyle : public QProxyStyle
{
public:
    explicit MovingStyle(bool moves)
        : m_moves(moves)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *returned) const override
    {
        if (hint == SH_Widget_Animation_Duration)
            return m_moves ? 200 : 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    bool m_moves;
};

} // namespace

class tst_HRSceneSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void locales_beginWithTheCurrentOne();
    void locales_areThoseOfTheSystem_withoutSettings();
    void reducedMotion_followsSettingThenDesktop_data();
    void reducedMotion_followsSettingThenDesktop();
    void highContrast_followsThePalette_data();
    void highContrast_followsThePalette();
    void textScale_isWhatTheHostsTextMisses_data();
    void textScale_isWhatTheHostsTextMisses();
    void decisions_areTheReaders();
    void clips_followReaderAndMotion_data();
    void clips_followReaderAndMotion();
};

void tst_HRSceneSettings::locales_beginWithTheCurrentOne()
{
    HRContext context;
    const QLocale german("de_DE");

    QCOMPARE(
        sceneSettings(context, german).locales, (QVector<QLocale>{ german, QLocale("en_US") }));

    context.set(fallbackLocaleKey, "fr_FR");
    QCOMPARE(
        sceneSettings(context, german).locales, (QVector<QLocale>{ german, QLocale("fr_FR") }));
}

void tst_HRSceneSettings::locales_areThoseOfTheSystem_withoutSettings()
{
    QCOMPARE(sceneSettings().locales, QVector<QLocale>{ QLocale::system() });
}

void tst_HRSceneSettings::reducedMotion_followsSettingThenDesktop_data()
{
    QTest::addColumn<bool>("desktopMoves");
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("reduced");

    QTest::newRow("desktop moves") << true << QVariant() << false;
    QTest::newRow("desktop does not move") << false << QVariant() << true;
    QTest::newRow("setting over a moving desktop") << true << QVariant(true) << true;
    QTest::newRow("setting over a still desktop") << false << QVariant(false) << false;
}

void tst_HRSceneSettings::reducedMotion_followsSettingThenDesktop()
{
    QFETCH(bool, desktopMoves);
    QFETCH(QVariant, setting);
    QFETCH(bool, reduced);
    QApplication::setStyle(new MovingStyle(desktopMoves));
    HRContext context;
    if (setting.isValid())
        context.set(reducedMotionKey, setting);

    QCOMPARE(sceneSettings(context, QLocale()).reducedMotion, reduced);
    QCOMPARE(sceneSettings().reducedMotion, !desktopMoves);
}

void tst_HRSceneSettings::highContrast_followsThePalette_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<bool>("high");

    const auto palette = [](const QColor &text, const QColor &ground, const QColor &field) {
        return QPalette(text, ground, ground, ground, ground, text, text, field, ground);
    };
    QTest::newRow("Qt's own") << QPalette(QColor("#efefef")) << false;
    QTest::newRow("dark") << palette("#ffffff", "#202124", "#000000") << false;
    QTest::newRow("white fields only") << palette("#000000", "#efefef", "#ffffff") << false;
    QTest::newRow("black on white") << palette("#000000", "#ffffff", "#ffffff") << true;
    QTest::newRow("white on black") << palette("#ffffff", "#000000", "#000000") << true;
    QTest::newRow("yellow on black") << palette("#ffff00", "#000000", "#000000") << true;
}

void tst_HRSceneSettings::highContrast_followsThePalette()
{
    QFETCH(QPalette, palette);
    const QPalette before = QGuiApplication::palette();
    QGuiApplication::setPalette(palette);
    QTEST(sceneSettings().highContrast, "high");
    QTEST(sceneSettings(HRContext(), QLocale()).highContrast, "high");
    QGuiApplication::setPalette(before);
}

void tst_HRSceneSettings::textScale_isWhatTheHostsTextMisses_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<qreal>("desktopsFactor");
    QTest::addColumn<qreal>("hostsPixels");
    QTest::addColumn<qreal>("scale");

    QTest::newRow("nothing is wished") << "wayland" << 1.0 << 12.0 << 1.0;
    QTest::newRow("the host does not follow") << "wayland" << 1.5 << 16.0 << 1.5;
    QTest::newRow("the host follows") << "wayland" << 1.5 << 24.0 << 1.0;
    QTest::newRow("the host is larger still") << "wayland" << 1.5 << 40.0 << 1.0;
    QTest::newRow("the host follows a little") << "wayland" << 1.5 << 20.0 << 1.2;
    QTest::newRow("the host is small by itself") << "wayland" << 1.5 << 8.0 << 1.5;
    QTest::newRow("Qt follows") << "xcb" << 1.5 << 16.0 << 1.0;
    QTest::newRow("the host has no font") << "wayland" << 1.5 << -1.0 << 1.0;
}

/// The desktop's own font has 12 points, which are 16 pixels.
void tst_HRSceneSettings::textScale_isWhatTheHostsTextMisses()
{
    QFETCH(QString, platform);
    QFETCH(qreal, desktopsFactor);
    QFETCH(qreal, hostsPixels);
    const HRWishes wishes{ false, false, desktopsFactor, 12.0 };
    QTEST(missingTextScale(wishes, platform, hostsPixels), "scale");
}

void tst_HRSceneSettings::decisions_areTheReaders()
{
    TestReader reader;
    HRContext context;
    reader.settings.setDetail(HRReaderSettings::textDetail);
    reader.settings.setStartsSmall(true);
    reader.settings.setCaptionsShown(false);
    reader.settings.setTextSize(150);
    QCOMPARE(sceneSettings(context, QLocale()).detail, HRReaderSettings::fullDetail);

    context.set(readerSettingsKey, reader.asValue());

    const HRSceneSettings settings = sceneSettings(context, QLocale());
    QCOMPARE(settings.detail, HRReaderSettings::textDetail);
    QVERIFY(settings.beginsSmall("pen"));
    QVERIFY(!settings.showsCaptions);
    QCOMPARE(settings.textScale, 1.5);
}

void tst_HRSceneSettings::clips_followReaderAndMotion_data()
{
    QTest::addColumn<int>("clips");
    QTest::addColumn<bool>("reducedMotion");
    QTest::addColumn<bool>("plays");
    QTest::addColumn<bool>("repeats");
    QTest::newRow("by themselves")
        << int(HRReaderSettings::clipsByThemselves) << false << true << true;
    QTest::newRow("once") << int(HRReaderSettings::clipsOnce) << false << true << false;
    QTest::newRow("on request") << int(HRReaderSettings::clipsOnRequest) << false << false << false;
    QTest::newRow("by themselves, without motion")
        << int(HRReaderSettings::clipsByThemselves) << true << false << false;
}

void tst_HRSceneSettings::clips_followReaderAndMotion()
{
    QFETCH(int, clips);
    QFETCH(bool, reducedMotion);
    TestReader reader;
    reader.settings.setClips(HRReaderSettings::Clips(clips));
    HRContext context;
    context.set(readerSettingsKey, reader.asValue());
    context.set(reducedMotionKey, reducedMotion);
    const HRSceneSettings settings = sceneSettings(context, QLocale());
    QTEST(settings.playsClips, "plays");
    QTEST(settings.repeatsClips, "repeats");
}

QTEST_MAIN(tst_HRSceneSettings)
#include "tst_HRSceneSettings.moc"
