// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/GateFixture.h"
#include "gates/HRNetworkAccess_p.h"
#include "gates/HRUrlGate_p.h"
#include "support/TestFile.h"
#include "ui/popup/sceneReach_p.h"

#include <QNetworkReply>
#include <QQmlEngine>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Hintreels;

namespace {

/// A machine that a scene should not reach.
struct Server
{
    Server() { server.listen(QHostAddress::LocalHost); }

    QByteArray url() const { return "http://127.0.0.1:" + QByteArray::number(server.serverPort()); }

    /// Whether anybody has called so far; a call of the test itself comes after all of those.
    bool wasCalled()
    {
        QTcpSocket own;
        own.connectToHost(QHostAddress::LocalHost, server.serverPort());
        int calls = 0;
        const bool came = QTest::qWaitFor([&] {
            while (QTcpSocket *socket = server.nextPendingConnection()) {
                calls += socket->peerPort() != own.localPort();
                ownCame |= socket->peerPort() == own.localPort();
            }
            return ownCame;
        });
        return !came || calls > 0;
    }

    QTcpServer server;
    bool ownCame = false;
};

/// A gate that allows or forbids the network.
std::shared_ptr<HRFileGate> gateWith(bool network)
{
    auto gate = std::make_shared<HRFileGate>();
    HRReach reach;
    reach.rules.network = network;
    gate->setReach(reach);
    return gate;
}

} // namespace

class tst_NetworkGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scene_reachesNoOtherMachine_data();
    void scene_reachesNoOtherMachine();
    void scene_reachesOtherMachines_whenTheHostAllowsIt_data();
    void scene_reachesOtherMachines_whenTheHostAllowsIt();
    void request_writesNoFile();
    void manager_asksNobody_whateverTheOperation_data();
    void manager_asksNobody_whateverTheOperation();
    void manager_readsFilesResourcesAndDataUrls();
    void manager_tellsWhichFileItRefuses_data();
    void manager_tellsWhichFileItRefuses();
    void url_isRemote_data();
    void url_isRemote();
    void urlGate_refusesEveryKindOfUrl_data();
    void urlGate_refusesEveryKindOfUrl();
    void urlGate_runsNothingThatHides_data();
    void urlGate_runsNothingThatHides();
    void links_outOfUrlProperties_goToTheHost();

private:
    static void addWays();
    static void prepare(GateFixture &fixture, const QByteArray &url);
};

void tst_NetworkGate::addWays()
{
    QTest::addColumn<QByteArray>("imports");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("refused"); // what is told of it
    const QByteArray none;
    QTest::newRow("Image") << none << QByteArray("Image { source: '%1/a.png' }")
                           << "source \"%1/a.png\"";
    QTest::newRow("Image, by a binding")
        << none << QByteArray("property string at: '%1'; Image { source: at + '/a.png' }")
        << "source \"%1/a.png\"";
    QTest::newRow("Loader") << none << QByteArray("Loader { source: '%1/a.qml' }")
                            << "source \"%1/a.qml\"";
    QTest::newRow("import") << QByteArray("import '%1/far'") << none << "qmldir \"%1/far/qmldir\"";
    QTest::newRow("script") << QByteArray("import '%1/a.js' as Far") << none
                            << "script \"%1/a.js\"";
    QTest::newRow("FontLoader") << none << QByteArray("FontLoader { source: '%1/a.ttf' }")
                                << "source \"%1/a.ttf\"";
    QTest::newRow("rich text") << none
                               << QByteArray("Text { textFormat: Text.RichText; "
                                             "text: '<img src=\"%1/a.png\">' }")
                               << "url \"%1/a.png\"";
    QTest::newRow("styled text") << none
                                 << QByteArray("Text { textFormat: Text.StyledText; "
                                               "text: '<img src=\"%1/a.png\">' }")
                                 << "url \"%1/a.png\"";
    QTest::newRow("AnimatedImage")
        << none << QByteArray("AnimatedImage { source: '%1/a.gif' }") << "source \"%1/a.gif\"";
    QTest::newRow("BorderImage") << none << QByteArray("BorderImage { source: '%1/a.sci' }")
                                 << "source \"%1/a.sci\"";
    QTest::newRow("XMLHttpRequest")
        << none
        << QByteArray("Component.onCompleted: { var r = new XMLHttpRequest();"
                      "r.open('GET', '%1/a'); r.send() }")
        << "url \"%1/a\"";
    QTest::newRow("qmldir") << QByteArray("import 'far'") << QByteArray("Far {}")
                            << "QML file \"%1/Far.qml\"";
}

void tst_NetworkGate::prepare(GateFixture &f, const QByteArray &url)
{
    QFETCH(QByteArray, imports);
    QFETCH(QByteArray, body);
    f.writeUi(body.replace("%1", url), imports.replace("%1", url));
    f.write("ui/far/qmldir", "Far 1.0 " + url + "/Far.qml\n");
}

void tst_NetworkGate::scene_reachesNoOtherMachine_data()
{
    addWays();
}

void tst_NetworkGate::scene_reachesNoOtherMachine()
{
    Server server;
    GateFixture f;
    prepare(f, server.url());
    f.show();
    QFETCH(QString, refused);
    const QString told = "Package \"Own\" may not use " + refused.arg(QString(server.url()));
    QTRY_VERIFY(f.host->messages.contains({ int(messageWarning), told }));
    QVERIFY(!server.wasCalled());
    QCOMPARE(f.warnings(), QStringList{ told });
}

void tst_NetworkGate::scene_reachesOtherMachines_whenTheHostAllowsIt_data()
{
    addWays();
}

void tst_NetworkGate::scene_reachesOtherMachines_whenTheHostAllowsIt()
{
    Server server;
    GateFixture f({ { allowNetworkKey, true } });
    prepare(f, server.url());
    f.show();
    QTRY_VERIFY(server.server.hasPendingConnections());
}

void tst_NetworkGate::request_writesNoFile()
{
    GateFixture f({ { allowNetworkKey, true } });
    const QString file = f.packages.path() + "/written.txt";
    f.writeUi("property int state_: 0\nComponent.onCompleted: { var r = new XMLHttpRequest();"
              "r.onreadystatechange = function() { parent; state_ = r.readyState };"
              "r.open('PUT', 'file://"
        + file.toUtf8() + "'); r.send('text') }");
    QVERIFY(f.show());
    QTRY_COMPARE(f.view()->rootObject()->property("state_").toInt(), 4);
    QVERIFY(!QFile::exists(file));
}

void tst_NetworkGate::manager_asksNobody_whateverTheOperation_data()
{
    QTest::addColumn<QByteArray>("verb");
    for (const char *verb : { "GET", "HEAD", "POST", "PUT", "DELETE", "OPTIONS" })
        QTest::newRow(verb) << QByteArray(verb);
}

void tst_NetworkGate::manager_asksNobody_whateverTheOperation()
{
    QFETCH(QByteArray, verb);
    Server server;
    HRNetworkAccess access(
        gateWith(false), [](const QString &, const QString &) {}, nullptr);
    const QNetworkRequest request(QUrl(server.url() + "/a"));
    std::unique_ptr<QNetworkReply> reply(access.sendCustomRequest(request, verb));
    QTRY_VERIFY(reply->isFinished());
    QVERIFY(reply->error() != QNetworkReply::NoError);
    QVERIFY(!server.wasCalled());
}

void tst_NetworkGate::manager_readsFilesResourcesAndDataUrls()
{
    TestPackages files;
    const QUrl file = QUrl::fromLocalFile(files.write("a.txt", "text"));
    HRNetworkAccess access(
        gateWith(false), [](const QString &, const QString &) {}, nullptr);
    const QString resource = builtInUi(false);
    const QVector<QPair<QUrl, QByteArray>> known{
        { file, "text" },
        { QUrl("data:,text"), "text" },
        { urlOfFile(resource), contentOf(resource) },
    };
    for (const auto &url : known) {
        std::unique_ptr<QNetworkReply> reply(access.get(QNetworkRequest(url.first)));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(reply->readAll(), url.second);
    }
}

void tst_NetworkGate::manager_tellsWhichFileItRefuses_data()
{
    QTest::addColumn<QByteArray>("verb");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("read");
    QTest::newRow("own") << QByteArray("GET") << "Own/a.txt" << QByteArray("text");
    QTest::newRow("head of an own one")
        << QByteArray("HEAD") << "Own/a.txt" << QByteArray("text"); // as Qt does for files
    QTest::newRow("other") << QByteArray("GET") << "b.txt" << QByteArray();
}

void tst_NetworkGate::manager_tellsWhichFileItRefuses()
{
    QFETCH(QByteArray, verb);
    QFETCH(QString, file);
    TestPackages files;
    files.write("Own/a.txt", "text");
    files.write("b.txt", "text");
    auto gate = std::make_shared<HRFileGate>();
    HRReach reach;
    reach.rules.ownFilesOnly = true;
    reach.packages = QStringList{ files.path() + "/Own" };
    gate->setReach(reach);
    QStringList told;
    HRNetworkAccessFactory factory(gate,
        [&told](const QString &kind, const QString &path) { told.append(kind + ' ' + path); });
    const std::unique_ptr<QNetworkAccessManager> access(factory.create(nullptr));
    const QNetworkRequest request(QUrl::fromLocalFile(files.path() + '/' + file));
    const std::unique_ptr<QNetworkReply> reply(
        verb == "HEAD" ? access->head(request) : access->get(request));
    QTRY_VERIFY(reply->isFinished());
    QTEST(reply->readAll(), "read");
    const bool isOwn = file.startsWith("Own");
    QCOMPARE(reply->error() == QNetworkReply::NoError, isOwn);
    QCOMPARE(told, isOwn ? QStringList() : QStringList("url " + files.path() + "/b.txt"));
}

void tst_NetworkGate::url_isRemote_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("remote");
    for (const char *url :
        { "", "a.png", "/a.png", "file:///a.png", "qrc:/a.png", "data:,a", "image://provider/a" })
        QTest::newRow(url) << url << false;
    for (const char *url : { "http://a/", "https://a/", "ftp://a/", "unknown:a" })
        QTest::newRow(url) << url << true;
}

void tst_NetworkGate::url_isRemote()
{
    QFETCH(QString, url);
    QTEST(isRemote(QUrl(url)), "remote");
}

void tst_NetworkGate::urlGate_refusesEveryKindOfUrl_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("QML") << int(QQmlAbstractUrlInterceptor::QmlFile);
    QTest::newRow("script") << int(QQmlAbstractUrlInterceptor::JavaScriptFile);
    QTest::newRow("qmldir") << int(QQmlAbstractUrlInterceptor::QmldirFile);
    QTest::newRow("property") << int(QQmlAbstractUrlInterceptor::UrlString);
}

void tst_NetworkGate::urlGate_refusesEveryKindOfUrl()
{
    QFETCH(int, type);
    const auto kind = QQmlAbstractUrlInterceptor::DataType(type);
    const auto ignore = [](const QString &, const QString &) {};
    const QUrl far("https://example.org/a?b=c%20d");
    const QUrl near("file:///no/such/file");
    QCOMPARE(HRUrlGate(gateWith(true), ignore).intercept(far, kind), far);
    QStringList told;
    HRUrlGate gate(
        gateWith(false), [&told](const QString &, const QString &path) { told.append(path); });
    QCOMPARE(gate.intercept(near, kind), near);
    const QUrl refused = gate.intercept(far, kind);
    QCOMPARE(refused.scheme(), QString(kind == HRUrlGate::UrlString ? "hintreels-far" : "qrc"));
    QCOMPARE(gate.intercept(refused, kind), refused);
    QCOMPARE(withoutRefusal(refused.toString()), far.toString());
    QCOMPARE(told, kind == HRUrlGate::UrlString ? QStringList() : QStringList{ far.toString() });
}

void tst_NetworkGate::urlGate_runsNothingThatHides_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("ownFilesOnly");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("QML") << int(HRUrlGate::QmlFile) << true << false;
    QTest::newRow("script") << int(HRUrlGate::JavaScriptFile) << true << false;
    QTest::newRow("property") << int(HRUrlGate::UrlString) << true << true;
    QTest::newRow("QML, by default") << int(HRUrlGate::QmlFile) << false << true;
}

void tst_NetworkGate::urlGate_runsNothingThatHides()
{
    QFETCH(int, type);
    QFETCH(bool, ownFilesOnly);
    auto files = std::make_shared<HRFileGate>();
    HRReach reach;
    reach.rules.ownFilesOnly = ownFilesOnly;
    files->setReach(reach);
    HRUrlGate gate(files, [](const QString &, const QString &) {});
    const auto kind = HRUrlGate::DataType(type);
    const QUrl hidden("data:,import QtTest 1.0; TestCase {}");
    QTEST(gate.intercept(hidden, kind) == hidden, "allowed");
    const QUrl shipped("qrc:/a.qml");
    QCOMPARE(gate.intercept(shipped, kind), shipped);
}

void tst_NetworkGate::links_outOfUrlProperties_goToTheHost()
{
    GateFixture f;
    f.writeUi("property url link: 'https://example.org/help'\n"
              "Component.onCompleted: hintreelView.openExternalResource(link)");
    QVERIFY(f.show());
    QCOMPARE(f.host->openedResources,
        (QList<QPair<int, QString>>{ { resourceUrl, "https://example.org/help" } }));
    QCOMPARE(f.warnings(), QStringList());
}

QTEST_MAIN(tst_NetworkGate)
#include "tst_NetworkGate.moc"
