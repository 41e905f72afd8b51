// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/hintText_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_hintText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_isWhatTheHintSays_data();
    void text_isWhatTheHintSays();
};

namespace {

QVariantMap block(const QVariantMap &values)
{
    return { { "blocks", QVariantList{ values } } };
}

} // namespace

void tst_hintText::text_isWhatTheHintSays_data()
{
    QTest::addColumn<QVariantMap>("hint");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QVariantMap() << "";
    QTest::newRow("title, shortcut, summary")
        << QVariantMap{ { "title", "Pen" }, { "shortcut", "P" }, { "summary", "Draws." } }
        << "Pen (P)\n\nDraws.";
    QTest::newRow("Markdown") << block(
        { { "block", "text" }, { "text", "Hold *Shift*.\n\n- one\n- [two](there)" } })
                              << "Hold Shift.\none\ntwo";
    QTest::newRow("note") << block({ { "block", "note" }, { "text", "**Mind** this" } })
                          << "Mind this";
    QTest::newRow("text of another kind is no Markdown")
        << block({ { "block", "picture" }, { "text", "a * b * c" }, { "alt", "A formula" } })
        << "a * b * c\nA formula";
    QTest::newRow("link") << block({ { "block", "link" }, { "text", "More" }, { "to", "pen" } })
                          << "More\npen";
    QTest::newRow("link without a text")
        << block({ { "block", "link" }, { "text", "pen" }, { "to", "pen" } }) << "pen";
    QTest::newRow("keys") << block(
        { { "block", "keys" }, { "press", "Ctrl+K" }, { "text", "cuts" } })
                          << "cuts\nCtrl+K";
    QTest::newRow("clip without words")
        << block({ { "block", "video" }, { "source", "a.mp4" } }) << "";
}

void tst_hintText::text_isWhatTheHintSays()
{
    QFETCH(QVariantMap, hint);
    QFETCH(QString, text);
    QCOMPARE(hintText(hint), text);
}

QTEST_MAIN(tst_hintText)
#include "tst_hintText.moc"
