// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"
#include "ui/popup/HRWidget.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMouseEvent>
#include <QWidget>
#include <QtTest>

using namespace Hintreels;

class tst_HRInterface : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void openUrl(const QUrl &url) { m_openedUrls.append(url); }

private Q_SLOTS:
    void handleMessage_writesLabelAndText_data();
    void handleMessage_writesLabelAndText();
    void construction_writesMessagesByDefaultHandler();
    void keyForObject_isObjectName();
    void createWindow_isNone();
    void shortCutForObject_keepsShortcut();
    void openExternalResource_opensUrlsOnly_data();
    void openExternalResource_opensUrlsOnly();
    void context_isTheManagersCopy();
    void keys_areThoseOfTheIndex();
    void loadPackage_addsOnePackage();
    void eventFilters_hideThePopup_andKeepNothingBack();
    void interpolate_takesValuesOfACaller();
    void setGlobalProperty_reachesInterpolation();
    void translateString_isTheManagers();
    void manager_isGone_whenInterfaceIsDeleted();

private:
    QList<QUrl> m_openedUrls;
};

void tst_HRInterface::handleMessage_writesLabelAndText_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("line");
    QTest::newRow("error") << 100 << "ERROR:a \"text\" %1 ä";
    QTest::newRow("warning") << 200 << "Warning:a \"text\" %1 ä";
    QTest::newRow("information") << 300 << "Information:a \"text\" %1 ä";
    QTest::newRow("debug") << 400 << "DEBUG:a \"text\" %1 ä";
    QTest::newRow("other") << 250 << "250:a \"text\" %1 ä";
}

void tst_HRInterface::handleMessage_writesLabelAndText()
{
    QFETCH(int, type);
    HRContext context;
    HRInterface interface(context, {});
    MessageGuard guard;
    interface.handleMessage(HRMessageType(type), "a \"text\" %1 ä");
    QTEST(guard.takeMessages().join('\n'), "line");
}

void tst_HRInterface::construction_writesMessagesByDefaultHandler()
{
    class Host : public HRInterface
    {
    public:
        using HRInterface::HRInterface;
        void handleMessage(HRMessageType, const QString &) override { ++calls; }
        int calls = 0;
    };

    HRContext context;
    context.set(messageLevelKey, int(messageInformation));
    MessageGuard guard;
    const Host host(context, {});

    QCOMPARE(host.calls, 0);
    const QStringList messages = guard.takeMessages();
    QCOMPARE(messages.size(), 1);
    const QRegularExpression expected("^Information:Indexed packages in [0-9.e-]+ seconds$");
    QVERIFY2(expected.match(messages.first()).hasMatch(), qPrintable(messages.first()));
}

void tst_HRInterface::keyForObject_isObjectName()
{
    HRContext context;
    HRInterface interface(context, {});
    QObject object;
    QCOMPARE(interface.keyForObject(nullptr), QString());
    QCOMPARE(interface.keyForObject(&object), QString());
    object.setObjectName("pen");
    QCOMPARE(interface.keyForObject(&object), QString("pen"));
}

void tst_HRInterface::createWindow_isNone()
{
    HRContext context;
    HRInterface interface(context, {});
    QCOMPARE(interface.createWindow(reservedPopupWindow), nullptr);
}

void tst_HRInterface::shortCutForObject_keepsShortcut()
{
    HRContext context;
    HRInterface interface(context, {});
    QCOMPARE(interface.shortCutForObject("key", this, "Ctrl+P"), QString("Ctrl+P"));
}

void tst_HRInterface::openExternalResource_opensUrlsOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("opened");
    QTest::newRow("name") << int(resourceName) << false;
    QTest::newRow("URL") << int(resourceUrl) << true;
    QTest::newRow("path") << int(resourcePath) << false;
}

void tst_HRInterface::openExternalResource_opensUrlsOnly()
{
    QFETCH(int, type);
    QFETCH(bool, opened);
    HRContext context;
    HRInterface interface(context, {});
    m_openedUrls.clear();
    QDesktopServices::setUrlHandler("hintreels-test", this, "openUrl");

    const bool result
        = interface.openExternalResource(HRExternalResourceType(type), "hintreels-test:a b");

    QDesktopServices::unsetUrlHandler("hintreels-test");
    QCOMPARE(result, opened);
    QCOMPARE(m_openedUrls.size(), opened ? 1 : 0);
}

void tst_HRInterface::context_isTheManagersCopy()
{
    HRContext context;
    context.set(localeKey, "de_DE");
    HRInterface interface(context, {});
    context.set(localeKey, "fr_FR");
    QCOMPARE(interface.context().get(localeKey, {}).toString(), QString("de_DE"));
    QCOMPARE(&interface.context(), &interface.manager()->context());
    QCOMPARE(&std::as_const(interface).context(), &interface.context());
}

void tst_HRInterface::keys_areThoseOfTheIndex()
{
    const TestPackages packages;
    packages.writeControl("A", "a.xml", "<hintreel key=\"pen\" title=\"Pen\"/>");
    HRContext context;
    HRInterface interface(context, { packages.path() });
    QCOMPARE(interface.keys(), QStringList{ "pen" });
    QCOMPARE(interface.hintreelAttribute("pen", "title", "none"), QString("Pen"));
    QCOMPARE(interface.hintreelAttribute("pen", "other", "none"), QString("none"));
    QCOMPARE(interface.hintreelAttribute("ink", "title", "none"), QString("none"));
}

void tst_HRInterface::loadPackage_addsOnePackage()
{
    const TestPackages packages;
    packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    packages.writeControl("B", "b.xml", "<hintreel key='line'/>");
    HRContext context;
    HRInterface interface(context, {});
    interface.manager()->loadPackage(QFileInfo(packages.path() + "/B.hintreels"));
    QCOMPARE(interface.keys(), QStringList{ "line" });
}

void tst_HRInterface::eventFilters_hideThePopup_andKeepNothingBack()
{
    const TestPackages packages;
    packages.writeControl("A", "a.xml", "<hintreel key='pen'/>", "ui='Ui.qml'");
    packages.write("A.hintreels/Ui.qml", "import QtQuick 2.15\nItem { width: 50; height: 50 }\n");
    HRContext context;
    HRInterface interface(context, { packages.path() });
    QWidget watched;
    const QPoint faraway(100'000, 100'000);
    QMouseEvent move(QEvent::MouseMove, QPointF(), faraway, Qt::NoButton, {}, {});
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(), faraway, Qt::LeftButton, {}, {});
    QVERIFY(!interface.mouseMoveEventFilter(&watched, &move));
    QVERIFY(interface.show("pen", QPoint(50, 50), nullptr));
    QVERIFY(!interface.mouseMoveEventFilter(&watched, &move));
    QTRY_VERIFY(!interface.manager()->widget()->isVisible());
    QVERIFY(interface.show("pen", QPoint(50, 50), nullptr));
    QVERIFY(!interface.mouseButtonEventFilter(&watched, &press));
    QVERIFY(!interface.manager()->widget()->isVisible());
}

void tst_HRInterface::interpolate_takesValuesOfACaller()
{
    HRContext context;
    HRInterface interface(context, {});
    interface.setGlobalProperty("key", "F1");
    QCOMPARE(interface.manager()->interpolate("%(key)s or %(other)s", { { "other", "F2" } }),
        QString("%(key)s or F2"));
}

void tst_HRInterface::setGlobalProperty_reachesInterpolation()
{
    HRContext context;
    HRInterface interface(context, {});
    interface.setGlobalProperty("key", "F1");
    QCOMPARE(interface.manager()->interpolate("Press %(key)s now"), QString("Press F1 now"));
}

void tst_HRInterface::translateString_isTheManagers()
{
    HRContext context;
    HRInterface interface(context, {});
    QCOMPARE(interface.translateString("text", "context"), QString("text"));
}

void tst_HRInterface::manager_isGone_whenInterfaceIsDeleted()
{
    HRContext context;
    auto interface = std::make_unique<HRInterface>(context, QStringList());
    const QPointer<HRManager> manager = interface->manager();
    QCOMPARE(manager->interface(), interface.get());
    interface.reset();
    QVERIFY(!manager);
}

QTEST_MAIN(tst_HRInterface)
#include "tst_HRInterface.moc"
