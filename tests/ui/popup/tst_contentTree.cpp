// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "ui/popup/contentTree_p.h"

#include <QPointer>
#include <QtTest>

using namespace Hintreels;

class tst_contentTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteContentTree_takesTheRootThatWasReadForIt();
    void deleteContentTree_sparesParent_data();
    void deleteContentTree_sparesParent();
    void deleteContentTree_toleratesNull();
};

void tst_contentTree::deleteContentTree_takesTheRootThatWasReadForIt()
{
    const QPointer<HRXmlElement> root = new HRXmlElement;
    root->setTagName("hintreels");
    const QPointer<HRXmlElement> content = new HRXmlElement(root);
    const QPointer<HRXmlElement> child = new HRXmlElement(content);
    deleteContentTree(content);
    QVERIFY(!root);
    QVERIFY(!content);
    QVERIFY(!child);
}

void tst_contentTree::deleteContentTree_sparesParent_data()
{
    QTest::addColumn<QString>("tagName");
    QTest::addColumn<bool>("hasSibling");
    QTest::newRow("another tag") << "topics" << false;
    QTest::newRow("another child") << "hintreels" << true;
}

void tst_contentTree::deleteContentTree_sparesParent()
{
    QFETCH(QString, tagName);
    QFETCH(bool, hasSibling);
    HRXmlElement parent;
    parent.setTagName(tagName);
    const QPointer<HRXmlElement> content = new HRXmlElement(&parent);
    if (hasSibling)
        new HRXmlElement(&parent);

    deleteContentTree(content);

    QVERIFY(!content);
    QCOMPARE(parent.children().size(), hasSibling ? 1 : 0);
}

void tst_contentTree::deleteContentTree_toleratesNull()
{
    deleteContentTree(nullptr);
    HRXmlElement *const content = new HRXmlElement;
    const QPointer<HRXmlElement> guard = content;
    deleteContentTree(content);
    QVERIFY(!guard);
}

QTEST_APPLESS_MAIN(tst_contentTree)
#include "tst_contentTree.moc"
