// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"
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
