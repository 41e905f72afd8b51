// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/GateFixture.h"

#include <QRegularExpression>

using namespace Hintreels;

namespace {

/// The QML of a page in docs, each block on its own.
QStringList examplesIn(const QString &page)
{
    QFile file(HINTREELS_SOURCE_DIR "/docs/" + page);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    static const QRegularExpression block("^```qml\n(.*?)^```",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    QStringList examples;
    auto blocks = block.globalMatch(QString::fromUtf8(file.readAll()));
    while (blocks.hasNext())
        examples.append(blocks.next().captured(1));
    return examples;
}

} // namespace

/// What docs show of QML runs as it stands there.
class tst_QmlExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void example_isAWholeUi_data();
    void example_isAWholeUi();
    void wholeUi_showsHints();
};

void tst_QmlExamples::example_isAWholeUi_data()
{
    QTest::addColumn<QString>("qml");
    for (const char *page : { "qml.md", "video.md" }) {
        const QStringList examples = examplesIn(page);
        QVERIFY2(!examples.isEmpty(), page);
        for (int i = 0; i < examples.size(); ++i)
            QTest::addRow("%s, %d", page, i) << examples[i];
    }
}

void tst_QmlExamples::example_isAWholeUi()
{
    QFETCH(QString, qml);
    GateFixture f;
    f.write("ui/Ui.qml", qml.toUtf8());
    QVERIFY(f.show());
    QVERIFY(f.view()->rootObject());
    QCOMPARE(f.host->takeMessages(messageDebug).filter("QML"), QStringList());
}

void tst_QmlExamples::wholeUi_showsHints()
{
    GateFixture f;
    f.write("ui/Ui.qml", examplesIn("qml.md").first().toUtf8());
    f.attributes = " title='Pen'";
    f.packages.writeControl(
        "Next", "next.xml", "<hintreel key='next' title='Next'/>", "search='Own' ui='ui/Ui.qml'");
    QVERIFY(f.show());
    const QPointer<HRWidget> popup = f.host->manager()->widget();
    const QPointer<HRView> view = f.view();
    const auto *label = view->rootObject()->findChild<QQuickItem *>("label");
    QVERIFY(label);
    QCOMPARE(label->property("text").toString(), QString("Pen"));
    QVERIFY(view->width() > label->width());

    QVERIFY(f.host->show("next", QPoint(50, 50), nullptr));
    QCOMPARE(label->property("text").toString(), QString("Next"));
    QTest::mouseClick(view, Qt::LeftButton);
    QVERIFY(view && view->reserved());
    QCOMPARE(f.host->takeMessages(messageDebug).filter("QML"), QStringList());
    delete popup->window(); // the manager has given it away
}

QTEST_MAIN(tst_QmlExamples)
#include "tst_QmlExamples.moc"
