// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/IndexFixture.h"

#include "index/HRIndex_p.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"
#include "support/MessageGuard.h"
#include "ui/popup/sceneReach_p.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <functional>

using namespace Hintreels;

/// What indexing a whole listing does beyond indexing its files one by one.
class tst_HRIndexListing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_areHandedToTheOverride_inTheirOrder();
    void files_arePassedOver_whereTheyAreNotWanted();
    void files_arePassedOver_whereTheyAreGone_data();
    void files_arePassedOver_whereTheyAreGone();
    void stamps_areThoseOfTheFiles_data();
    void stamps_areThoseOfTheFiles();
    void listing_knowsWhatItsFilesKnow_data();
    void listing_knowsWhatItsFilesKnow();
    void listings_mayNest();
    void package_isMapped_afterItsSuffixHasChanged();
    void resources_areIndexed();
};

namespace {

bool wantAll(const QString &, const std::optional<HRFileStamp> &)
{
    return true;
}

void indexControl(
    HRIndex &index, const QString &package, const HRIndexPrivate::Wanted &isWanted = wantAll)
{
    const HRDirectoryListing listing(package + "/Control/", ".xml");
    HRIndexPrivate::of(index).indexListing(listing, package, isWanted);
}

/// Records what it is called with, and then does more.
class OverridingIndex : public HRIndex
{
public:
    using HRIndex::HRIndex;

    void indexControlFile(const QString &filePath, const QString &packagePath) override
    {
        calls.append(filePath + " in " + packagePath);
        if (before)
            before(filePath);
        HRIndex::indexControlFile(filePath, packagePath);
    }

    std::function<void(const QString &filePath)> before;
    QStringList calls;
};

struct Fixture
{
    Fixture() { context.set(persistentDirectoryKey, packages.path()); }

    QString package(const QString &name) const
    {
        return packages.path() + '/' + name + ".hintreels";
    }

    QString file(const QString &name, const QString &inside = "A") const
    {
        return package(inside) + "/Control/" + name;
    }

    std::unique_ptr<HRIndex> makeIndex(const QString &kind)
    {
        context.set(applicationNameKey, kind);
        context.set(indexFileNameKey, kind);
        context.set(indexConnectionKey, kind);
        std::unique_ptr<HRIndex> made;
        if (kind == "HRSQLiteIndex")
            made = std::make_unique<HRSQLiteIndex>(&context, QStringList());
        else if (kind == "HRPackageIndex")
            made = std::make_unique<HRPackageIndex>(&context, QStringList());
        else
            made = std::make_unique<HRIndex>(&context, QStringList());
        if (!made->open())
            qFatal("the index does not open");
        return made;
    }

    MessageGuard messages;
    TestPackages packages;
    HRContext context;
    OverridingIndex index{ &context, {} };
};

void addKinds()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : { "HRIndex", "HRSQLiteIndex", "HRPackageIndex" })
        QTest::newRow(kind) << kind;
}

} // namespace

void tst_HRIndexListing::files_areHandedToTheOverride_inTheirOrder()
{
    Fixture f;
    for (const char *name : { "b.xml", "A.xml", "c.xml" })
        f.packages.writeControl("A", name, "<hintreel key='pen'/>");
    indexControl(f.index, f.package("A"));
    const QString place = " in " + f.package("A");
    QCOMPARE(f.index.calls,
        QStringList({ f.file("A.xml") + place, f.file("b.xml") + place, f.file("c.xml") + place }));
}

void tst_HRIndexListing::files_arePassedOver_whereTheyAreNotWanted()
{
    Fixture f;
    f.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    f.packages.writeControl("A", "b.xml", "<hintreel key='line'/>");
    indexControl(f.index, f.package("A"),
        [](const QString &path, const auto &) { return path.endsWith("b.xml"); });
    QCOMPARE(f.index.keys(), QStringList("line"));
    QCOMPARE(f.index.calls.size(), 1);
}

void tst_HRIndexListing::files_arePassedOver_whereTheyAreGone_data()
{
    addKinds();
}

void tst_HRIndexListing::files_arePassedOver_whereTheyAreGone()
{
    QFETCH(QString, kind);
    Fixture f;
    f.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    const QString gone = f.packages.writeControl("A", "b.xml", "<hintreel key='line'/>");
    const auto index = f.makeIndex(kind);
    const HRDirectoryListing listing(f.package("A") + "/Control/", ".xml");
    QVERIFY(QFile::remove(gone));
    QStringList asked;
    HRIndexPrivate::of(*index).indexListing(
        listing, f.package("A"), [&](const QString &path, const auto &) {
            asked += path;
            return true;
        });
    QCOMPARE(asked, QStringList(f.file("a.xml")));
    QCOMPARE(index->keys(), QStringList("pen"));
    f.messages.takeMessages();
}

void tst_HRIndexListing::stamps_areThoseOfTheFiles_data()
{
    addKinds();
}

void tst_HRIndexListing::stamps_areThoseOfTheFiles()
{
    QFETCH(QString, kind);
    Fixture f;
    const QString file = f.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    const auto index = f.makeIndex(kind);
    std::optional<HRFileStamp> told;
    indexControl(*index, f.package("A"), [&](const QString &, const auto &stamp) {
        told = stamp;
        return true;
    });
    QVERIFY(told);
    QVERIFY(told == stampOfFile(QFile::encodeName(file)));
    f.messages.takeMessages();
}

void tst_HRIndexListing::listing_knowsWhatItsFilesKnow_data()
{
    addKinds();
}

void tst_HRIndexListing::listing_knowsWhatItsFilesKnow()
{
    QFETCH(QString, kind);
    Fixture f;
    f.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>", "locale='en_US'");
    f.packages.writeControl("A", "\xC3\xA9.xml", "<hintreel key='line'/>", "locale='en_US'");
    f.packages.write("A.hintreels/Control/other.xml", "<other/>");
    const auto one = f.makeIndex(kind);
    indexControl(*one, f.package("A"));
    const QStringList keys = one->keys();
    const QStringList paths = one->componentPathsForPackageNamed("A");
    QCOMPARE(keys.size(), 2);
    one->remove();
    const auto other = f.makeIndex(kind);
    for (const char *name : { "a.xml", "other.xml", "\xC3\xA9.xml" })
        other->indexControlFile(f.file(QString::fromUtf8(name)), f.package("A"));
    QCOMPARE(other->keys(), keys);
    QCOMPARE(other->componentPathsForPackageNamed("A"), paths);
    f.messages.takeMessages();
}

// A host may well scan another package while it is told of a file.
void tst_HRIndexListing::listings_mayNest()
{
    Fixture f;
    f.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    f.packages.writeControl("A", "b.xml", "<hintreel key='line'/>");
    f.packages.writeControl("B", "a.xml", "<hintreel key='ink'/>");
    f.index.before = [&f](const QString &filePath) {
        const QString asked = filePath;
        if (filePath == f.file("a.xml"))
            indexControl(f.index, f.package("B"));
        QCOMPARE(filePath, asked);
    };
    indexControl(f.index, f.package("A"));
    QCOMPARE(f.index.keys(), QStringList({ "line", "pen", "ink" }));
    QCOMPARE(f.index.componentPathsForPackageNamed("A"), QStringList(f.package("A")));
    QCOMPARE(f.index.componentPathsForPackageNamed("B"), QStringList(f.package("B")));
    QVERIFY(!HRIndexPrivate::of(f.index).listed(f.file("b.xml")));
}

void tst_HRIndexListing::package_isMapped_afterItsSuffixHasChanged()
{
    Fixture f;
    f.packages.write("A.tips/Control/a.xml", "<hintreels ></hintreels>");
    f.packages.write("A.tips/Control/b.xml", "<hintreels ></hintreels>");
    f.index.before = [&f](const QString &filePath) {
        if (filePath.endsWith("b.xml"))
            f.context.set(packageSuffixKey, "tips");
    };
    const QString package = f.packages.path() + "/A.tips";
    indexControl(f.index, package);
    QCOMPARE(f.index.componentPathsForPackageNamed("A"), QStringList(package));
}

void tst_HRIndexListing::resources_areIndexed()
{
    Fixture f;
    const QString directory = QFileInfo(builtInUi(false)).path() + '/';
    const HRDirectoryListing listing(directory, "Look.qml");
    const QString package = directory.chopped(1);
    HRIndexPrivate::of(f.index).indexListing(listing, package, wantAll);
    QCOMPARE(f.index.calls, QStringList(directory + "Look.qml in " + package));
}

QTEST_GUILESS_MAIN(tst_HRIndexListing)
#include "tst_HRIndexListing.moc"
