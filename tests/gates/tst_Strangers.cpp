// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/GateFixture.h"
#include "gates/HRFileUse_p.h"
#include "index/HRSQLiteIndex.h"
#include "support/TestClip.h"
#include "ui/popup/sceneReach_p.h"
#include "ui/reader/HRContentReader_p.h"

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QQmlContext>
#include <QQuickTextDocument>
#include <QTextDocument>

using namespace Hintreels;

namespace {

/// Writes a picture or a clip of the format that the path's suffix names.
void writeMedia(const QString &path)
{
    if (QImageWriter::supportedImageFormats().contains(QFileInfo(path).suffix().toLatin1())) {
        if (!TestClip::numbered({ 8, 8 }, 1).save(path))
            qFatal("cannot write %s", qPrintable(path));
        return;
    }
    TestClip clip;
    if (path.endsWith(".gif")) {
        clip.codec = "gif";
        clip.format = "rgb8";
        clip.options.clear();
    } else if (path.endsWith(".webm")) {
        clip.codec = "libvpx";
        clip.options = "b=200000";
    }
    clip.write(path);
}

} // namespace

// What packages from strangers may do.
class tst_Strangers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ui_isTheStandardOne_data();
    void ui_isTheStandardOne();
    void builtInUi_isWhole();
    void format_countsByItsBytes_data();
    void format_countsByItsBytes();
    void reader_takesFewFormats_data();
    void reader_takesFewFormats();
    void links_areAddressesAndTopics_data();
    void links_areAddressesAndTopics();
    void link_tellsItsTarget();
    void network_staysShut_whateverIsAllowed();
    void controlFiles_areLimited_data();
    void controlFiles_areLimited();
    void controlFile_isJudgedAgain_whenItHasGrown_data();
    void controlFile_isJudgedAgain_whenItHasGrown();
    void controlDirectory_mayNotLieTooDeep();
    void messages_areOneLine();
};

void tst_Strangers::ui_isTheStandardOne_data()
{
    QTest::addColumn<bool>("simple");
    QTest::addColumn<QString>("file");
    QTest::newRow("full") << false << "HintreelUI.qml";
    QTest::newRow("simple") << true << "SimpleTooltip.qml";
}

void tst_Strangers::ui_isTheStandardOne()
{
    QFETCH(bool, simple);
    QFETCH(QString, file);
    GateFixture f({ { strangersKey, true }, { simpleTooltipKey, simple } });
    f.root += " simple='ui/Ui.qml'";
    f.writeUi({});
    f.attributes = " title='A title'";
    QVERIFY(f.show());
    QCOMPARE(f.view()->source(), QUrl("qrc:/hintreels/standard/ui/" + file));
    QVERIFY(f.view()->rootObject());
    QCOMPARE(f.warnings(), QStringList());
    QCOMPARE(f.host->takeMessages(messageDebug), QStringList());
    f.view()->loadQML(f.packages.path() + "/Own.hintreels/ui/Ui.qml");
    QCOMPARE(f.warnings().size(), 1);
    QCOMPARE(f.view()->source(), QUrl("qrc:/hintreels/standard/ui/" + file));
}

void tst_Strangers::builtInUi_isWhole()
{
    QVERIFY(QFile::exists(builtInUi(false)));
    const QDir shipped(HINTREELS_SOURCE_DIR "/packages/Standard.hintreels/ui");
    QCOMPARE(QDir(":/hintreels/standard/ui").entryList(), shipped.entryList(QDir::Files));
}

void tst_Strangers::format_countsByItsBytes_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<bool>("isPicture");
    QTest::addColumn<bool>("isClip");
    QTest::newRow("PNG") << QByteArray("\x89PNG\r\n\x1A\n....") << true << false;
    QTest::newRow("JPEG") << QByteArray("\xFF\xD8\xFF\xE0....") << true << false;
    QTest::newRow("GIF") << QByteArray("GIF89a....") << false << true;
    QTest::newRow("GIF, older") << QByteArray("GIF87a....") << false << true;
    QTest::newRow("MP4") << QByteArray("\0\0\0\x20"
                                       "ftypisom....",
        16) << false << true;
    QTest::newRow("QuickTime") << QByteArray("\0\0\0\x20"
                                             "ftypqt  ....",
        16) << false << false;
    QTest::newRow("WebM") << QByteArray("\x1A\x45\xDF\xA3....\x42\x82\x84webm") << false << true;
    QTest::newRow("Matroska") << QByteArray("\x1A\x45\xDF\xA3....\x42\x82\x88matroska") << false
                              << false;
    QTest::newRow("SVG") << QByteArray("<svg xmlns=''/>") << false << false;
    QTest::newRow("play list") << QByteArray("#EXTM3U\n") << false << false;
    QTest::newRow("nothing") << QByteArray() << false << false;
}

void tst_Strangers::format_countsByItsBytes()
{
    QFETCH(QByteArray, head);
    TestPackages files;
    const QString file = files.write("a.png", head);
    QTEST(isFormatForStrangers(file, HRFileUse::picture), "isPicture");
    QTEST(isFormatForStrangers(file, HRFileUse::clip), "isClip");
    QFETCH(bool, isPicture);
    QFETCH(bool, isClip);
    QCOMPARE(isFormatForStrangers(file, HRFileUse::any), isPicture || isClip);
    QVERIFY(!isFormatForStrangers(file, HRFileUse::text));
    for (const QString &text : { files.write("a.vtt", head), files.write("a.qm", head) }) {
        QVERIFY(isFormatForStrangers(text, HRFileUse::text));
        QVERIFY(isFormatForStrangers(text, HRFileUse::any));
    }
    QVERIFY(!isFormatForStrangers(files.path() + "/none.png", HRFileUse::picture));
}

void tst_Strangers::reader_takesFewFormats_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<bool>("isPicture");
    QTest::addColumn<bool>("isClip");
    QTest::newRow("PNG") << "png" << true << false;
    QTest::newRow("JPEG") << "jpg" << true << false;
    QTest::newRow("BMP") << "bmp" << false << false;
    QTest::newRow("GIF") << "gif" << false << true;
    QTest::newRow("MP4") << "mp4" << false << true;
    QTest::newRow("WebM") << "webm" << false << true;
    QTest::newRow("Matroska") << "mkv" << false << false;
}

void tst_Strangers::reader_takesFewFormats()
{
    QFETCH(QString, suffix);
    GateFixture f({ { strangersKey, true } });
    const QString file = f.write("Resources/a." + suffix, {});
    writeMedia(file);
    QVERIFY(f.show());
    const auto *reader = qobject_cast<HRContentReader *>(
        f.view()->rootContext()->contextProperty("hintreelReader").value<QObject *>());
    QFETCH(bool, isPicture);
    QFETCH(bool, isClip);
    QTRY_COMPARE(!reader->picture(file).isEmpty(), isPicture);
    QTRY_COMPARE(!reader->clip(file).isEmpty(), isClip);
    // No format is both, and the second refusal of a file is not told.
    QCOMPARE(f.warnings(), QStringList{ "Package \"Own\" may not use source \"" + file + "\"" });
}

void tst_Strangers::links_areAddressesAndTopics_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("opened");
    QTest::newRow("web") << "https://example.org/" << true;
    QTest::newRow("web, not secured") << "http://example.org/" << true;
    QTest::newRow("mail") << "mailto:a@example.org" << true;
    QTest::newRow("topic") << "tools" << true;
    QTest::newRow("file") << "file:///etc/passwd" << false;
    QTest::newRow("path") << "/usr/bin/true" << false;
    QTest::newRow("another program's") << "steam://run/1" << false;
    QTest::newRow("script") << "javascript:alert(1)" << false;
}

void tst_Strangers::links_areAddressesAndTopics()
{
    QFETCH(QString, link);
    QFETCH(bool, opened);
    GateFixture f({ { strangersKey, true } });
    f.start();
    QCOMPARE(f.host->manager()->openExternalResource(link), opened);
    QCOMPARE(f.host->openedResources.size(), int(opened));
    QCOMPARE(
        f.warnings(), opened ? QStringList() : QStringList{ "May not open link \"" + link + "\"" });
}

void tst_Strangers::link_tellsItsTarget()
{
    for (const bool strangers : { true, false }) {
        GateFixture f({ { strangersKey, strangers }, { localeKey, "en_US" } });
        f.settings.insert(allowNamedResourcesKey, true);
        f.settings.insert(uiFileKey, ":/hintreels/standard/ui/HintreelUI.qml");
        f.root.clear();
        f.attributes = " title='t' documentation='https://three.example/'";
        f.content = "<link to='https://one.example/'>bank</link>"
                    "<text>[mail](https://two.example/) or [letter](https://four.example/)</text>";
        QVERIFY(f.show());
        QString shown;
        QList<QQuickItem *> items{ f.view()->rootObject() };
        for (int i = 0; i < items.size(); ++i) {
            items += items[i]->childItems();
            if (auto *document = items[i]->property("textDocument").value<QQuickTextDocument *>())
                shown += document->textDocument()->toPlainText() + '\n';
            else
                shown += items[i]->property("text").toString() + '\n';
        }
        QCOMPARE(shown.contains("bank (https://one.example/)"), strangers);
        QCOMPARE(shown.contains("mail (https://two.example/)"), strangers);
        QCOMPARE(shown.contains("letter (https://four.example/)"), strangers);
        QCOMPARE(shown.contains(" (https://three.example/)"), strangers);
        QVERIFY(shown.contains("bank") && shown.contains("mail"));
    }
}

void tst_Strangers::network_staysShut_whateverIsAllowed()
{
    GateFixture f({ { strangersKey, true }, { allowNetworkKey, true } });
    QVERIFY(f.show());
    auto *image = new QQuickItem(f.view()->rootObject());
    QVERIFY(image);
    QQmlComponent component(f.view()->engine());
    component.setData("import QtQuick 2.15\nImage { source: 'http://127.0.0.1:1/a.png' }", QUrl());
    const std::unique_ptr<QObject> picture(component.create());
    QVERIFY2(picture, qPrintable(component.errorString()));
    const QString told = "Package \"Own\" may not use url \"http://127.0.0.1:1/a.png\"";
    QTRY_VERIFY(f.host->messages.contains({ int(messageWarning), told }));
}

void tst_Strangers::controlFiles_areLimited_data()
{
    QTest::addColumn<bool>("strangers");
    QTest::newRow("strangers") << true;
    QTest::newRow("others") << false;
}

void tst_Strangers::controlFiles_areLimited()
{
    QFETCH(bool, strangers);
    GateFixture f({ { strangersKey, strangers } });
    f.packages.writeControl(
        "Large", "a.xml", "<hintreel key='large'/><!--" + QByteArray(8 * 1024 * 1024, ' ') + "-->");
    for (int i = 0; i < 2001; ++i)
        f.packages.writeControl("Many", QString::number(10000 + i) + ".xml",
            "<hintreel key='many" + QByteArray::number(i) + "'/>");
    f.start();
    QCOMPARE(f.host->keys().contains("large"), !strangers);
    QVERIFY(f.host->keys().contains("many1999"));
    QCOMPARE(f.host->keys().contains("many2000"), !strangers);
}

void tst_Strangers::controlFile_isJudgedAgain_whenItHasGrown_data()
{
    QTest::addColumn<bool>("strangers");
    QTest::addColumn<bool>("inDatabase");
    QTest::newRow("strangers") << true << false;
    QTest::newRow("strangers, in a database") << true << true;
    QTest::newRow("others") << false << false;
}

void tst_Strangers::controlFile_isJudgedAgain_whenItHasGrown()
{
    QFETCH(bool, strangers);
    QFETCH(bool, inDatabase);
    GateFixture f({ { strangersKey, strangers } });
    const QString file
        = f.packages.writeControl("Grown", "%2.xml", "<hintreel key='grown'/>", "locale='en_US'");
    HRContext context;
    context.set(strangersKey, strangers);
    context.set(persistentDirectoryKey, f.packages.path());
    context.set(indexFileNameKey, "index.sqlite");
    HRSQLiteIndex database(&context, {});
    RecordingHost host(context, { f.packages.path() }, inDatabase ? &database : nullptr);
    f.packages.writeControl("Grown", "%2.xml",
        "<hintreel key='grown'/><!--" + QByteArray(8 * 1024 * 1024, ' ') + "-->", "locale='en_US'");
    for (int i = 0; i < 2; ++i)
        QCOMPARE(host.show("grown", QPoint(), nullptr), !strangers);
    if (!inDatabase)
        QCOMPARE(host.keys().contains("grown"), !strangers);
    const QString told = "Control file " + file + " is larger than 8388608 bytes";
    QCOMPARE(host.takeMessages(messageWarning), strangers ? QStringList{ told } : QStringList());
}

void tst_Strangers::controlDirectory_mayNotLieTooDeep()
{
    QString deep = "a";
    for (int level = 1; level < 20; ++level)
        deep += "/a";
    for (const bool tooDeep : { false, true }) {
        GateFixture f(
            { { strangersKey, true }, { controlDirectoryKey, tooDeep ? deep + "/a" : deep } });
        f.packages.write("Own.hintreels/" + deep + (tooDeep ? "/a" : "") + "/x.xml",
            "<hintreels >\n<hintreel key='deep'/></hintreels>");
        f.start();
        QCOMPARE(f.host->keys().contains("deep"), !tooDeep);
    }
}

void tst_Strangers::messages_areOneLine()
{
    GateFixture f;
    f.start();
    f.host->manager()->handleMessage(messageWarning, "a\nERROR:forged");
    QCOMPARE(f.warnings(), QStringList{ "a\\nERROR:forged" });
}

QTEST_MAIN(tst_Strangers)
#include "tst_Strangers.moc"
