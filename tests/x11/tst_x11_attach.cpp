// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/RealInput.h"
#include "x11/StrangeProgram.h"

#include <QMap>
#include <QtTest>

#include <algorithm>

namespace {

const QString packages = EXAMPLES "/attach";

/// The keys of a control file of the example.
QStringList keysOf(const QString &controlFile)
{
    QFile file(packages + "/FeatherPad.hintreels/Control/" + controlFile);
    QStringList keys;
    if (!file.open(QIODevice::ReadOnly))
        return keys;
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression key("<hintreel key=\"([^\"]+)\"");
    for (auto match = key.globalMatch(text); match.hasNext();)
        keys.append(match.next().captured(1));
    return keys;
}

/// How often an area of the screen shows each colour.
QMap<QRgb, int> colorsIn(const QRect &area)
{
    const QImage image = RealInput::screenshot().copy(area);
    QMap<QRgb, int> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++colors[image.pixel(x, y)];
    return colors;
}

/// Whether an area shows letters: smooth ones have many shades.
bool showsText(const QRect &area)
{
    return colorsIn(area).size() >= 24;
}

/// The colour that most of an area shows.
QColor backgroundOf(const QRect &area)
{
    const QMap<QRgb, int> colors = colorsIn(area);
    const QList<int> counts = colors.values();
    return colors.key(*std::max_element(counts.begin(), counts.end()));
}

} // namespace

/// The hints of examples/attach in FeatherPad, which knows nothing of them.
class tst_x11_attach : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hint_showsBesideToolButton_data();
    void hint_showsBesideToolButton();
    void hint_showsBesideOpenMenu();
    void hints_areForWhatIsThere_data();
    void hints_areForWhatIsThere();

private:
    static QStringList featherpad();
};

QStringList tst_x11_attach::featherpad()
{
    // A process of its own, and nothing that keeps the tool bar from its first place.
    return { "featherpad", "--standalone" };
}

void tst_x11_attach::init()
{
    RealInput::movePointer(QPoint(1270, 790));
}

void tst_x11_attach::hint_showsBesideToolButton_data()
{
    QTest::addColumn<QString>("language");

    QTest::newRow("in English") << "C.UTF-8";
    QTest::newRow("in German") << "de_DE.UTF-8";
}

void tst_x11_attach::hint_showsBesideToolButton()
{
    QFETCH(QString, language);
    StrangeProgram program(packages, "featherpad", featherpad(), language);

    const QRect hint = program.hover("actionFind");

    const QRect button = program.areaOf("actionFind");
    QVERIFY(!hint.isNull());
    QVERIFY(!hint.intersects(button));
    QTRY_VERIFY(showsText(hint));
    QCOMPARE(backgroundOf(hint), backgroundOf(program.areaOf("statusLabel")));
    // The button has a tooltip, too.
    QCOMPARE(program.openPopups().size(), 1);
    QCOMPARE(program.messages(), QByteArray());
}

void tst_x11_attach::hint_showsBesideOpenMenu()
{
    StrangeProgram program(packages, "featherpad", featherpad(), "C.UTF-8");
    QVERIFY(program.openMenu("menuOptions"));

    const QRect hint = program.hover("actionWrap");

    QVERIFY(!hint.isNull());
    QTRY_VERIFY(showsText(hint));
    // Menu and hint.
    const QList<QRect> popups = program.openPopups();
    QCOMPARE(popups.size(), 2);
    QVERIFY(!popups[0].intersects(popups[1]));
}

void tst_x11_attach::hints_areForWhatIsThere_data()
{
    QTest::addColumn<QString>("controlFile");

    QTest::newRow("English") << "en_US.xml";
    QTest::newRow("German") << "de_DE.xml";
}

void tst_x11_attach::hints_areForWhatIsThere()
{
    QFETCH(QString, controlFile);
    const QStringList hints = keysOf(controlFile);
    QCOMPARE(hints.size(), 15);
    StrangeProgram program(packages, "featherpad", featherpad(), "C.UTF-8");

    const QStringList keys = program.keys();

    for (const QString &key : hints)
        QVERIFY2(keys.contains(key), qPrintable(key));
}

QTEST_MAIN(tst_x11_attach)
#include "tst_x11_attach.moc"
