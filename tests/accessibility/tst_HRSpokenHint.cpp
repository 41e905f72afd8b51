// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "accessibility/BusReader.h"
#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/HRWidgetPrivate_p.h"

#include <QAccessible>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Hintreels;

namespace {

constexpr int longTime = 30000; // ms: other programs may keep the processor busy

int appearances = 0; // of tool tips, as Qt's bridge to assistive technology is told

void countAppearances(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::ObjectShow && qobject_cast<HRWidget *>(event->object()))
        ++appearances;
}

class GermanHost : public RecordingHost
{
public:
    using RecordingHost::RecordingHost;

    QString translateString(const QString &text, const QString &context) override
    {
        translated.append(context + ':' + text);
        return text == "Pen" ? QString("Stift") : text;
    }

    QStringList translated;
};

/// A host of which assistive technology is to hear.
struct Fixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = { { spokenHintsKey, true } })
    {
        packages.write("A.hintreels/ui/HintreelUI.qml", rectangleQml(100, 50));
        packages.writeControl("A", "a.xml",
            "<hintreel key='pen' title='Pen'><summary>Draws lines.</summary></hintreel>"
            "<hintreel key='ink' title='Ink'/>"
            "<hintreel key='nameless'><summary>Does it.</summary></hintreel>");
        HRContext context;
        context.set(hideDelayKey, 0);
        context.set(hideAnimationDurationKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<GermanHost>(context, QStringList{ packages.path() });
        reference.setAccessibleDescription("own");
    }

    void show(const QString &key = "pen", QWidget *widget = nullptr)
    {
        host->show(key, QPoint(300, 300), widget ? widget : &reference);
    }

    HRWidget &popup() const { return *host->manager()->widget(); }
    HRSpokenHint &spoken() const { return HRWidgetPrivate::of(popup()).spoken; }

    TestPackages packages;
    QWidget reference;
    QWidget other;
    std::unique_ptr<GermanHost> host;
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(Fixture &)>)

class tst_HRSpokenHint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { appearances = 0; }
    void hint_namesPopupAndDescribesReference_data();
    void hint_namesPopupAndDescribesReference();
    void reference_getsItsOwnBack_whenTheHintGoes_data();
    void reference_getsItsOwnBack_whenTheHintGoes();
    void hint_isSilent_unlessWanted();
    void hint_isTold_whenAssistiveTechnologyComes();
    void announce_tellsEachHintOnce();
    void announce_isDoneForEachHint_whereSet();
};

void tst_HRSpokenHint::initTestCase()
{
    const BusReader bus; // whoever reads it, brings it to life
    QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), longTime);
    QAccessible::installUpdateHandler(&countAppearances);
}

void tst_HRSpokenHint::hint_namesPopupAndDescribesReference_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("popupDescription");
    QTest::addColumn<QString>("referenceDescription");
    QTest::newRow("translated") << "pen"
                                << "Stift"
                                << "Draws lines."
                                << "Stift: Draws lines.";
    QTest::newRow("title alone") << "ink"
                                 << "Ink" << QString() << "Ink";
    QTest::newRow("summary alone") << "nameless" << QString() << "Does it."
                                   << "Does it.";
}

void tst_HRSpokenHint::hint_namesPopupAndDescribesReference()
{
    QFETCH(QString, key);
    Fixture f;
    f.show(key == "ink" ? "pen" : "ink");
    f.show(key);
    QTEST(f.popup().accessibleName(), "name");
    QTEST(f.popup().accessibleDescription(), "popupDescription");
    QTEST(f.reference.accessibleDescription(), "referenceDescription");
}

void tst_HRSpokenHint::reference_getsItsOwnBack_whenTheHintGoes_data()
{
    QTest::addColumn<std::function<void(Fixture &)>>("go");
    const auto add = [](const char *name, const std::function<void(Fixture &)> &go) {
        QTest::newRow(name) << go;
    };
    add("hidden", [](Fixture &f) { f.popup().hide(); });
    add("another widget's hint", [](Fixture &f) { f.show("ink", &f.other); });
    add("pinned", [](Fixture &f) { f.popup().view()->setReserved(true); });
    add("popup deleted", [](Fixture &f) { delete &f.popup(); });
    add("host deleted", [](Fixture &f) {
        delete &f.popup();
        f.host.reset();
    });
}

void tst_HRSpokenHint::reference_getsItsOwnBack_whenTheHintGoes()
{
    QFETCH(std::function<void(Fixture &)>, go);
    Fixture f;
    f.show();
    QCOMPARE(f.reference.accessibleDescription(), QString("Stift: Draws lines."));
    go(f);
    QCOMPARE(f.reference.accessibleDescription(), QString("own"));
}

void tst_HRSpokenHint::hint_isSilent_unlessWanted()
{
    Fixture f({ { announceHoverKey, true } });
    f.show();
    f.spoken().announce();
    QCOMPARE(f.popup().accessibleName(), QString());
    QCOMPARE(f.reference.accessibleDescription(), QString("own"));
    QCOMPARE(appearances, 0);
    QCOMPARE(f.host->translated, QStringList());
}

void tst_HRSpokenHint::hint_isTold_whenAssistiveTechnologyComes()
{
    Fixture f({ { spokenHintsKey, false } });
    f.show();
    f.host->context().set(spokenHintsKey, true);
    QCOMPARE(f.popup().accessibleName(), QString());
    QAccessible::setActive(true); // tells of it again
    QCOMPARE(f.popup().accessibleName(), QString("Stift"));
    f.popup().hide();
    QAccessible::setActive(true);
    QCOMPARE(f.reference.accessibleDescription(), QString("own"));
}

void tst_HRSpokenHint::announce_tellsEachHintOnce()
{
    Fixture f;
    f.show();
    QCOMPARE(appearances, 0);
    f.spoken().announce();
    f.spoken().announce();
    QCOMPARE(appearances, 1);
    f.popup().hide();
    f.spoken().announce();
    QCOMPARE(appearances, 1);
    f.show();
    f.spoken().announce();
    QCOMPARE(appearances, 2);
    f.show("ink");
    f.spoken().announce();
    QCOMPARE(appearances, 3);
}

void tst_HRSpokenHint::announce_isDoneForEachHint_whereSet()
{
    Fixture f({ { spokenHintsKey, true }, { announceHoverKey, true } });
    f.show();
    f.spoken().announce();
    QCOMPARE(appearances, 1);
    f.show("ink");
    QCOMPARE(appearances, 2);
}

QTEST_MAIN(tst_HRSpokenHint)
#include "tst_HRSpokenHint.moc"
