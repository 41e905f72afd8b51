// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/WatchedPipe.h"
#include "ui/StandardUiFixture.h"

#include <QAccessible>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Hintreels;

namespace {

QByteArray hint(const QByteArray &blocks)
{
    return "<hintreel key=\"key\" title=\"Pen\">" + blocks + "</hintreel>";
}

QByteArray text(const QByteArray &markdown)
{
    return hint("<text><![CDATA[" + markdown + "]]></text>");
}

/// The names of all pictures that a reader sees.
QStringList picturesIn(const StandardUiFixture &fixture)
{
    QStringList names;
    for (QQuickItem *item : itemsBelow(fixture.root())) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        if (accessible && accessible->role() == QAccessible::Graphic && item->isVisible())
            names.append(accessible->text(QAccessible::Name));
    }
    return names;
}

QList<QQuickItem *> imagesIn(const StandardUiFixture &fixture)
{
    QList<QQuickItem *> images;
    for (QQuickItem *item : itemsBelow(fixture.root())) {
        if (item->inherits("QQuickImage"))
            images.append(item);
    }
    return images;
}

/// A picture that asks a server for "own.png", in a scene that is not a hint's.
std::unique_ptr<QObject> loadPicture(quint16 port)
{
    auto engine = std::make_unique<QQmlEngine>();
    QQmlComponent component(engine.get());
    component.setData("import QtQuick 2.15\nImage { source: 'http://localhost:"
            + QByteArray::number(port) + "/own.png' }",
        QUrl());
    QObject *picture = component.create();
    if (!picture)
        qFatal("%s", qPrintable(component.errorString()));
    picture->setParent(engine.get());
    return engine;
}

} // namespace

/// Hints that want to reach beyond their package by what stands in them.
class tst_StandardUiSafety : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_opensNothingElse_data();
    void text_opensNothingElse();
    void text_connectsToNobody_data();
    void text_connectsToNobody();
    void text_showsPicturesOfThePackage();
    void text_fitsPicturesIntoIt();
};

void tst_StandardUiSafety::text_opensNothingElse_data()
{
    QTest::addColumn<QByteArray>("markdown");

    QTest::newRow("picture by address") << QByteArray("![a](file://PIPE)");
    QTest::newRow("picture by absolute path") << QByteArray("![a](PIPE)");
    QTest::newRow("picture by reference") << QByteArray("![a][b]\n\n[b]: PIPE");
    QTest::newRow("picture in a list") << QByteArray("- ![a](<PIPE>)");
    QTest::newRow("picture in the folder above") << QByteArray("![a](../../pipe)");
    QTest::newRow("pipe among the resources") << QByteArray("![a](pipe)");
    QTest::newRow("picture in a block of HTML") << QByteArray("<img src=\"file://PIPE\"/>");
    QTest::newRow("style sheet") << QByteArray(
        "<link rel=\"stylesheet\" type=\"text/css\" href=\"PIPE\"/>");
    QTest::newRow("background") << QByteArray(
        "<table background=\"PIPE\"><tr><td>a</td></tr></table>");
}

void tst_StandardUiSafety::text_opensNothingElse()
{
    QFETCH(QByteArray, markdown);
    TestPackages elsewhere;
    const QString path = elsewhere.path() + "/pipe";
    StandardUiFixture fixture(text(markdown.replace("PIPE", path.toUtf8())));
    const WatchedPipe pipe(path);
    const WatchedPipe above(fixture.packages.path() + "/pipe");
    const WatchedPipe among(fixture.packages.path() + "/Test.hintreels/Resources/pipe");

    fixture.show();

    QVERIFY(!pipe.wasOpened());
    QVERIFY(!above.wasOpened());
    QVERIFY(!among.wasOpened());
    QCOMPARE(picturesIn(fixture), QStringList());
}

void tst_StandardUiSafety::text_connectsToNobody_data()
{
    QTest::addColumn<QByteArray>("markdown");

    QTest::newRow("picture") << QByteArray("![a](http://localhost:PORT/a.png)");
    QTest::newRow("picture with a blank") << QByteArray("![a](<http://localhost:PORT/a b.png>)");
    QTest::newRow("picture in HTML") << QByteArray("<img src=\"http://localhost:PORT/a.png\"/>");
}

void tst_StandardUiSafety::text_connectsToNobody()
{
    QFETCH(QByteArray, markdown);
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    markdown.replace("PORT", QByteArray::number(server.serverPort()));
    StandardUiFixture fixture(text(markdown));
    QSet<QByteArray> requests; // a request without an answer comes again
    connect(&server, &QTcpServer::newConnection, this, [&] {
        QTcpSocket *caller = server.nextPendingConnection();
        connect(caller, &QTcpSocket::readyRead, this, [caller, &requests] {
            requests.insert(caller->readLine().split(' ').value(1));
            caller->close();
        });
    });

    fixture.show();
    fixture.paint();
    // It takes the same way, through threads of their own, and sets out later.
    const std::unique_ptr<QObject> own = loadPicture(server.serverPort());

    QTRY_VERIFY(requests.contains("/own.png"));
    QCOMPARE(requests, QSet<QByteArray>{ "/own.png" });
}

void tst_StandardUiSafety::text_showsPicturesOfThePackage()
{
    StandardUiFixture fixture(text("One ![Two](good.png) three ![Four](missing.png)"));
    fixture.show();

    QTRY_COMPARE(picturesIn(fixture), QStringList{ "Two" });
    QTRY_VERIFY(fixture.root()->height() > 100);
    QTRY_COMPARE(imagesIn(fixture)[0]->property("status").toInt(), 1);
    QCOMPARE(fixture.troubles(), QStringList());
}

void tst_StandardUiSafety::text_fitsPicturesIntoIt()
{
    StandardUiFixture fixture(text("![wide](wide.png)\n\n![high](high.png)"));
    const auto write = [&](const QString &name, const QSize &size) {
        QImage image(size, QImage::Format_Mono);
        image.fill(0);
        QVERIFY(image.save(fixture.packages.path() + "/Test.hintreels/Resources/" + name));
    };
    write("wide.png", { 20'000, 100 });
    write("high.png", { 100, 20'000 });
    fixture.show();

    QTRY_COMPARE(picturesIn(fixture).size(), 2);
    for (const QQuickItem *image : imagesIn(fixture)) {
        QVERIFY(image->width() > 0 && image->width() < fixture.root()->width());
        QVERIFY(image->height() > 0 && image->height() < 1000);
    }
}

QTEST_MAIN(tst_StandardUiSafety)
#include "tst_StandardUiSafety.moc"
