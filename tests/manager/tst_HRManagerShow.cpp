// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndex.h"
#include "manager/ManagerFixture.h"

#include <limits>

using namespace Hintreels;

class tst_HRManagerShow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void show_createsVisiblePopup();
    void show_reportsWhatItLooksFor();
    void show_prefersLocaleThenFallback_data();
    void show_prefersLocaleThenFallback();
    void show_doesNothing_whenDisabled();
    void show_needsNoOpenGL_whenUserHasChosenARenderer();
    void show_requiresExactModifiers_data();
    void show_requiresExactModifiers();
    void show_keepsContent_whenKeyIsShownAlready();
    void show_freesTreeBefore();
    void show_showsFallbackKey_inFallbackLocaleOnly();
    void show_keepsFallbackContent_forNextUnknownKey();
    void show_asksHostForShortcut();
    void show_hidesPopup_whenNothingIsFoundFarAway();
    void show_keepsPopup_whenPointerIsSafe();
    void show_hidesPopup_whenWidgetHasItsOwnToolTip();
    void show_freesElement_whenIndexGivesNoRoot();
    void show_keepsElement_whenIndexGivesItAgain();
    void tooltipPosition_addsOffset();
    void tooltipPosition_endsAtTheLimitsOfNumbers_data();
    void tooltipPosition_endsAtTheLimitsOfNumbers();
};

void tst_HRManagerShow::show_createsVisiblePopup()
{
    ManagerFixture f;
    QVERIFY(!f.popup());

    QVERIFY(f.show("pen"));

    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.title(), QString("Pen"));
    QCOMPARE(f.content()->attribute("HRPackagName"), QString("A"));
    QCOMPARE(f.popup()->view()->packageRoot(), QDir(f.packages.path() + "/A.hintreels"));
    QCOMPARE(f.popup()->view()->source(),
        QUrl::fromLocalFile(f.packages.path() + "/A.hintreels/ui/Popup.qml"));
}

void tst_HRManagerShow::show_reportsWhatItLooksFor()
{
    ManagerFixture f;
    f.show("pen");
    const QStringList messages = f.host->takeMessages(messageInformation);
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.first(), QString("looking for Hintreel for key:pen"));
    QVERIFY(messages.last().startsWith("Retrieved pen in "));
}

void tst_HRManagerShow::show_prefersLocaleThenFallback_data()
{
    QTest::addColumn<QVariant>("locale");
    QTest::addColumn<QVariant>("fallback");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("title");
    QTest::newRow("English by default") << QVariant() << QVariant() << "pen" << true << "Pen";
    QTest::newRow("German") << QVariant("de_DE") << QVariant() << "pen" << true << "Stift";
    QTest::newRow("English falls in") << QVariant("de_DE") << QVariant() << "ink" << true << "";
    QTest::newRow("no third locale") << QVariant("de_DE") << QVariant() << "lost" << false << "";
    QTest::newRow("other fallback")
        << QVariant("de_DE") << QVariant("fr_FR") << "lost" << true << "";
}

void tst_HRManagerShow::show_prefersLocaleThenFallback()
{
    QFETCH(QVariant, locale);
    QFETCH(QVariant, fallback);
    QFETCH(QString, key);
    QFETCH(bool, shown);
    ManagerFixture f;
    if (locale.isValid())
        f.host->context().set(localeKey, locale);
    if (fallback.isValid())
        f.host->context().set(fallbackLocaleKey, fallback);

    QCOMPARE(f.show(key), shown);
    QCOMPARE(f.popup()->isVisible(), shown);
    QTEST(f.title(), "title");
}

void tst_HRManagerShow::show_doesNothing_whenDisabled()
{
    ManagerFixture f({ { disabledKey, true } });
    QVERIFY(!f.show("pen"));
    QVERIFY(!f.popup());
    QCOMPARE(f.host->takeMessages(messageInformation).size(), 1);
}

void tst_HRManagerShow::show_needsNoOpenGL_whenUserHasChosenARenderer()
{
    QCOMPARE(qgetenv("QT_QUICK_BACKEND"), QByteArray("software"));
    ManagerFixture f({ { forbidSoftwareRendererKey, true } });
    QVERIFY(f.show("pen"));
}

void tst_HRManagerShow::show_requiresExactModifiers_data()
{
    QTest::addColumn<int>("required");
    QTest::addColumn<int>("held");
    QTest::addColumn<bool>("shown");
    const int control = Qt::ControlModifier;
    const int both = Qt::ControlModifier | Qt::ShiftModifier;
    QTest::newRow("none required") << 0 << both << true;
    QTest::newRow("exact") << control << control << true;
    QTest::newRow("missing") << control << 0 << false;
    QTest::newRow("one too many") << control << both << false;
}

void tst_HRManagerShow::show_requiresExactModifiers()
{
    QFETCH(int, required);
    QFETCH(int, held);
    ManagerFixture f({ { modifierKey, required } });
    QWidget window;
    QTest::keyPress(&window, Qt::Key_A, Qt::KeyboardModifiers(held));
    QTEST(f.show("pen"), "shown");
    QTest::keyRelease(&window, Qt::Key_A, Qt::NoModifier);
}

void tst_HRManagerShow::show_keepsContent_whenKeyIsShownAlready()
{
    ManagerFixture f;
    f.show("pen");
    const QPointer<HRXmlElement> content = f.content();
    QVERIFY(f.show("pen"));
    QVERIFY(content);
    QCOMPARE(f.content(), content.data());
}

void tst_HRManagerShow::show_freesTreeBefore()
{
    ManagerFixture f;
    f.show("pen");
    const QPointer<HRXmlElement> content = f.content();
    const QPointer<QObject> root = content->parent();
    QVERIFY(root);
    QVERIFY(f.show("ink"));
    QVERIFY(!content);
    QVERIFY(!root);
}

void tst_HRManagerShow::show_showsFallbackKey_inFallbackLocaleOnly()
{
    ManagerFixture f({ { localeKey, "de_DE" }, { fallbackKeyKey, "pen" } });
    QVERIFY(f.show("unknown"));
    QCOMPARE(f.title(), QString("Pen"));
    QCOMPARE(f.host->shortcutRequests, QStringList{ "unknown:P" });
}

void tst_HRManagerShow::show_keepsFallbackContent_forNextUnknownKey()
{
    ManagerFixture f({ { fallbackKeyKey, "pen" } });
    f.show("unknown");
    const QPointer<HRXmlElement> content = f.content();
    QVERIFY(f.show("another"));
    QCOMPARE(f.content(), content.data());
}

void tst_HRManagerShow::show_asksHostForShortcut()
{
    ManagerFixture f;
    f.show("pen");
    QCOMPARE(f.content()->attribute("shortcut"), QString("P"));
    f.host->shortcut = "Ctrl+I";
    f.show("ink");
    QCOMPARE(f.content()->attribute("shortcut"), QString("Ctrl+I"));
    QCOMPARE(f.host->shortcutRequests, (QStringList{ "pen:P", "ink:" }));
}

void tst_HRManagerShow::show_hidesPopup_whenNothingIsFoundFarAway()
{
    ManagerFixture f;
    QVERIFY(!f.show("unknown"));
    f.show("pen");
    QVERIFY(!f.manager().show("unknown", farAway, nullptr));
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManagerShow::show_keepsPopup_whenPointerIsSafe()
{
    ManagerFixture f;
    f.show("pen");
    const QPoint inside = f.popup()->geometry().center();
    QWidget plain;
    QVERIFY(f.manager().show("unknown", inside, nullptr));
    QVERIFY(f.manager().show("unknown", inside, &plain));
    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.title(), QString("Pen"));
}

void tst_HRManagerShow::show_hidesPopup_whenWidgetHasItsOwnToolTip()
{
    ManagerFixture f;
    f.show("pen");
    QWidget own;
    own.setToolTip("own");
    QVERIFY(!f.manager().show("unknown", f.popup()->geometry().center(), &own));
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManagerShow::show_freesElement_whenIndexGivesNoRoot()
{
    class Index : public HRIndex
    {
    public:
        using HRIndex::HRIndex;
        HRXmlElement *retrieve(
            const QString &, const QLocale &, QString &, int &, HRXmlElement *&root) override
        {
            root = nullptr;
            element = new HRXmlElement(new HRXmlElement);
            return element;
        }
        QPointer<HRXmlElement> element;
    };

    HRContext context;
    Index index(&context, {});
    RecordingHost host(context, {}, &index);
    QVERIFY(!host.show("pen", QPoint(), nullptr));
    QVERIFY(!index.element);
}

void tst_HRManagerShow::show_keepsElement_whenIndexGivesItAgain()
{
    class Index : public HRIndex
    {
    public:
        using HRIndex::HRIndex;
        HRXmlElement *retrieve(const QString &, const QLocale &, QString &path, int &depth,
            HRXmlElement *&answer) override
        {
            path = "/";
            depth = 1;
            answer = root.get();
            return element;
        }
        // No `hintreels`, so that nobody takes it for the root of one hint.
        std::unique_ptr<HRXmlElement> root = std::make_unique<HRXmlElement>();
        QPointer<HRXmlElement> element = new HRXmlElement(root.get());
    };

    HRContext context;
    context.set(hideDelayKey, 0);
    Index index(&context, {});
    {
        RecordingHost host(context, {}, &index);
        QVERIFY(host.show("pen", QPoint(), nullptr));
        QVERIFY(host.show("ink", QPoint(), nullptr));
        QVERIFY(index.element);
        QCOMPARE(host.manager()->widget()->view()->content(), index.element.data());
        host.manager()->widget()->hide();
        QVERIFY(host.show("ink", QPoint(), nullptr));
        QVERIFY(host.manager()->widget()->isVisible());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!index.element);
}

void tst_HRManagerShow::tooltipPosition_addsOffset()
{
    ManagerFixture f;
    QCOMPARE(f.manager().tooltipPosition(QPoint(5, 7), nullptr), QPoint(40, 37));
    f.host->context().set(tooltipOffsetKey, QSize(-1, 2));
    QCOMPARE(f.manager().tooltipPosition(QPoint(5, 7), nullptr), QPoint(4, 9));
}

void tst_HRManagerShow::tooltipPosition_endsAtTheLimitsOfNumbers_data()
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QSize>("offset");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("beyond what widgets reach")
        << QPoint(20000000, -20000000) << QSize(1, -1) << QPoint(20000001, -20000001);
    QTest::newRow("largest") << QPoint(largest - 1, 0) << QSize(1, 1) << QPoint(largest, 1);
    QTest::newRow("above") << QPoint(largest, 0) << QSize(1, 1) << QPoint(largest, 1);
    QTest::newRow("below") << QPoint(0, smallest) << QSize(1, -1) << QPoint(1, smallest);
    QTest::newRow("far away") << QPoint(largest, smallest) << QSize(largest, smallest)
                              << QPoint(largest, smallest);
}

void tst_HRManagerShow::tooltipPosition_endsAtTheLimitsOfNumbers()
{
    QFETCH(QPoint, pointer);
    QFETCH(QSize, offset);
    ManagerFixture f({ { tooltipOffsetKey, offset } });
    QTEST(f.manager().tooltipPosition(pointer, nullptr), "position");
}

QTEST_MAIN(tst_HRManagerShow)
#include "tst_HRManagerShow.moc"
