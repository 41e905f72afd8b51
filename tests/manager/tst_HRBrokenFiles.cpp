// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRBrokenFiles_p.h"

#include "manager/ManagerFixture.h"
#include "support/MessageGuard.h"

using namespace Hintreels;

class tst_HRBrokenFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookUp_isSilent_byDefault();
    void lookUp_tellsFileAndLine_onceForEachChange();
    void lookUp_tellsOfTheFallbackKeysFile();
    void lookUp_survivesAHost_thatEndsWhenItIsTold();
    void tell_reportsEachFile();
};

namespace {

const QByteArray broken = "<hintreels locale='en_US'>\n<hintreel key='saw'>\n</hintreels>";

QStringList warnings(ManagerFixture &f)
{
    return f.host->takeMessages(messageWarning);
}

/// What the parser says by itself stays.
QStringList parserMessages(MessageGuard &guard)
{
    QStringList messages = guard.takeMessages();
    messages.removeDuplicates();
    return messages;
}

} // namespace

void tst_HRBrokenFiles::lookUp_isSilent_byDefault()
{
    MessageGuard messages;
    ManagerFixture f;
    f.packages.write("A.hintreels/Control/saw.xml", broken);
    f.manager().loadDataPath({ f.packages.path() });

    QVERIFY(!f.show("saw"));

    QCOMPARE(parserMessages(messages), QStringList{ "Fatal error at 3,12 : tag mismatch" });
    QCOMPARE(warnings(f), QStringList());
}

void tst_HRBrokenFiles::lookUp_tellsFileAndLine_onceForEachChange()
{
    MessageGuard messages;
    ManagerFixture f({ { reportBrokenFilesKey, true } });
    const QString file = f.packages.write("A.hintreels/Control/saw.xml", broken);
    f.manager().loadDataPath({ f.packages.path() });
    QCOMPARE(warnings(f), QStringList()); // nothing is read before it is needed

    QVERIFY(!f.show("saw"));
    QVERIFY(!f.show("saw"));
    QCOMPARE(warnings(f), QStringList{ file + ":3: cannot read hints: tag mismatch" });

    f.packages.write("A.hintreels/Control/saw.xml", "\n\n" + broken);
    QVERIFY(!f.show("saw"));
    QCOMPARE(warnings(f), QStringList{ file + ":5: cannot read hints: tag mismatch" });

    f.packages.writeControl(
        "A", "saw.xml", "<hintreel key='saw'/>", "locale='en_US'" + uiAttribute);
    QVERIFY(f.show("saw"));
    QCOMPARE(warnings(f), QStringList());
    parserMessages(messages);
}

void tst_HRBrokenFiles::lookUp_tellsOfTheFallbackKeysFile()
{
    MessageGuard messages;
    ManagerFixture f({ { reportBrokenFilesKey, true }, { fallbackKeyKey, "saw" } });
    f.packages.write("A.hintreels/Control/saw.xml", broken);
    f.manager().loadDataPath({ f.packages.path() });

    QVERIFY(!f.show("nobody"));

    QCOMPARE(warnings(f).size(), 1);
    parserMessages(messages);
}

void tst_HRBrokenFiles::lookUp_survivesAHost_thatEndsWhenItIsTold()
{
    MessageGuard messages;
    const TestPackages packages;
    packages.write("A.hintreels/Control/saw.xml", broken);
    HRContext context;
    context.set(reportBrokenFilesKey, true);
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
    parserMessages(messages);
}

void tst_HRBrokenFiles::tell_reportsEachFile()
{
    const TestPackages packages;
    const QString a = packages.write("a.xml", "");
    const QString b = packages.write("b.xml", "");
    QStringList told;
    HRBrokenFiles files([&](const QString &warning) { told += warning; });

    files.tell({ { a, { 1, "one" } }, { b, { 2, "two" } } });
    files.tell({ { b, { 2, "two" } }, { ":/c.xml", { 3, "three" } } });

    QCOMPARE(told,
        QStringList({ a + ":1: cannot read hints: one", b + ":2: cannot read hints: two",
            ":/c.xml:3: cannot read hints: three" }));
}

QTEST_MAIN(tst_HRBrokenFiles)
#include "tst_HRBrokenFiles.moc"
