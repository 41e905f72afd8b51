// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/MetaMembers.h"
#include "support/RecordingHost.h"
#include "ui/items/HRStyledRectangleComponent.h"
#include "ui/popup/HRView.h"

#include <QQuickItem>
#include <QtTest>

using namespace Hintreels;

namespace {

/// A view with a host behind it, and content of the package "Tools".
struct Fixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = {})
    {
        packages.writeControl("Tools", "en_US.xml", "<hintreel key='pen'/>");
        HRContext context;
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
        host->context().set(messageLevelKey, int(messageDebug));
        for (auto it = settings.begin(); it != settings.end(); ++it)
            host->context().set(it.key(), it.value());
        view = std::make_unique<HRView>(host->manager(), nullptr);
        root.setTagName("hintreels");
        content = new HRXmlElement(&root);
        content->setAttribute("HRPackagName", "Tools");
        view->setContent(content);
    }

    ~Fixture() { view->setContent(nullptr); }

    QString write(const QString &path, const QByteArray &text = "import QtQuick 2.15\nItem {}\n")
    {
        return packages.write("Tools.hintreels/" + path, text);
    }
    QStringList takeMessages() { return host->takeMessages(messageDebug); }

    TestPackages packages;
    std::unique_ptr<RecordingHost> host;
    std::unique_ptr<HRView> view;
    HRXmlElement root;
    HRXmlElement *content;
};

} // namespace

class tst_HRView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasMembersInOrder();
    void window_isFramelessAndFollowsRoot();
    void setStayOpen_emitsAlways();
    void setReserved_emitsOnChangeOnly();
    void categoryPath_looksNearby_data();
    void categoryPath_looksNearby();
    void categoryPath_readsSetting_withoutContent();
    void findComponent_takesFirstThatExists();
    void findComponent_returnsBase_whenNoneExists();
    void findResource_andResourceDirectory_readDifferentAttributes();
    void uiRootFilePath_followsStyle_data();
    void uiRootFilePath_followsStyle();
    void loadQML_keepsSceneOfSameFile();
    void loadQML_reportsMissingFile_andKeepsScene();
    void loadQML_reportsErrors();
    void loadQML_reportsWarnings();
    void handleWarnings_tellsAll_whenHostDeletesTheView();
    void resetState_emptiesStateOfRoot();
    void documentationAvailable_followsSetting();
    void setItemCursor_setsAndUnsets();
    void overrideCursors_goWithTheView();
    void services_forwardToManager();
    void services_answerWithoutManager();
    void destructor_freesContentWithItsRoot();
    void destructor_isSilent_whileSceneUsesContent();
    void content_isNull_whenSomebodyDeletedIt();
};

void tst_HRView::metaObject_hasMembersInOrder()
{
    const QMetaObject &meta = HRView::staticMetaObject;
    QCOMPARE(membersOf(meta),
        (QByteArrayList{ "stayOpenChanged()", "reservedChanged()", "contentChanged()",
            "contentSizeChanged()", "documentationAvailableChanged()", "resourceDirectoryChanged()",
            "handleWarnings(QList<QQmlError>)", "statusHasChanged(QQuickView::Status)",
            "loadQML(QString)", "resetState()", "managerContextSettingDidChange(HRContextKey)",
            "setItemCursor(QQuickPaintedItem*,QString,QString)", "debugLog(QString)",
            "openExternalResource(QString)", "interpolate(QString)", "setOverrideCursor(QString)",
            "restoreOverrideCursor()", "translate(QString,QString)", "findResource(QString)",
            "getScaledSize(int)", "stayOpen", "reserved", "content", "documentationAvailable",
            "resourceDirectory", "source" }));
}

void tst_HRView::window_isFramelessAndFollowsRoot()
{
    const HRView view(nullptr, nullptr);
    QCOMPARE(view.flags(), Qt::WindowFlags(Qt::FramelessWindowHint));
    QCOMPARE(view.resizeMode(), QQuickView::SizeViewToRootObject);
    QVERIFY(!view.content());
    QVERIFY(!view.stayOpen());
    QVERIFY(!view.reserved());
}

void tst_HRView::setStayOpen_emitsAlways()
{
    HRView view(nullptr, nullptr);
    QSignalSpy changed(&view, &HRView::stayOpenChanged);
    view.setStayOpen(true);
    view.setStayOpen(true);
    QCOMPARE(changed.count(), 2);
    QVERIFY(view.stayOpen());
}

void tst_HRView::setReserved_emitsOnChangeOnly()
{
    HRView view(nullptr, nullptr);
    QSignalSpy changed(&view, &HRView::reservedChanged);
    view.setReserved(true);
    view.setReserved(true);
    QCOMPARE(changed.count(), 1);
    QVERIFY(view.reserved());
}

void tst_HRView::categoryPath_looksNearby_data()
{
    QTest::addColumn<QVariant>("own");
    QTest::addColumn<QVariant>("parents");
    QTest::addColumn<QString>("path");
    const QVariant absent;
    QTest::newRow("own attribute") << QVariant("own") << QVariant("parent") << "own";
    QTest::newRow("parent's attribute") << absent << QVariant("parent") << "parent";
    QTest::newRow("neither") << absent << absent << "setting";
    QTest::newRow("an empty own one hides the parent's")
        << QVariant("") << QVariant("parent") << "setting";
    QTest::newRow("an empty one of the parent") << absent << QVariant("") << "setting";
}

void tst_HRView::categoryPath_looksNearby()
{
    QFETCH(QVariant, own);
    QFETCH(QVariant, parents);
    Fixture f({ { uiFileKey, "setting" } });
    HRXmlElement grandparent;
    grandparent.setAttribute("ui", "grandparent");
    f.root.setParent(&grandparent);
    if (own.isValid())
        f.content->setAttribute("ui", own.toString());
    if (parents.isValid())
        f.root.setAttribute("ui", parents.toString());

    QTEST(f.view->categoryPath("ui", "default", uiFileKey), "path");

    f.root.setParent(nullptr);
}

void tst_HRView::categoryPath_readsSetting_withoutContent()
{
    Fixture f({ { uiFileKey, "setting" } });
    f.view->setContent(nullptr);
    QCOMPARE(f.view->categoryPath("ui", "default", uiFileKey), QString("setting"));
    QCOMPARE(f.view->categoryPath("ui", "default", simpleUiFileKey), QString("default"));
    QCOMPARE(f.view->findComponent("ui", uiFileKey, "default", "x.qml"), QString("setting"));
}

void tst_HRView::findComponent_takesFirstThatExists()
{
    TestPackages shared;
    const QString sharedFile = shared.write("l10n/x.qm", "shared");
    Fixture f({ { componentDirectoryKey, shared.path() } });
    QCOMPARE(
        f.view->findComponent("l10n_name", translationDirectoryKey, "l10n", "x.qm"), sharedFile);
    const QString own = f.write("l10n/x.qm");
    QCOMPARE(f.view->findComponent("l10n_name", translationDirectoryKey, "l10n", "x.qm"), own);
    QCOMPARE(f.view->findComponent("l10n_name", translationDirectoryKey, "l10n/x.qm", ""), own);
}

void tst_HRView::findComponent_returnsBase_whenNoneExists()
{
    Fixture f;
    f.content->setAttribute("ui", "custom/My.qml");
    QCOMPARE(f.view->uiRootFilePath(), QString("custom/My.qml"));
    const QString file = f.write("custom/My.qml");
    QCOMPARE(f.view->uiRootFilePath(), file);
}

void tst_HRView::findResource_andResourceDirectory_readDifferentAttributes()
{
    Fixture f;
    f.content->setAttribute("resources", "Pictures");
    f.content->setAttribute("resource", "Named");
    const QString file = f.write("Pictures/a.png", "a");
    QCOMPARE(f.view->findResource("a.png"), file);
    QCOMPARE(f.view->findResource("b.png"), QString("Pictures"));
    QCOMPARE(f.view->resourceDirectoryPath(), QString("Named"));
}

void tst_HRView::uiRootFilePath_followsStyle_data()
{
    QTest::addColumn<bool>("simple");
    QTest::addColumn<QString>("file");
    QTest::newRow("full") << false << "ui/HintreelUI.qml";
    QTest::newRow("simple") << true << "ui/SimpleTooltip.qml";
}

void tst_HRView::uiRootFilePath_followsStyle()
{
    QFETCH(bool, simple);
    Fixture f({ { simpleTooltipKey, simple } });
    QTEST(f.view->uiRootFilePath(), "file");
    f.content->setAttribute(simple ? "simple" : "ui", "mine.qml");
    QCOMPARE(f.view->uiRootFilePath(), QString("mine.qml"));
}

void tst_HRView::loadQML_keepsSceneOfSameFile()
{
    Fixture f;
    const QString first = f.write("a.qml");
    const QString second = f.write("b.qml");
    f.view->loadQML(first);
    const QPointer<QQuickItem> scene = f.view->rootObject();
    QVERIFY(scene);
    f.view->loadQML(first);
    QCOMPARE(f.view->rootObject(), scene.data());
    f.view->loadQML(second);
    QVERIFY(!scene);
    QCOMPARE(f.view->source(), QUrl::fromLocalFile(second));
}

void tst_HRView::loadQML_reportsMissingFile_andKeepsScene()
{
    Fixture f;
    f.view->loadQML(f.write("a.qml"));
    QQuickItem *scene = f.view->rootObject();
    f.view->loadQML("/no/such.qml");
    QCOMPARE(f.takeMessages(), QStringList{ "Can't find :/no/such.qml" });
    QCOMPARE(f.view->rootObject(), scene);
}

void tst_HRView::loadQML_reportsErrors()
{
    Fixture f;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Expected token"));
    f.view->loadQML(f.write("a.qml", "import QtQuick 2.15\nItem { width: }\n"));
    const QStringList messages = f.takeMessages();
    QVERIFY2(messages.value(0).startsWith("Error 2:15:"), qPrintable(messages.join('\n')));
}

void tst_HRView::loadQML_reportsWarnings()
{
    Fixture f;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("ReferenceError"));
    f.view->loadQML(f.write("a.qml", "import QtQuick 2.15\nItem { width: nowhere }\n"));
    QTRY_VERIFY(!f.host->messages.isEmpty());
    // Qt 5 names no column for these.
    const QString column = QT_VERSION_MAJOR >= 6 ? "8" : "-1";
    QCOMPARE(f.takeMessages(),
        QStringList{ "QML Warning 2:" + column + ":ReferenceError: nowhere is not defined" });
}

void tst_HRView::handleWarnings_tellsAll_whenHostDeletesTheView()
{
    class DeletingHost : public RecordingHost
    {
    public:
        using RecordingHost::RecordingHost;
        void handleMessage(HRMessageType type, const QString &message) override
        {
            RecordingHost::handleMessage(type, message);
            delete view;
        }
        QPointer<HRView> view;
    };

    HRContext context;
    context.set(messageLevelKey, int(messageDebug));
    DeletingHost host(context, {});
    host.view = new HRView(host.manager(), nullptr);
    QQmlError first;
    first.setDescription("first");
    QQmlError second;
    second.setDescription("second");

    host.view->handleWarnings({ first, second });

    QVERIFY(!host.view);
    const QStringList messages = host.takeMessages(messageDebug);
    QCOMPARE(messages.size(), 2);
    QVERIFY2(messages.last().endsWith("second"), qPrintable(messages.last()));
}

void tst_HRView::resetState_emptiesStateOfRoot()
{
    Fixture f;
    f.view->resetState();
    f.view->loadQML(f.write(
        "a.qml", "import QtQuick 2.15\nItem { state: 'open'; states: State { name: 'open' } }\n"));
    QCOMPARE(f.view->rootObject()->state(), QString("open"));
    f.view->resetState();
    QCOMPARE(f.view->rootObject()->state(), QString());
}

void tst_HRView::documentationAvailable_followsSetting()
{
    Fixture f;
    QSignalSpy changed(f.view.get(), &HRView::documentationAvailableChanged);
    QVERIFY(!f.view->documentationAvailable());
    f.host->context().set(allowNamedResourcesKey, true);
    QVERIFY(f.view->documentationAvailable());
    QCOMPARE(changed.count(), 1);
    f.host->context().set(allowUrlResourcesKey, true);
    QCOMPARE(changed.count(), 1);
}

void tst_HRView::setItemCursor_setsAndUnsets()
{
    HRView view(nullptr, nullptr);
    HRStyledRectangleComponent item;
    view.setItemCursor(&item, "IBeamCursor", "x");
    QCOMPARE(item.cursor().shape(), Qt::IBeamCursor);
    view.setItemCursor(&item, "Wait", "x");
    QCOMPARE(item.cursor().shape(), Qt::ArrowCursor);
    view.setItemCursor(&item, "PointingHandCursor", "x");
    view.setItemCursor(&item, "", "x");
    QCOMPARE(item.cursor().shape(), Qt::ArrowCursor);
    view.setItemCursor(nullptr, "IBeamCursor", "x");
}

void tst_HRView::overrideCursors_goWithTheView()
{
    auto view = std::make_unique<HRView>(nullptr, nullptr);
    view->setOverrideCursor("PointingHandCursor");
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::PointingHandCursor);
    view->restoreOverrideCursor();
    QVERIFY(!QGuiApplication::overrideCursor());
    view->setOverrideCursor("");
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    view.reset();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_HRView::services_forwardToManager()
{
    Fixture f;
    f.host->setGlobalProperty("name", "value");
    f.view->debugLog("a line");
    f.view->openExternalResource("topic");
    QCOMPARE(f.takeMessages(), QStringList{ "a line" });
    QCOMPARE(f.host->openedResources, (QList<QPair<int, QString>>{ { resourceName, "topic" } }));
    QCOMPARE(f.view->interpolate("a %(name)s"), QString("a value"));
    QCOMPARE(f.view->translate("text", "context"), QString("text"));
    QCOMPARE(f.view->getScaledSize(11), 11);
}

void tst_HRView::services_answerWithoutManager()
{
    HRXmlElement content;
    auto *view = new HRView(nullptr, nullptr);
    view->setContent(&content);
    view->debugLog("a line");
    view->openExternalResource("topic");
    QCOMPARE(view->interpolate("a %(name)s"), QString("a %(name)s"));
    QCOMPARE(view->translate("text", "context"), QString("text"));
    QCOMPARE(view->getScaledSize(11), 11);
    QCOMPARE(view->uiRootFilePath(), QString("ui/HintreelUI.qml"));
    QVERIFY(!view->documentationAvailable());
    view->setContent(nullptr);
    delete view;
}

void tst_HRView::destructor_freesContentWithItsRoot()
{
    const QPointer<HRXmlElement> root = new HRXmlElement;
    root->setTagName("hintreels");
    auto *view = new HRView(nullptr, nullptr);
    view->setContent(new HRXmlElement(root));
    delete view;
    QVERIFY(!root);
}

void tst_HRView::destructor_isSilent_whileSceneUsesContent()
{
    Fixture f;
    const QPointer<HRXmlElement> content = new HRXmlElement;
    f.view->setContent(content);
    f.view->rootContext()->setContextProperty("hintreel", content);
    f.view->loadQML(f.write("a.qml",
        "import QtQuick 2.15\nItem { property string title: hintreel.attribute('title') }\n"));
    f.view = std::make_unique<HRView>(f.host->manager(), nullptr);
    QVERIFY(!content);
    QCOMPARE(f.takeMessages(), QStringList());
}

void tst_HRView::content_isNull_whenSomebodyDeletedIt()
{
    HRView view(nullptr, nullptr);
    auto *content = new HRXmlElement;
    view.setContent(content);
    delete content;
    QVERIFY(!view.content());
    QCOMPARE(view.resourceDirectoryPath(), QString("Resources"));
}

QTEST_MAIN(tst_HRView)
#include "tst_HRView.moc"
