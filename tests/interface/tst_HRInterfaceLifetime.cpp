// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/RecordingHost.h"

#include <QApplication>
#include <QtTest>

#include <memory>

using namespace Hintreels;

// Makes and ends the application itself, as hosts with a global interface do around theirs.
class tst_HRInterfaceLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interface_mayOutliveTheApplication();
    void interface_mayComeBeforeTheApplication();
};

namespace {

struct Fixture
{
    Fixture()
    {
        packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
        packages.writeControl("A", "a.xml", "<hintreel key='pen'/>", "ui='ui/Popup.qml'");
        context.set(applicationFilterKey, true);
        context.set(alwaysShowToolTipsKey, true);
    }

    void startApplication()
    {
        application = std::make_unique<QApplication>(argumentCount, arguments);
    }
    void startHost()
    {
        host = std::make_unique<RecordingHost>(context, QStringList{ packages.path() });
    }

    int argumentCount = 1;
    char name[5] = "test";
    char *arguments[2] = { name, nullptr };
    TestPackages packages;
    HRContext context;
    std::unique_ptr<QApplication> application;
    std::unique_ptr<RecordingHost> host;
};

} // namespace

void tst_HRInterfaceLifetime::interface_mayOutliveTheApplication()
{
    Fixture f;
    f.startApplication();
    f.startHost();
    QVERIFY(f.host->show("pen", QPoint(10, 10), nullptr));
    QCoreApplication::processEvents();
    f.application.reset();
    QCOMPARE(f.host->keys(), QStringList("pen"));
    f.host.reset();
}

void tst_HRInterfaceLifetime::interface_mayComeBeforeTheApplication()
{
    Fixture f;
    f.startHost();
    QCOMPARE(f.host->keys(), QStringList("pen"));
    f.startApplication();
    QVERIFY(f.host->show("pen", QPoint(10, 10), nullptr));
    f.host.reset();
}

QTEST_APPLESS_MAIN(tst_HRInterfaceLifetime)
#include "tst_HRInterfaceLifetime.moc"
