// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/textPassages_p.h"

#include "ui/reader/textStyle_p.h"

#include <QTextDocument>
#include <QtTest>

using namespace Hintreels;

namespace {

/// Each passage as its kind with its text, or with its parts in brackets.
QString outline(const QVariantList &passages)
{
    QStringList lines;
    for (const QVariant &entry : passages) {
        const QVariantMap passage = entry.toMap();
        const QVariantList parts = passage["parts"].toList();
        lines.append(passage["kind"].toString()
            + (parts.isEmpty() ? ' ' + passage["text"].toString() : '(' + outline(parts) + ')'));
    }
    return lines.join("; ");
}

void fill(QTextDocument *document, const QString &markdown)
{
    const HRMarkdownGate gate([](const QString &path) {
        return HRTextPicture{ QUrl("file:///" + path), QSize(20, 10) };
    });
    setMarkdown(*document, markdown, { Qt::blue, Qt::gray, 8 }, gate);
}

} // namespace

class tst_textPassages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passagesIn_saysEachWordOnce_data();
    void passagesIn_saysEachWordOnce();
    void passagesIn_knowsWhereTheyStand();
};

void tst_textPassages::passagesIn_saysEachWordOnce_data()
{
    QTest::addColumn<QString>("markdown");
    QTest::addColumn<QString>("passages");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("paragraphs") << "One\n\nTwo"
                                << "paragraph One; paragraph Two";
    QTest::newRow("several styles") << "Press *and* **drag**"
                                    << "paragraph Press and drag";
    QTest::newRow("heading") << "# Lines\n\nThin"
                             << "heading Lines; paragraph Thin";
    QTest::newRow("list") << "- one\n- two\n\nAfter"
                          << "list(item one; item two); paragraph After";
    QTest::newRow("numbers") << "1. one\n2. two"
                             << "list(item 1. one; item 2. two)";
    QTest::newRow("lists apart") << "- one\n\nAnd\n\n- two"
                                 << "list(item one); paragraph And; list(item two)";
    QTest::newRow("link") << "See [it](a) *and* more"
                          << "paragraph(text See ; link it; text  and more)";
    QTest::newRow("link alone") << "[it](a)"
                                << "paragraph(link it)";
    QTest::newRow("link in a list") << "1. see [it](a)"
                                    << "list(item(text 1. see ; link it))";
    QTest::newRow("picture") << "See ![it](a.png)"
                             << "paragraph(text See ; picture it)";
    QTest::newRow("code") << "```\none\n\ntwo\n```"
                          << "paragraph one; paragraph two";
}

void tst_textPassages::passagesIn_saysEachWordOnce()
{
    QFETCH(QString, markdown);
    QTextDocument document;
    fill(&document, markdown);
    QTEST(outline(passagesIn(document)), "passages");
}

void tst_textPassages::passagesIn_knowsWhereTheyStand()
{
    QTextDocument document;
    fill(&document, "One\n\n- two\n- see [it](a)");
    const QVariantList passages = passagesIn(document);
    const QVariantMap list = passages.value(1).toMap();
    QCOMPARE(passages.value(0).toMap()["end"].toInt(), 3);
    QCOMPARE(list["start"].toInt(), 4);
    QCOMPARE(list["end"].toInt(), 14);
    const QVariantMap item = list["parts"].toList().value(1).toMap();
    QCOMPARE(item["start"].toInt(), 8);
    const QVariantMap link = item["parts"].toList().value(1).toMap();
    QCOMPARE(link["start"].toInt(), 12);
    QCOMPARE(link["end"].toInt(), 14);
    QCOMPARE(link["href"].toString(), QString("a"));
}

QTEST_MAIN(tst_textPassages)
#include "tst_textPassages.moc"
