// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/ManagerFixture.h"

using namespace Hintreels;

/// What a host sees of content without a user interface; HRRequiredUi.
class tst_RequiredUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void show_showsAnEmptyPopup_byDefault();
    void show_isNoHint_withoutUi_data();
    void show_isNoHint_withoutUi();
    void show_tellsOfTheRefusalAlone_whereUiMayNotBeUsed();
    void sceneOfAHost_isToldOf_withoutContent();
    void show_tellsOnce_untilAnotherUiWasLoaded();
    void show_takesAnotherHintsPopupAway();
    void show_isAHint_whenTheUiIsThereAgain();
    void show_survivesAHost_thatEndsWhenItIsTold_data();
    void show_survivesAHost_thatEndsWhenItIsTold();
};

namespace {

void addBrokenPackage(const TestPackages &packages, const QByteArray &attributes)
{
    packages.write("B.hintreels/ui/Broken.qml", "import QtQuick 2.15\nRectangle { width: }");
    packages.writeControl("B", "en.xml", "<hintreel key=\"saw\"/>", attributes);
}

} // namespace

void tst_RequiredUi::show_showsAnEmptyPopup_byDefault()
{
    ManagerFixture f;
    addBrokenPackage(f.packages, "search=\"Nowhere\"");
    f.manager().loadDataPath({ f.packages.path() });

    QVERIFY(f.show("saw"));

    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.host->takeMessages(messageWarning), QStringList());
}

void tst_RequiredUi::show_isNoHint_withoutUi_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("warning"); // %1 is the directory of the packages
    QTest::addColumn<QString>("described");
    const QString missing("Package \"B\" has no user interface \"%1\", looked for at: "
                          "%2/B.hintreels/%1");
    QTest::newRow("no search") << QByteArray() << missing.arg("ui/HintreelUI.qml", "%1")
                               << "Can't find :";
    QTest::newRow("search that names no package")
        << QByteArray("search=\"Standards\"") << missing.arg("ui/HintreelUI.qml", "%1")
        << "Can't find :";
    QTest::newRow("another file") << QByteArray("search=\"A\" ui=\"ui/Own.qml\"")
                                  << missing.arg("ui/Own.qml", "%1") + ", %1/A.hintreels/ui/Own.qml"
                                  << "Can't find :";
    QTest::newRow("broken file")
        << QByteArray("ui=\"ui/Broken.qml\"")
        << "Package \"B\" has a user interface that cannot be loaded: %1/B.hintreels/ui/Broken.qml"
        << "Error 2:";
}

void tst_RequiredUi::show_isNoHint_withoutUi()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QString, warning);
    QFETCH(QString, described);
    ManagerFixture f({ { requireUiKey, true } });
    addBrokenPackage(f.packages, attributes);
    f.manager().loadDataPath({ f.packages.path() });
    f.host->messages.clear();

    QVERIFY(!f.show("saw"));

    QVERIFY(!f.popup()->isVisible());
    QStringList told;
    for (const auto &[type, text] : qAsConst(f.host->messages)) {
        if (type == messageWarning || text.startsWith(described))
            told += text;
    }
    QCOMPARE(told.size(), 2);
    QCOMPARE(told.first(), warning.arg(f.packages.path()));
}

void tst_RequiredUi::show_tellsOfTheRefusalAlone_whereUiMayNotBeUsed()
{
    ManagerFixture f({ { requireUiKey, true }, { ownFilesOnlyKey, true } });
    f.packages.write("Outside.qml", rectangleQml(10, 10));
    f.packages.writeControl("B", "en.xml", "<hintreel key=\"saw\"/>", "ui=\"../Outside.qml\"");
    f.manager().loadDataPath({ f.packages.path() });
    f.host->messages.clear();

    QVERIFY(!f.show("saw"));

    const QStringList told = f.host->takeMessages(messageWarning);
    QCOMPARE(told.size(), 1);
    QVERIFY2(told[0].startsWith("Package \"B\" may not use ui \""), qPrintable(told[0]));
}

void tst_RequiredUi::sceneOfAHost_isToldOf_withoutContent()
{
    ManagerFixture f({ { requireUiKey, true } });
    const QString path = f.packages.write("Broken.qml", "Item {");
    HRView view(&f.manager(), nullptr);
    f.host->messages.clear();
    view.setSource(QUrl::fromLocalFile(path));
    QCOMPARE(f.host->takeMessages(messageWarning),
        QStringList("Package \"\" has a user interface that cannot be loaded: " + path));
}

void tst_RequiredUi::show_tellsOnce_untilAnotherUiWasLoaded()
{
    ManagerFixture f({ { requireUiKey, true } });
    addBrokenPackage(f.packages, QByteArray());
    f.manager().loadDataPath({ f.packages.path() });
    QVERIFY(!f.show("saw"));
    QVERIFY(!f.show("saw"));
    QCOMPARE(f.host->takeMessages(messageWarning).size(), 1);

    QVERIFY(f.show("pen"));
    QVERIFY(!f.show("saw"));

    QCOMPARE(f.host->takeMessages(messageWarning).size(), 1);
}

void tst_RequiredUi::show_takesAnotherHintsPopupAway()
{
    ManagerFixture f({ { requireUiKey, true } });
    addBrokenPackage(f.packages, QByteArray());
    f.manager().loadDataPath({ f.packages.path() });
    QVERIFY(f.show("pen"));
    QVERIFY(f.popup()->isVisible());

    QVERIFY(!f.show("saw"));

    QVERIFY(!f.popup()->isVisible());
    QVERIFY(f.show("pen"));
    QVERIFY(f.popup()->isVisible());
}

void tst_RequiredUi::show_isAHint_whenTheUiIsThereAgain()
{
    ManagerFixture f({ { requireUiKey, true } });
    addBrokenPackage(f.packages, QByteArray());
    f.manager().loadDataPath({ f.packages.path() });
    QVERIFY(!f.show("saw"));

    f.packages.write("B.hintreels/ui/HintreelUI.qml", rectangleQml(50, 50));

    QVERIFY(f.show("saw"));
    QVERIFY(f.popup()->isVisible());
}

void tst_RequiredUi::show_survivesAHost_thatEndsWhenItIsTold_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("broken") << QByteArray("ui=\"ui/Broken.qml\"");
}

void tst_RequiredUi::show_survivesAHost_thatEndsWhenItIsTold()
{
    QFETCH(QByteArray, attributes);
    const TestPackages packages;
    addBrokenPackage(packages, attributes);
    HRContext context;
    context.set(requireUiKey, true);
    struct Host : HRInterface
    {
        using HRInterface::HRInterface;
        void handleMessage(HRMessageType type, const QString &) override
        {
            if (type == messageWarning)
                delete this;
        }
    };
    const QPointer<HRInterface> host = new Host(context, { packages.path() });

    QVERIFY(!host->show("saw", QPoint(), nullptr));

    QVERIFY(!host);
}

QTEST_MAIN(tst_RequiredUi)
#include "tst_RequiredUi.moc"
