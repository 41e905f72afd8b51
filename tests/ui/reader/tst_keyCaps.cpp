// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/keyCaps_p.h"

#include "ui/reader/textCut_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

const QString more(ellipsis);

} // namespace

class tst_keyCaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyCapsOf_splitsStrokesAndKeys_data();
    void keyCapsOf_splitsStrokesAndKeys();
};

void tst_keyCaps::keyCapsOf_splitsStrokesAndKeys_data()
{
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QVector<QStringList>>("strokes");

    using Strokes = QVector<QStringList>;
    QTest::newRow("empty") << "" << Strokes({});
    QTest::newRow("blank") << "  " << Strokes({});
    QTest::newRow("one key") << "P" << Strokes({ { "P" } });
    QTest::newRow("modifiers") << "Ctrl+Shift+S" << Strokes({ { "Ctrl", "Shift", "S" } });
    QTest::newRow("the plus key") << "Ctrl+Shift++" << Strokes({ { "Ctrl", "Shift", "+" } });
    QTest::newRow("the plus key alone") << "+" << Strokes({ { "+" } });
    QTest::newRow("a chord") << "Ctrl+K, Ctrl+C" << Strokes({ { "Ctrl", "K" }, { "Ctrl", "C" } });
    QTest::newRow("a chord of plus")
        << "Ctrl++, Ctrl++" << Strokes({ { "Ctrl", "+" }, { "Ctrl", "+" } });
    QTest::newRow("the comma key") << "Ctrl+," << Strokes({ { "Ctrl", "," } });
    QTest::newRow("a chord of comma")
        << "Ctrl+,, Ctrl+C" << Strokes({ { "Ctrl", "," }, { "Ctrl", "C" } });
    QTest::newRow("a gesture") << "Shift+Drag" << Strokes({ { "Shift", "Drag" } });
    QTest::newRow("a key of two words") << "Ctrl+Page Up" << Strokes({ { "Ctrl", "Page Up" } });
    QTest::newRow("blanks around") << " Shift + Drag " << Strokes({ { "Shift", "Drag" } });
    QTest::newRow("native symbols")
        << QString::fromUtf8("⌘S") << Strokes({ { QString::fromUtf8("⌘S") } });
    const QStringList a{ "A" };
    const Strokes many(23, a);
    QTest::newRow("as many strokes as may be")
        << QString("A, ").repeated(24) << many + Strokes{ a };
    QTest::newRow("more strokes") << QString("A, ").repeated(25) << many + Strokes{ { more } };
    QTest::newRow("more strokes by far")
        << QString("A, ").repeated(100'000) << many + Strokes{ { more } };
    QTest::newRow("as many keys as may be")
        << "1+2+3+4+5+6+7+8" << Strokes({ { "1", "2", "3", "4", "5", "6", "7", "8" } });
    QTest::newRow("more keys") << "1+2+3+4+5+6+7+8+9"
                               << Strokes({ { "1", "2", "3", "4", "5", "6", "7", more } });
    QTest::newRow("a long key") << QString(41, 'x') + "+A"
                                << Strokes({ { QString(39, 'x') + more, "A" } });
}

void tst_keyCaps::keyCapsOf_splitsStrokesAndKeys()
{
    QFETCH(QString, shortcut);
    QFETCH(QVector<QStringList>, strokes);

    QCOMPARE(keyCapsOf(shortcut), strokes);
}

QTEST_MAIN(tst_keyCaps)
#include "tst_keyCaps.moc"
