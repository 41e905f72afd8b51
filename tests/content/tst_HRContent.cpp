// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRContent_p.h"

#include <QtTest>

#include <memory>
#include <type_traits>
#include <utility>

using namespace Hintreels;

static_assert(!std::is_copy_constructible_v<HRContent> && !std::is_copy_assignable_v<HRContent>);

namespace {

/// An entry with a child, in a root.
struct Fixture
{
    explicit Fixture(const QString &rootTag = "hintreels") { root->setTagName(rootTag); }
    ~Fixture() { delete root; }

    QPointer<HRXmlElement> root = new HRXmlElement;
    QPointer<HRXmlElement> entry = new HRXmlElement(root);
    QPointer<HRXmlElement> child = new HRXmlElement(entry);
};

} // namespace

class tst_HRContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void content_takesTheTreeWithIt();
    void content_goesAlone_withoutItsRoot_data();
    void content_goesAlone_withoutItsRoot();
    void content_leavesRoot_whenEntryWasDeleted();
    void of_takesTheRootThatWasReadForIt();
    void of_sparesParent_data();
    void of_sparesParent();
    void of_toleratesNull();
    void move_handsOver();
    void assignment_freesWhatWasHeld();
    void release_freesNothing();
    void freeLater_waitsForTheEventLoop();
};

void tst_HRContent::content_takesTheTreeWithIt()
{
    Fixture f("anything");
    new HRXmlElement(f.root);
    {
        const HRContent content(f.entry, f.root);
        QCOMPARE(content.entry(), f.entry.data());
    }
    QVERIFY(!f.root);
    QVERIFY(!f.entry);
    QVERIFY(!f.child);
}

void tst_HRContent::content_goesAlone_withoutItsRoot_data()
{
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("no root known") << false << true;
    QTest::newRow("has left its root") << true << true;
    QTest::newRow("root has gone") << true << false;
}

void tst_HRContent::content_goesAlone_withoutItsRoot()
{
    QFETCH(bool, isKnown);
    QFETCH(bool, isThere);
    Fixture f;
    {
        const HRContent content(f.entry, isKnown ? f.root.data() : nullptr);
        if (isKnown)
            f.entry->setParent(nullptr);
        if (!isThere)
            delete f.root;
    }
    QVERIFY(!f.entry);
    QCOMPARE(!f.root.isNull(), isThere);
}

void tst_HRContent::content_leavesRoot_whenEntryWasDeleted()
{
    Fixture f;
    {
        const HRContent content(f.entry, f.root);
        delete f.entry;
        QVERIFY(!content.entry());
    }
    QVERIFY(f.root);
}

void tst_HRContent::of_takesTheRootThatWasReadForIt()
{
    Fixture f;
    HRContent::of(f.entry);
    QVERIFY(!f.root);
    QVERIFY(!f.child);
}

void tst_HRContent::of_sparesParent_data()
{
    QTest::addColumn<QString>("tagName");
    QTest::addColumn<bool>("hasSibling");
    QTest::newRow("another tag") << "topics" << false;
    QTest::newRow("another child") << "hintreels" << true;
}

void tst_HRContent::of_sparesParent()
{
    QFETCH(QString, tagName);
    QFETCH(bool, hasSibling);
    Fixture f(tagName);
    if (hasSibling)
        new HRXmlElement(f.root);

    HRContent::of(f.entry);

    QVERIFY(!f.entry);
    QVERIFY(f.root);
    QCOMPARE(f.root->children().size(), hasSibling ? 1 : 0);
}

void tst_HRContent::of_toleratesNull()
{
    HRContent nothing = HRContent::of(nullptr);
    QVERIFY(!nothing.entry());
    nothing.freeLater();
    const QPointer<HRXmlElement> orphan = new HRXmlElement;
    HRContent::of(orphan);
    QVERIFY(!orphan);
}

void tst_HRContent::move_handsOver()
{
    Fixture f;
    HRContent first(f.entry, f.root);
    {
        const HRContent second(std::move(first));
        QVERIFY(!first.entry()); // what was moved from is empty
        QCOMPARE(second.entry(), f.entry.data());
    }
    QVERIFY(!f.root);
}

void tst_HRContent::assignment_freesWhatWasHeld()
{
    Fixture f;
    Fixture other;
    HRContent content(f.entry, f.root);
    content = HRContent(other.entry, other.root);
    QVERIFY(!f.root);
    QCOMPARE(content.entry(), other.entry.data());
    content = HRContent();
    QVERIFY(!other.root);
}

void tst_HRContent::release_freesNothing()
{
    Fixture f;
    {
        HRContent content(f.entry, f.root);
        QCOMPARE(content.release(), f.entry.data());
        QVERIFY(!content.entry());
    }
    QVERIFY(f.child);
}

void tst_HRContent::freeLater_waitsForTheEventLoop()
{
    Fixture f;
    {
        HRContent content(f.entry, f.root);
        content.freeLater();
        QVERIFY(!content.entry());
    }
    QVERIFY(f.child);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!f.root);
}

QTEST_GUILESS_MAIN(tst_HRContent)
#include "tst_HRContent.moc"
