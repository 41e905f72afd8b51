// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/ElementBuilder.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRXmlElementText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toXml_writesTree_data();
    void toXml_writesTree();
    void toXml_skipsOtherObjects();
    void toXml_leavesOutContentAndNamespace();
    void toXml_escapesNothing();
    void toXml_fillsPlaceholdersOfContent_data();
    void toXml_fillsPlaceholdersOfContent();
    void toXml_takesDeepTree();
    void toXml_indentsByTenThousandAtMost_data();
    void toXml_indentsByTenThousandAtMost();
};

void tst_HRXmlElementText::toXml_writesTree_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("xml");

    QTest::newRow("at the margin")
        << 0 << "<a x=\"1\" y=\"2\">\n  <b/>\n  <c>\n    <d/>\n  </c>\n</a>";
    QTest::newRow("indented") << 3
                              << "   <a x=\"1\" y=\"2\">\n     <b/>\n     <c>\n       <d/>\n"
                                 "     </c>\n   </a>";
    QTest::newRow("left of the margin")
        << -3 << "<a x=\"1\" y=\"2\">\n<b/>\n<c>\n <d/>\n</c>\n</a>";
}

void tst_HRXmlElementText::toXml_writesTree()
{
    HRXmlElement root(nullptr, attributes({ { "y", "2" }, { "x", "1" } }));
    root.setTagName("a");
    newElement("b", &root);
    newElement("d", newElement("c", &root));

    QFETCH(int, index);
    QTEST(root.toXml(index), "xml");
}

void tst_HRXmlElementText::toXml_skipsOtherObjects()
{
    const std::unique_ptr<HRXmlElement> root(newElement("a"));
    newElement("b", newObject("other", root.get()));
    QCOMPARE(root->toXml(), QString("<a/>"));
}

void tst_HRXmlElementText::toXml_leavesOutContentAndNamespace()
{
    HRXmlElement element;
    element.setTagName("a");
    element.setTagNameSpace("urn:a");
    element.setContent(QString(10000, 'x'));
    QCOMPARE(element.toXml(), QString("<a/>"));
}

void tst_HRXmlElementText::toXml_escapesNothing()
{
    HRXmlElement element(nullptr, attributes({ { "x", "\"<&>'" } }));
    element.setTagName("a");
    QCOMPARE(element.toXml(), QString("<a x=\"\"<&>'\"/>"));
}

void tst_HRXmlElementText::toXml_fillsPlaceholdersOfContent_data()
{
    QTest::addColumn<QString>("tagName");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("xml");

    QTest::newRow("closing mark in a value") << "a"
                                             << "x"
                                             << "%4"
                                             << "<a x=\"/\"/>";
    QTest::newRow("unknown marker in a value") << "a"
                                               << "x"
                                               << "%5"
                                               << "<a x=\"%5\"/>";
    QTest::newRow("lower marker in a value") << "a"
                                             << "x"
                                             << "%3"
                                             << "<a x=\"/\"%4>";
    QTest::newRow("value in its own name") << "a"
                                           << "%2"
                                           << "v"
                                           << "<a v=\"v\"/>";
    QTest::newRow("attributes in the tag name") << "t%3"
                                                << "x"
                                                << "1"
                                                << "<t x=\"1\" x=\"1\"/>";
    QTest::newRow("closing mark in the tag name") << "t%4"
                                                  << "x"
                                                  << "1"
                                                  << "<t/ x=\"1\"/>";
}

void tst_HRXmlElementText::toXml_fillsPlaceholdersOfContent()
{
    QFETCH(QString, tagName);
    QFETCH(QString, name);
    QFETCH(QString, value);
    HRXmlElement element(nullptr, attributes({ { name, value } }));
    element.setTagName(tagName);
    QTEST(element.toXml(), "xml");
}

void tst_HRXmlElementText::toXml_takesDeepTree()
{
    // So far left of the margin that no level is indented: the text grows with the depth only.
    const QString xml = newChain(200000)->toXml(-400000);
    QCOMPARE(xml.count("<a>"), 199999);
    QCOMPARE(xml.count("<a/>"), 1);
    QCOMPARE(xml.count("</a>"), 199999);
}

void tst_HRXmlElementText::toXml_indentsByTenThousandAtMost_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("childIndent");
    const int largest = std::numeric_limits<int>::max();
    QTest::newRow("within") << 9998 << 9998 << 10000;
    QTest::newRow("child beyond") << 9999 << 9999 << 10000;
    QTest::newRow("beyond") << 10001 << 10000 << 10000;
    QTest::newRow("beyond a string's length") << largest - 10 << 10000 << 10000;
    QTest::newRow("largest") << largest << 10000 << 10000;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 0 << 0;
}

void tst_HRXmlElementText::toXml_indentsByTenThousandAtMost()
{
    QFETCH(int, index);
    QFETCH(int, indent);
    QFETCH(int, childIndent);
    HRXmlElement root;
    root.setTagName("a");
    newElement("b", &root);
    QQmlEngine engine;
    engine.rootContext()->setContextProperty("root", &root);

    QQmlExpression expression(engine.rootContext(), nullptr, QString("root.toXml(%1)").arg(index));
    const QString xml = expression.evaluate().toString();

    const QString margin(indent, ' ');
    QVERIFY(xml == margin + "<a>\n" + QString(childIndent, ' ') + "<b/>\n" + margin + "</a>");
}

QTEST_GUILESS_MAIN(tst_HRXmlElementText)
#include "tst_HRXmlElementText.moc"
