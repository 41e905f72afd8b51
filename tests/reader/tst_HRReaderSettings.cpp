// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "reader/HRReaderSettings.h"

#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

/// A file in which settings are kept, and those that are read from it.
struct Fixture
{
    std::unique_ptr<QSettings> store() const
    {
        return std::make_unique<QSettings>(directory.filePath("host.ini"), QSettings::IniFormat);
    }
    std::unique_ptr<HRReaderSettings> read() const
    {
        return std::make_unique<HRReaderSettings>(store());
    }

    QTemporaryDir directory;
};

} // namespace

class tst_HRReaderSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_areTheDesktops_atFirst();
    void value_isKeptAndTold_data();
    void value_isKeptAndTold();
    void value_comesIntoItsRange_data();
    void value_comesIntoItsRange();
    void files_mayHoldAnything_data();
    void files_mayHoldAnything();
    void hint_beginsSmall_onceSeenOftenEnough();
    void seen_isForgotten();
    void hostsSettings_areTheStandardStore();
};

void tst_HRReaderSettings::values_areTheDesktops_atFirst()
{
    const Fixture f;
    const std::unique_ptr<HRReaderSettings> settings = f.read();
    QVERIFY(settings->areHintsShown());
    QCOMPARE(settings->detail(), HRReaderSettings::fullDetail);
    QCOMPARE(settings->occasion(), HRReaderSettings::occasionHover);
    QVERIFY(settings->delay() < 0);
    QVERIFY(settings->duration() < 0);
    QCOMPARE(settings->clips(), HRReaderSettings::clipsByThemselves);
    QCOMPARE(settings->textSize(), 100);
    QVERIFY(settings->areCaptionsShown());
    QVERIFY(!settings->startsSmall());
    QVERIFY(f.store()->allKeys().isEmpty());
}

void tst_HRReaderSettings::value_isKeptAndTold_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::newRow("hints") << QByteArray("hintsShown") << 0;
    QTest::newRow("detail") << QByteArray("detail") << int(HRReaderSettings::summaryDetail);
    QTest::newRow("occasion") << QByteArray("occasion") << int(HRReaderSettings::occasionKey);
    QTest::newRow("delay") << QByteArray("delay") << 1500;
    QTest::newRow("duration") << QByteArray("duration") << 0;
    QTest::newRow("clips") << QByteArray("clips") << int(HRReaderSettings::clipsOnRequest);
    QTest::newRow("text size") << QByteArray("textSize") << 150;
    QTest::newRow("captions") << QByteArray("captionsShown") << 0;
    QTest::newRow("starts small") << QByteArray("startsSmall") << 1;
    QTest::newRow("seen limit") << QByteArray("seenLimit") << 3;
}

void tst_HRReaderSettings::value_isKeptAndTold()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    const Fixture f;
    const std::unique_ptr<HRReaderSettings> settings = f.read();
    const QSignalSpy changes(settings.get(), &HRReaderSettings::changed);

    QVERIFY(settings->setProperty(property.constData(), value));
    QCOMPARE(settings->property(property.constData()).toInt(), value);
    QCOMPARE(changes.count(), 1);
    QVERIFY(settings->setProperty(property.constData(), value));
    QCOMPARE(changes.count(), 1);

    const std::unique_ptr<QSettings> store = f.store();
    QCOMPARE(store->childGroups(), QStringList("Hintreels"));
    QCOMPARE(store->allKeys().size(), 1);
    QCOMPARE(f.read()->property(property.constData()).toInt(), value);
}

void tst_HRReaderSettings::value_comesIntoItsRange_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("taken");
    QTest::newRow("no such detail") << QByteArray("detail") << 7 << 2;
    QTest::newRow("delay below the desktop's") << QByteArray("delay") << -50 << -1;
    QTest::newRow("long delay") << QByteArray("delay") << 1'000'000 << 10'000;
    QTest::newRow("long duration") << QByteArray("duration") << 1'000'000 << 600'000;
    QTest::newRow("tiny text") << QByteArray("textSize") << 0 << 75;
    QTest::newRow("huge text") << QByteArray("textSize") << 1'000 << 300;
}

void tst_HRReaderSettings::value_comesIntoItsRange()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    const std::unique_ptr<HRReaderSettings> settings = Fixture().read();
    settings->setProperty(property.constData(), value);
    QTEST(settings->property(property.constData()).toInt(), "taken");
}

void tst_HRReaderSettings::files_mayHoldAnything_data()
{
    QTest::addColumn<QVariant>("written");
    QTest::addColumn<int>("read");
    QTest::newRow("a number") << QVariant(150) << 150;
    QTest::newRow("a text") << QVariant("large") << 100;
    QTest::newRow("nothing") << QVariant("") << 100;
    QTest::newRow("a list") << QVariant(QStringList{ "1", "2" }) << 100;
    QTest::newRow("out of range") << QVariant(-5) << 75;
}

void tst_HRReaderSettings::files_mayHoldAnything()
{
    QFETCH(QVariant, written);
    const Fixture f;
    f.store()->setValue("Hintreels/textSize", written);
    QTEST(f.read()->textSize(), "read");
}

void tst_HRReaderSettings::hint_beginsSmall_onceSeenOftenEnough()
{
    const Fixture f;
    const std::unique_ptr<HRReaderSettings> settings = f.read();
    const QString key = QString::fromUtf8("Window//Größe %1\\[a]");
    settings->countSeen(key); // with the limit at 0
    settings->setSeenLimit(2);
    settings->countSeen(key);
    QVERIFY(!settings->beginsSmall(key));
    settings->countSeen(key);
    QVERIFY(settings->beginsSmall(key));
    QVERIFY(!settings->beginsSmall(QString(key).replace("//", "/"))); // the same to QSettings
    QVERIFY(f.read()->beginsSmall(key));

    settings->setSeenLimit(0);
    QVERIFY(!settings->beginsSmall(key));
    settings->setStartsSmall(true);
    QVERIFY(settings->beginsSmall("any"));
}

void tst_HRReaderSettings::seen_isForgotten()
{
    const Fixture f;
    const std::unique_ptr<HRReaderSettings> settings = f.read();
    settings->setSeenLimit(1);
    settings->countSeen("pen");
    settings->forgetSeen();
    QVERIFY(!settings->beginsSmall("pen"));
    QCOMPARE(settings->seenLimit(), 1);
    QCOMPARE(f.store()->allKeys().size(), 1);
}

void tst_HRReaderSettings::hostsSettings_areTheStandardStore()
{
    const QTemporaryDir home;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    QCoreApplication::setOrganizationName("Host");
    QCoreApplication::setApplicationName("Program");

    HRReaderSettings settings;
    settings.setTextSize(200);

    QCOMPARE(QSettings().value("Hintreels/textSize").toInt(), 200);
}

QTEST_GUILESS_MAIN(tst_HRReaderSettings)
#include "tst_HRReaderSettings.moc"
