// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndex.h"
#include "manager/ManagerFixture.h"

using namespace Hintreels;

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
    void retrieve_fillsLocation();
    void retrieve_handsOverWhatTheIndexWrote_onAMissToo();
    void retrieve_assignsNothing_whenIndexDoesNot();
    void reserve_refusesOtherWidgets();
    void reserve_makesNewPopup();
    void hintreelAttribute_readsShownContentFirst();
    void hintreelAttribute_readsReservedPopups();
    void openExternalResource_obeysSettings_data();
    void openExternalResource_obeysSettings();
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
        ManagerFixture f({ { alwaysShowToolTipsKey, true } });
        QVERIFY(window.testAttribute(Qt::WA_AlwaysShowToolTips));
    }
    QVERIFY(!window.testAttribute(Qt::WA_AlwaysShowToolTips));
    {
        ManagerFixture f;
        QVERIFY(!window.testAttribute(Qt::WA_AlwaysShowToolTips));
        window.setAttribute(Qt::WA_AlwaysShowToolTips);
    }
    QVERIFY(!window.testAttribute(Qt::WA_AlwaysShowToolTips));
}

void tst_HRManager::construction_copiesContext()
{
    ManagerFixture f({ { localeKey, "de_DE" } });
    f.context.set(localeKey, "en_US");
    QVERIFY(f.show("pen"));
    QCOMPARE(f.title(), QString("Stift"));
    QCOMPARE(f.manager().searchPaths(), QStringList{ f.packages.path() });
}

void tst_HRManager::loadDataPath_addsPackagesLater()
{
    ManagerFixture f;
    const TestPackages more;
    more.writeControl("B", "b.xml", "<hintreel key=\"new\" title=\"New\"/>");
    QVERIFY(!f.manager().keys().contains("new"));

    f.manager().loadDataPath({ more.path() });

    QVERIFY(f.manager().keys().contains("new"));
    QCOMPARE(f.manager().searchPaths(), QStringList{ f.packages.path() });
}

void tst_HRManager::indexControFile_reachesTheIndex()
{
    ManagerFixture f;
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

void tst_HRManager::retrieve_fillsLocation()
{
    ManagerFixture f;
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
    ManagerFixture f;
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
    ManagerFixture f;
    QWidget hostWindow;
    f.host->window = &hostWindow;
    f.show("pen");
    const std::unique_ptr<HRWidget> reserved(f.popup());
    QWidget *window = nullptr;

    QVERIFY(f.manager().reserve(reserved.get(), window));

    QCOMPARE(window, &hostWindow);
    QCOMPARE(f.host->windowRequests, QList<HRWindowType>{ reservedPopupWindow });
    QVERIFY(f.popup());
    QVERIFY(f.popup() != reserved.get());
    QVERIFY(!f.manager().reserve(reserved.get(), window));
    QVERIFY(f.show("pen"));
}

void tst_HRManager::hintreelAttribute_readsShownContentFirst()
{
    ManagerFixture f;
    f.show("pen");
    f.content()->setAttribute("title", "changed");
    f.host->messages.clear();
    QCOMPARE(f.manager().hintreelAttribute("pen", "title", "none"), QString("changed"));
    QCOMPARE(f.manager().hintreelAttribute("pen", "missing", "none"), QString("none"));
    QVERIFY(f.host->messages.isEmpty());
}

void tst_HRManager::hintreelAttribute_readsReservedPopups()
{
    ManagerFixture f;
    f.show("pen");
    f.content()->setAttribute("title", "reserved");
    std::unique_ptr<HRWidget> reserved(f.popup());
    QWidget *window = nullptr;
    f.manager().reserve(reserved.get(), window);
    QCOMPARE(f.manager().hintreelAttribute("pen", "title", "none"), QString("reserved"));
    reserved.reset();
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
    ManagerFixture f;
    QVERIFY(f.manager().openExternalResource(resource));
    const QList<QPair<int, QString>> expected{ { type, resource } };
    QCOMPARE(f.host->openedResources, expected);

    f.host->context().set(forbiddenKey, false);
    f.host->messages.clear();
    QVERIFY(!f.manager().openExternalResource(resource));
    QCOMPARE(f.host->openedResources, expected);
    QVERIFY(f.host->messages.isEmpty());
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
    ManagerFixture f({ { scaleKey, 2.5 } });
    f.host->context().set(scaleKey, 3.0);
    QCOMPARE(f.manager().realScaleValue(), 2.5F);
}

void tst_HRManager::translateString_readsPackageTranslation()
{
    ManagerFixture f({ { localeKey, "de_DE" } });
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
        ManagerFixture f;
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
