// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "index/HRIndex.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QtTest>

#include <memory>

#include <limits>

using namespace Hintreels;

namespace {

const QByteArray ui = " ui=\"ui/Popup.qml\"";

// A host with one package: "pen" in English and German, "ink" in English, "lost" in French.
struct Fixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = {})
    {
        packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
        packages.writeControl("A", "en.xml",
            "<hintreel key=\"pen\" title=\"Pen\" shortcut=\"P\"/><hintreel key=\"ink\"/>",
            "locale=\"en_US\"" + ui);
        packages.writeControl(
            "A", "de.xml", "<hintreel key=\"pen\" title=\"Stift\"/>", "locale=\"de_DE\"" + ui);
        packages.writeControl("A", "fr.xml", "<hintreel key=\"lost\"/>", "locale=\"fr_FR\"" + ui);
        context.set(hideAnimationDurationKey, 0);
        context.set(hideDelayKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
        host->context().set(messageLevelKey, int(messageDebug));
    }

    HRManager &manager() { return *host->manager(); }
    HRWidget *popup() { return manager().widget(); }
    HRXmlElement *content() { return popup()->view()->content(); }
    QString title() { return content() ? content()->attribute("title") : QString(); }
    bool show(const QString &key, QObject *object = nullptr)
    {
        return manager().show(key, QPoint(10, 10), object);
    }

    TestPackages packages;
    HRContext context;
    std::unique_ptr<RecordingHost> host;
};

// A place that is neither over a widget nor near the popup, wherever that went.
const QPoint farAway(-5000, -5000);

void sendMouse(QObject *target, QEvent::Type type, const QPoint &globalPos)
{
    QMouseEvent event(type, QPointF(1, 1), globalPos, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &event);
}

} // namespace

class tst_HRManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction_opensIndexOnce_andNeverDeletesIt();
    void construction_setsAlwaysShowToolTips_andDestructionClearsIt();
    void construction_copiesContext();
    void loadDataPath_addsPackagesLater();
    void indexControFile_reachesTheIndex();
    void handleMessage_obeysLevel_data();
    void handleMessage_obeysLevel();
    void currentLocale_prefersSettings();
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
    void retrieve_fillsLocation();
    void retrieve_handsOverWhatTheIndexWrote_onAMissToo();
    void retrieve_assignsNothing_whenIndexDoesNot();
    void reserve_refusesOtherWidgets();
    void reserve_makesNewPopup();
    void hintreelAttribute_readsShownContentFirst();
    void hintreelAttribute_readsDetachedPopups();
    void openExternalResource_obeysSettings_data();
    void openExternalResource_obeysSettings();
    void eventFilter_showsOnToolTip();
    void eventFilter_hidesOnDeactivation();
    void eventFilter_isNotInstalledByDefault();
    void mouseButtonEventFilter_hidesPopup_data();
    void mouseButtonEventFilter_hidesPopup();
    void mouseButtonEventFilter_keepsPopupThatStaysOpen();
    void getScaledSize_truncates_data();
    void getScaledSize_truncates();
    void scale_isReadAtStartOnly();
    void translateString_readsPackageTranslation();
    void destruction_deletesPopupLater();
};

void tst_HRManager::construction_opensIndexOnce_andNeverDeletesIt()
{
    class Index : public HRIndex
    {
    public:
        using HRIndex::HRIndex;
        bool open() override
        {
            ++opened;
            return false;
        }
        int opened = 0;
    };

    HRContext context;
    Index index(&context, {});
    const QPointer<HRIndex> guard = &index;
    auto host = std::make_unique<RecordingHost>(context, QStringList(), &index);
    QCOMPARE(host->manager()->index(), &index);
    host.reset();
    QCOMPARE(index.opened, 1);
    QVERIFY(guard);
}

void tst_HRManager::construction_setsAlwaysShowToolTips_andDestructionClearsIt()
{
    QWidget window;
    {
        Fixture f({ { alwaysShowToolTipsKey, true } });
        QVERIFY(window.testAttribute(Qt::WA_AlwaysShowToolTips));
    }
    QVERIFY(!window.testAttribute(Qt::WA_AlwaysShowToolTips));
    {
        Fixture f;
        QVERIFY(!window.testAttribute(Qt::WA_AlwaysShowToolTips));
        window.setAttribute(Qt::WA_AlwaysShowToolTips);
    }
    QVERIFY(!window.testAttribute(Qt::WA_AlwaysShowToolTips));
}

void tst_HRManager::construction_copiesContext()
{
    Fixture f({ { localeKey, "de_DE" } });
    f.context.set(localeKey, "en_US");
    QVERIFY(f.show("pen"));
    QCOMPARE(f.title(), QString("Stift"));
    QCOMPARE(f.manager().searchPaths(), QStringList{ f.packages.path() });
}

void tst_HRManager::loadDataPath_addsPackagesLater()
{
    Fixture f;
    const TestPackages more;
    more.writeControl("B", "b.xml", "<hintreel key=\"new\" title=\"New\"/>");
    QVERIFY(!f.manager().keys().contains("new"));

    f.manager().loadDataPath({ more.path() });

    QVERIFY(f.manager().keys().contains("new"));
    QCOMPARE(f.manager().searchPaths(), QStringList{ f.packages.path() });
}

void tst_HRManager::indexControFile_reachesTheIndex()
{
    Fixture f;
    const TestPackages more;
    const QString file = more.writeControl("B", "b.xml", "<hintreel key=\"new\"/>");
    f.manager().indexControFile(file, more.path() + "/B.hintreels");
    QVERIFY(f.manager().keys().contains("new"));
}

void tst_HRManager::handleMessage_obeysLevel_data()
{
    QTest::addColumn<QVariant>("level");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("passes");
    QTest::newRow("warning by default") << QVariant() << 200 << true;
    QTest::newRow("information by default") << QVariant() << 300 << false;
    QTest::newRow("at the level") << QVariant(250) << 250 << true;
    QTest::newRow("above the level") << QVariant(250) << 251 << false;
    QTest::newRow("negative level") << QVariant(-1) << 100 << false;
    QTest::newRow("negative type") << QVariant(100) << -5 << true;
}

void tst_HRManager::handleMessage_obeysLevel()
{
    QFETCH(QVariant, level);
    QFETCH(int, type);
    QFETCH(bool, passes);
    HRContext context;
    if (level.isValid())
        context.set(messageLevelKey, level);
    RecordingHost host(context, {});

    host.manager()->handleMessage(HRMessageType(type), "text");

    const QList<QPair<int, QString>> expected{ { type, "text" } };
    QCOMPARE(host.messages, passes ? expected : decltype(expected)());
}

void tst_HRManager::currentLocale_prefersSettings()
{
    HRContext context;
    RecordingHost host(context, {});
    QCOMPARE(host.manager()->currentLocale(), QLocale::system());
    host.context().set(fallbackLocaleKey, "fr_FR");
    QCOMPARE(host.manager()->currentLocale(), QLocale("fr_FR"));
    host.context().set(localeKey, "de_DE");
    QCOMPARE(host.manager()->currentLocale(), QLocale("de_DE"));
    host.context().set(localeKey, "");
    QCOMPARE(host.manager()->currentLocale(), QLocale("fr_FR"));
}

void tst_HRManager::show_createsVisiblePopup()
{
    Fixture f;
    QVERIFY(!f.popup());

    QVERIFY(f.show("pen"));

    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.title(), QString("Pen"));
    QCOMPARE(f.content()->attribute("HRPackagName"), QString("A"));
    QCOMPARE(f.popup()->view()->packageRoot(), QDir(f.packages.path() + "/A.hintreels"));
    QCOMPARE(f.popup()->view()->source(),
        QUrl::fromLocalFile(f.packages.path() + "/A.hintreels/ui/Popup.qml"));
}

void tst_HRManager::show_reportsWhatItLooksFor()
{
    Fixture f;
    f.show("pen");
    const QStringList messages = f.host->takeMessages(messageInformation);
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.first(), QString("looking for Hintreel for key:pen"));
    QVERIFY(messages.last().startsWith("Retrieved pen in "));
}

void tst_HRManager::show_prefersLocaleThenFallback_data()
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

void tst_HRManager::show_prefersLocaleThenFallback()
{
    QFETCH(QVariant, locale);
    QFETCH(QVariant, fallback);
    QFETCH(QString, key);
    QFETCH(bool, shown);
    Fixture f;
    if (locale.isValid())
        f.host->context().set(localeKey, locale);
    if (fallback.isValid())
        f.host->context().set(fallbackLocaleKey, fallback);

    QCOMPARE(f.show(key), shown);
    QCOMPARE(f.popup()->isVisible(), shown);
    QTEST(f.title(), "title");
}

void tst_HRManager::show_doesNothing_whenDisabled()
{
    Fixture f({ { disabledKey, true } });
    QVERIFY(!f.show("pen"));
    QVERIFY(!f.popup());
    QCOMPARE(f.host->takeMessages(messageInformation).size(), 1);
}

void tst_HRManager::show_needsNoOpenGL_whenUserHasChosenARenderer()
{
    QCOMPARE(qgetenv("QT_QUICK_BACKEND"), QByteArray("software"));
    Fixture f({ { forbidSoftwareRendererKey, true } });
    QVERIFY(f.show("pen"));
}

void tst_HRManager::show_requiresExactModifiers_data()
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

void tst_HRManager::show_requiresExactModifiers()
{
    QFETCH(int, required);
    QFETCH(int, held);
    Fixture f({ { modifierKey, required } });
    QWidget window;
    QTest::keyPress(&window, Qt::Key_A, Qt::KeyboardModifiers(held));
    QTEST(f.show("pen"), "shown");
    QTest::keyRelease(&window, Qt::Key_A, Qt::NoModifier);
}

void tst_HRManager::show_keepsContent_whenKeyIsShownAlready()
{
    Fixture f;
    f.show("pen");
    const QPointer<HRXmlElement> content = f.content();
    QVERIFY(f.show("pen"));
    QVERIFY(content);
    QCOMPARE(f.content(), content.data());
}

void tst_HRManager::show_freesTreeBefore()
{
    Fixture f;
    f.show("pen");
    const QPointer<HRXmlElement> content = f.content();
    const QPointer<QObject> root = content->parent();
    QVERIFY(root);
    QVERIFY(f.show("ink"));
    QVERIFY(!content);
    QVERIFY(!root);
}

void tst_HRManager::show_showsFallbackKey_inFallbackLocaleOnly()
{
    Fixture f({ { localeKey, "de_DE" }, { fallbackKeyKey, "pen" } });
    QVERIFY(f.show("unknown"));
    QCOMPARE(f.title(), QString("Pen"));
    QCOMPARE(f.host->shortcutRequests, QStringList{ "unknown:P" });
}

void tst_HRManager::show_keepsFallbackContent_forNextUnknownKey()
{
    Fixture f({ { fallbackKeyKey, "pen" } });
    f.show("unknown");
    const QPointer<HRXmlElement> content = f.content();
    QVERIFY(f.show("another"));
    QCOMPARE(f.content(), content.data());
}

void tst_HRManager::show_asksHostForShortcut()
{
    Fixture f;
    f.show("pen");
    QCOMPARE(f.content()->attribute("shortcut"), QString("P"));
    f.host->shortcut = "Ctrl+I";
    f.show("ink");
    QCOMPARE(f.content()->attribute("shortcut"), QString("Ctrl+I"));
    QCOMPARE(f.host->shortcutRequests, (QStringList{ "pen:P", "ink:" }));
}

void tst_HRManager::show_hidesPopup_whenNothingIsFoundFarAway()
{
    Fixture f;
    QVERIFY(!f.show("unknown"));
    f.show("pen");
    QVERIFY(!f.manager().show("unknown", farAway, nullptr));
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManager::show_keepsPopup_whenPointerIsSafe()
{
    Fixture f;
    f.show("pen");
    const QPoint inside = f.popup()->geometry().center();
    QWidget plain;
    QVERIFY(f.manager().show("unknown", inside, nullptr));
    QVERIFY(f.manager().show("unknown", inside, &plain));
    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.title(), QString("Pen"));
}

void tst_HRManager::show_hidesPopup_whenWidgetHasItsOwnToolTip()
{
    Fixture f;
    f.show("pen");
    QWidget own;
    own.setToolTip("own");
    QVERIFY(!f.manager().show("unknown", f.popup()->geometry().center(), &own));
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManager::show_freesElement_whenIndexGivesNoRoot()
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

void tst_HRManager::show_keepsElement_whenIndexGivesItAgain()
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

void tst_HRManager::tooltipPosition_addsOffset()
{
    Fixture f;
    QCOMPARE(f.manager().tooltipPosition(QPoint(5, 7), nullptr), QPoint(40, 37));
    f.host->context().set(tooltipOffsetKey, QSize(-1, 2));
    QCOMPARE(f.manager().tooltipPosition(QPoint(5, 7), nullptr), QPoint(4, 9));
}

void tst_HRManager::tooltipPosition_endsAtTheLimitsOfNumbers_data()
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

void tst_HRManager::tooltipPosition_endsAtTheLimitsOfNumbers()
{
    QFETCH(QPoint, pointer);
    QFETCH(QSize, offset);
    Fixture f({ { tooltipOffsetKey, offset } });
    QTEST(f.manager().tooltipPosition(pointer, nullptr), "position");
}

void tst_HRManager::retrieve_fillsLocation()
{
    Fixture f;
    QString path;
    int depth = 0;
    HRXmlElement *root = nullptr;
    HRXmlElement *element = f.manager().retrieve("pen", path, depth, root);
    QVERIFY(element);
    QCOMPARE(element->parent(), root);
    QCOMPARE(path, f.packages.path() + "/A.hintreels/Control");
    QCOMPARE(depth, 2);
    delete root;
    QVERIFY(!f.manager().retrieve("unknown", path, depth, root));
}

void tst_HRManager::retrieve_handsOverWhatTheIndexWrote_onAMissToo()
{
    // Counts its questions in what it is handed, and answers none.
    class Index : public HRIndex
    {
    public:
        using HRIndex::HRIndex;
        HRXmlElement *retrieve(const QString &, const QLocale &locale, QString &path, int &depth,
            HRXmlElement *&root) override
        {
            path += locale.name() + ' ';
            ++depth;
            root = &element;
            return nullptr;
        }
        HRXmlElement element;
    };

    HRContext context;
    context.set(localeKey, "de_DE");
    Index index(&context, {});
    RecordingHost host(context, {}, &index);
    QString path = "before ";
    int depth = 5;
    HRXmlElement *root = nullptr;
    QVERIFY(!host.manager()->retrieve("pen", path, depth, root));
    QCOMPARE(path, QString("before de_DE en_US "));
    QCOMPARE(depth, 7);
    QCOMPARE(root, &index.element);
}

void tst_HRManager::retrieve_assignsNothing_whenIndexDoesNot()
{
    HRContext context;
    RecordingHost host(context, {});
    HRXmlElement element;
    QString path = "before";
    int depth = 5;
    HRXmlElement *root = &element;
    QVERIFY(!host.manager()->retrieve("pen", path, depth, root));
    QCOMPARE(path, QString("before"));
    QCOMPARE(depth, 5);
    QCOMPARE(root, &element);
}

void tst_HRManager::reserve_refusesOtherWidgets()
{
    Fixture f;
    f.show("pen");
    HRWidget other(&f.manager(), nullptr, nullptr);
    QWidget *window = &other;
    QVERIFY(!f.manager().reserve(&other, window));
    QVERIFY(!f.manager().reserve(nullptr, window));
    QCOMPARE(window, &other);
    QVERIFY(f.host->windowRequests.isEmpty());
}

void tst_HRManager::reserve_makesNewPopup()
{
    Fixture f;
    QWidget hostWindow;
    f.host->window = &hostWindow;
    f.show("pen");
    const std::unique_ptr<HRWidget> detached(f.popup());
    QWidget *window = nullptr;

    QVERIFY(f.manager().reserve(detached.get(), window));

    QCOMPARE(window, &hostWindow);
    QCOMPARE(f.host->windowRequests, QList<HRWindowType>{ reservedPopupWindow });
    QVERIFY(f.popup());
    QVERIFY(f.popup() != detached.get());
    QVERIFY(!f.manager().reserve(detached.get(), window));
    QVERIFY(f.show("pen"));
}

void tst_HRManager::hintreelAttribute_readsShownContentFirst()
{
    Fixture f;
    f.show("pen");
    f.content()->setAttribute("title", "changed");
    f.host->messages.clear();
    QCOMPARE(f.manager().hintreelAttribute("pen", "title", "none"), QString("changed"));
    QCOMPARE(f.manager().hintreelAttribute("pen", "missing", "none"), QString("none"));
    QVERIFY(f.host->messages.isEmpty());
}

void tst_HRManager::hintreelAttribute_readsDetachedPopups()
{
    Fixture f;
    f.show("pen");
    f.content()->setAttribute("title", "detached");
    std::unique_ptr<HRWidget> detached(f.popup());
    QWidget *window = nullptr;
    f.manager().reserve(detached.get(), window);
    QCOMPARE(f.manager().hintreelAttribute("pen", "title", "none"), QString("detached"));
    detached.reset();
    QCOMPARE(f.manager().hintreelAttribute("pen", "title", "none"), QString("Pen"));
    f.manager().raise();
    f.manager().setStayOnTop(true);
}

void tst_HRManager::openExternalResource_obeysSettings_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<int>("forbiddenKey");
    QTest::addColumn<int>("type");
    QTest::newRow("URL") << "https://example.org" << int(allowUrlResourcesKey) << int(resourceUrl);
    QTest::newRow("path") << "help/index.html" << int(allowUrlResourcesKey) << int(resourcePath);
    QTest::newRow("name") << "intro" << int(allowNamedResourcesKey) << int(resourceName);
}

void tst_HRManager::openExternalResource_obeysSettings()
{
    QFETCH(QString, resource);
    QFETCH(int, forbiddenKey);
    QFETCH(int, type);
    Fixture f;
    QVERIFY(f.manager().openExternalResource(resource));
    const QList<QPair<int, QString>> expected{ { type, resource } };
    QCOMPARE(f.host->openedResources, expected);

    f.host->context().set(forbiddenKey, false);
    f.host->messages.clear();
    QVERIFY(!f.manager().openExternalResource(resource));
    QCOMPARE(f.host->openedResources, expected);
    QVERIFY(f.host->messages.isEmpty());
}

void tst_HRManager::eventFilter_showsOnToolTip()
{
    Fixture f({ { applicationFilterKey, true } });
    QLabel pen;
    pen.setObjectName("pen");
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(30, 30));
    QVERIFY(QCoreApplication::sendEvent(&pen, &event));
    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.popup()->referenceWidget(), &pen);
    QCOMPARE(f.popup()->pos(), QPoint(65, 60));
}

void tst_HRManager::eventFilter_hidesOnDeactivation()
{
    Fixture f({ { applicationFilterKey, true } });
    QEvent before(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &before);
    f.show("pen");
    QEvent event(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &event);
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManager::eventFilter_isNotInstalledByDefault()
{
    Fixture f;
    QLabel pen;
    pen.setObjectName("pen");
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(30, 30));
    QCoreApplication::sendEvent(&pen, &event);
    QVERIFY(!f.popup());
}

void tst_HRManager::mouseButtonEventFilter_hidesPopup_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hides");
    QTest::newRow("press") << int(QEvent::MouseButtonPress) << true;
    QTest::newRow("release") << int(QEvent::MouseButtonRelease) << true;
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick) << false;
    QTest::newRow("move") << int(QEvent::MouseMove) << false;
}

void tst_HRManager::mouseButtonEventFilter_hidesPopup()
{
    QFETCH(int, type);
    QFETCH(bool, hides);
    Fixture f({ { applicationFilterKey, true } });
    QWidget beside;
    f.show("pen");

    QObject object;
    sendMouse(&object, QEvent::Type(type), farAway);
    QVERIFY(f.popup()->isVisible());
    sendMouse(f.popup(), QEvent::Type(type), farAway);
    QVERIFY(f.popup()->isVisible());
    sendMouse(f.popup()->findChild<QWidget *>(), QEvent::Type(type), farAway);
    QVERIFY(f.popup()->isVisible());

    sendMouse(&beside, QEvent::Type(type), farAway);
    QCOMPARE(f.popup()->isVisible(), !hides);
}

void tst_HRManager::mouseButtonEventFilter_keepsPopupThatStaysOpen()
{
    Fixture f;
    QWidget beside;
    QMouseEvent event(
        QEvent::MouseButtonPress, QPointF(1, 1), farAway, Qt::LeftButton, Qt::LeftButton, {});
    QVERIFY(!f.manager().mouseButtonEventFilter(&beside, &event));
    f.show("pen");
    f.popup()->view()->setStayOpen(true);
    QVERIFY(!f.manager().mouseButtonEventFilter(&beside, &event));
    QVERIFY(f.popup()->isVisible());
    f.popup()->view()->setStayOpen(false);
    QVERIFY(!f.manager().mouseButtonEventFilter(nullptr, &event));
    QVERIFY(f.popup()->isVisible());
    QVERIFY(!f.manager().mouseButtonEventFilter(&beside, &event));
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManager::getScaledSize_truncates_data()
{
    QTest::addColumn<QVariant>("scale");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("expected");
    QTest::newRow("unscaled by default") << QVariant() << 7 << 7;
    QTest::newRow("up") << QVariant(1.5) << 11 << 16;
    QTest::newRow("towards zero") << QVariant(0.5) << -3 << -1;
    QTest::newRow("no scale") << QVariant(0.0) << 7 << 7;
    QTest::newRow("double") << QVariant(2.0) << 7 << 14;
    QTest::newRow("single precision") << QVariant(1.1) << 10 << 11;
    QTest::newRow("too large") << QVariant(1e30) << 7 << 2147483520;
    QTest::newRow("too small") << QVariant(-1e30) << 7 << -2147483520;
}

void tst_HRManager::getScaledSize_truncates()
{
    QFETCH(QVariant, scale);
    QFETCH(int, size);
    HRContext context;
    if (scale.isValid())
        context.set(scaleKey, scale);
    RecordingHost host(context, {});
    QTEST(host.manager()->getScaledSize(size), "expected");
}

void tst_HRManager::scale_isReadAtStartOnly()
{
    Fixture f({ { scaleKey, 2.5 } });
    f.host->context().set(scaleKey, 3.0);
    QCOMPARE(f.manager().realScaleValue(), 2.5F);
}

void tst_HRManager::translateString_readsPackageTranslation()
{
    Fixture f({ { localeKey, "de_DE" } });
    QCOMPARE(f.manager().translateString("Tip", "StandardUI"), QString("Tip"));
    f.show("pen");
    QCOMPARE(f.manager().translateString("Tip", "StandardUI"), QString("Tip"));

    QVERIFY(QDir(f.packages.path() + "/A.hintreels").mkdir("l10n"));
    QVERIFY(
        QFile::copy(TEST_TRANSLATION, f.packages.path() + "/A.hintreels/l10n/Hintreels_de_DE.qm"));
    QCOMPARE(f.manager().translateString("Tip", "StandardUI"), QString("Tipp"));
    QVERIFY(f.manager().translateString("unknown", "StandardUI").isNull());

    f.host->context().set(localeKey, "en_US");
    QCOMPARE(f.manager().translateString("Tip", "StandardUI"), QString("Tip"));
    f.host->context().set(translationBaseNameKey, "Other");
    f.host->context().set(localeKey, "de_DE");
    QCOMPARE(f.manager().translateString("Tip", "StandardUI"), QString("Tip"));
}

void tst_HRManager::destruction_deletesPopupLater()
{
    QPointer<HRWidget> popup;
    QPointer<HRXmlElement> content;
    {
        Fixture f;
        f.show("pen");
        popup = f.popup();
        content = f.content();
    }
    QVERIFY(popup);
    QVERIFY(!popup->manager());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!popup);
    QVERIFY(!content);
}

QTEST_MAIN(tst_HRManager)
#include "tst_HRManager.moc"
