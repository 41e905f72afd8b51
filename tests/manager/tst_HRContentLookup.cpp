// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRIndex.h"
#include "manager/HRContentLookup_p.h"

#include <QPointer>
#include <QtTest>

using namespace Hintreels;

namespace {

// Answers from a table of "key/locale", and leaves a dangling root where it has nothing.
class TableIndex : public HRIndex
{
public:
    using HRIndex::HRIndex;

    HRXmlElement *retrieve(const QString &key, const QLocale &locale, QString &directory,
        int &depth, HRXmlElement *&root) override
    {
        questions.append(key + '/' + locale.name());
        root = reinterpret_cast<HRXmlElement *>(quintptr(8));
        if (!entries.contains(questions.last()))
            return nullptr;
        auto *top = new HRXmlElement;
        root = namesRoot ? top : nullptr;
        directory = "directory";
        depth = 3;
        return new HRXmlElement(top);
    }

    QStringList entries;
    QStringList questions;
    bool namesRoot = true;
};

struct Fixture
{
    HRContext context;
    TableIndex index{ &context, {} };
    QStringList reports;
    HRContentLookup lookup{ context, index, [this](const QString &text) { reports += text; },
        [](const HRControlErrors &) {} };
};

} // namespace

class tst_HRContentLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void find_triesLocalesInOrder_data();
    void find_triesLocalesInOrder();
    void find_reportsTime();
    void find_ownsTheTree_withOrWithoutNamedRoot_data();
    void find_ownsTheTree_withOrWithoutNamedRoot();
    void findFallback_asksInFallbackLocaleOnly();
    void findFallback_asksNothing_whenKeyIsNull();
    void packageDirectory_goesUpByDepth_data();
    void packageDirectory_goesUpByDepth();
};

void tst_HRContentLookup::find_triesLocalesInOrder_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("fallback");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QStringList>("questions");
    QTest::newRow("English by default")
        << QString() << QString() << QStringList{} << QStringList{ "k/en_US", "k/en_US" };
    QTest::newRow("primary") << "de_DE"
                             << "fr_FR" << QStringList{ "k/de_DE", "k/fr_FR" }
                             << QStringList{ "k/de_DE" };
    QTest::newRow("fallback") << "de_DE"
                              << "fr_FR" << QStringList{ "k/fr_FR" }
                              << QStringList{ "k/de_DE", "k/fr_FR" };
    QTest::newRow("nothing") << "de_DE" << QString() << QStringList{}
                             << QStringList{ "k/de_DE", "k/en_US" };
}

void tst_HRContentLookup::find_triesLocalesInOrder()
{
    QFETCH(QString, locale);
    QFETCH(QString, fallback);
    Fixture f;
    QFETCH(QStringList, entries);
    f.index.entries = entries;
    if (!locale.isNull())
        f.context.set(localeKey, locale);
    if (!fallback.isNull())
        f.context.set(fallbackLocaleKey, fallback);

    const std::optional<HRFoundContent> found = f.lookup.find("k");

    QCOMPARE(found.has_value(), !f.index.entries.isEmpty());
    QTEST(f.index.questions, "questions");
}

void tst_HRContentLookup::find_reportsTime()
{
    Fixture f;
    f.index.entries = QStringList{ "%2/en_US" };
    QVERIFY(!f.lookup.find("missing"));
    QVERIFY(f.reports.isEmpty());

    QVERIFY(f.lookup.find("%2"));

    QCOMPARE(f.reports.size(), 1);
    const QRegularExpression expected("^Retrieved %2 in [0-9.e-]+ seconds$");
    QVERIFY2(expected.match(f.reports.first()).hasMatch(), qPrintable(f.reports.first()));
}

void tst_HRContentLookup::find_ownsTheTree_withOrWithoutNamedRoot_data()
{
    QTest::addColumn<bool>("namesRoot");
    QTest::newRow("the index names it") << true;
    QTest::newRow("the index keeps silent on it") << false;
}

void tst_HRContentLookup::find_ownsTheTree_withOrWithoutNamedRoot()
{
    QFETCH(bool, namesRoot);
    Fixture f;
    f.index.entries = QStringList{ "k/en_US" };
    f.index.namesRoot = namesRoot;
    QPointer<QObject> root;
    {
        const std::optional<HRFoundContent> found = f.lookup.find("k");
        QVERIFY(found);
        QCOMPARE(found->hasRoot, namesRoot);
        root = found->content.entry()->parent();
    }
    QVERIFY(!root);
}

void tst_HRContentLookup::findFallback_asksInFallbackLocaleOnly()
{
    Fixture f;
    f.context.set(localeKey, "de_DE");
    f.context.set(fallbackKeyKey, "other");
    f.index.entries = QStringList{ "other/en_US" };

    const std::optional<HRFoundContent> found = f.lookup.findFallback();

    QVERIFY(found);
    QCOMPARE(found->depth, 3);
    QCOMPARE(found->path, QString("directory"));
    QCOMPARE(f.index.questions, QStringList{ "other/en_US" });
    QVERIFY(f.reports.isEmpty());
}

void tst_HRContentLookup::findFallback_asksNothing_whenKeyIsNull()
{
    Fixture f;
    QVERIFY(!f.lookup.findFallback());
    QVERIFY(f.index.questions.isEmpty());
    QVERIFY(f.lookup.fallbackKey().isNull());
}

void tst_HRContentLookup::packageDirectory_goesUpByDepth_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("expected");
    QTest::newRow("directly in the package") << 1 << "/a/b";
    QTest::newRow("one directory down") << 2 << "/a";
    QTest::newRow("above the root stays there") << 100 << "..";
    QTest::newRow("no depth") << 0 << "/a/b";
}

void tst_HRContentLookup::packageDirectory_goesUpByDepth()
{
    QFETCH(int, depth);
    QFETCH(QString, expected);
    const QTemporaryDir directory;
    const QString top = QFileInfo(directory.path()).canonicalFilePath();
    QVERIFY(QDir(top).mkpath("a/b"));
    HRFoundContent found;
    found.path = top + "/a/b";
    found.depth = depth;
    QCOMPARE(found.packageDirectory(), expected == ".." ? QDir::rootPath() : top + expected);
}

QTEST_APPLESS_MAIN(tst_HRContentLookup)
#include "tst_HRContentLookup.moc"
