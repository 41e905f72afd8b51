// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "gates/GateFixture.h"
#include "ui/reader/HRContentReader_p.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QQmlContext>

using namespace Hintreels;

namespace {

QByteArray picture()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QString refusal(const QString &kind, const QString &path)
{
    return QString("Package \"Own\" may not use %1 \"%2\"").arg(kind, path);
}

/// A working directory for one test.
struct WorkingDirectory
{
    explicit WorkingDirectory(const QString &path) { QDir::setCurrent(path); }
    ~WorkingDirectory() { QDir::setCurrent(before); }

    QString before = QDir::currentPath();
};

} // namespace

// What a package may open when it is kept to its own files.
class tst_OwnFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findResource_keepsToPackages_data();
    void findResource_keepsToPackages();
    void findResource_tellsARefusalOnce();
    void findResource_doesNotSearchTheWorkingDirectory();
    void ui_doesNotComeFromTheWorkingDirectory();
    void ui_doesNotComeFromOtherPackages_data();
    void ui_doesNotComeFromOtherPackages();
    void ui_mayBeNamedByTheHost();
    void qml_loadsNothingOfOthers_data();
    void qml_loadsNothingOfOthers();
    void pictures_areNotKeptToPackages_data();
    void pictures_areNotKeptToPackages();
    void qml_importsListedModulesOnly_data();
    void qml_importsListedModulesOnly();
    void qml_importsTheLibrarysModule_besideItsQmldir();
    void reader_looksAtOwnFilesOnly();
    void translations_areThePackagesOwn();
    void everything_isAllowed_byDefault();
};

void tst_OwnFiles::findResource_keepsToPackages_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("own") << "own.png" << true;
    QTest::newRow("below") << "a/b.png" << true;
    QTest::newRow("up and back") << "../Resources/own.png" << true;
    QTest::newRow("elsewhere in the package") << "../ui/x.png" << true;
    QTest::newRow("of a package that is searched") << "friend.png" << true;
    QTest::newRow("of the component directory") << "common.png" << true;
    QTest::newRow("out of the package") << "../../secret.png" << false;
    QTest::newRow("another package") << "../../Other.hintreels/Resources/other.png" << false;
    QTest::newRow("absolute") << "%1/secret.png" << false;
    QTest::newRow("link that leaves") << "link.png" << false;
    QTest::newRow("through a link to a directory") << "out/secret.png" << false;
    QTest::newRow("device") << "/dev/null" << false;
}

void tst_OwnFiles::findResource_keepsToPackages()
{
    QFETCH(QString, path);
    QFETCH(bool, allowed);
    GateFixture f({ { ownFilesOnlyKey, true } });
    f.settings.insert(componentDirectoryKey, f.packages.path() + "/shared");
    f.packages.write("shared/Resources/common.png", picture());
    f.root += " search='Friend'";
    f.writeUi({});
    for (const char *file : { "Resources/own.png", "Resources/a/b.png", "ui/x.png" })
        f.write(file, picture());
    f.packages.writeControl("Friend", "a.xml", "");
    f.packages.write("Friend.hintreels/Resources/friend.png", picture());
    f.packages.writeControl("Other", "a.xml", "");
    f.packages.write("Other.hintreels/Resources/other.png", picture());
    const QString secret = f.packages.write("secret.png", picture());
    const QString resources = f.packages.path() + "/Own.hintreels/Resources/";
    QVERIFY(QFile::link(secret, resources + "link.png"));
    QVERIFY(QFile::link(f.packages.path(), resources + "out"));
    if (path.contains("%1"))
        path = path.arg(f.packages.path());
    QVERIFY(f.show());

    const QString found = f.view()->findResource(path);

    QCOMPARE(!found.isEmpty(), allowed);
    const QString wanted = QDir(resources).absoluteFilePath(path);
    QCOMPARE(f.warnings(), allowed ? QStringList() : QStringList{ refusal("resources", wanted) });
}

void tst_OwnFiles::findResource_tellsARefusalOnce()
{
    GateFixture f({ { ownFilesOnlyKey, true } });
    f.writeUi({});
    QVERIFY(f.show());
    f.view()->findResource("/dev/null");
    f.view()->findResource("/dev/null");
    QCOMPARE(f.warnings(), QStringList{ refusal("resources", "/dev/null") });
}

void tst_OwnFiles::findResource_doesNotSearchTheWorkingDirectory()
{
    GateFixture f({ { ownFilesOnlyKey, true } });
    f.writeUi({});
    const WorkingDirectory directory(f.packages.path());
    f.packages.write("Resources", picture());
    QVERIFY(f.show());
    QCOMPARE(f.view()->findResource("missing.png"), QString());
}

void tst_OwnFiles::ui_doesNotComeFromTheWorkingDirectory()
{
    GateFixture f({ { ownFilesOnlyKey, true } });
    f.root.clear();
    const QString stray = f.packages.write("ui/HintreelUI.qml", rectangleQml(20, 20));
    const WorkingDirectory directory(f.packages.path());
    f.show();
    QVERIFY(!f.view()->rootObject());
    QCOMPARE(f.warnings(), QStringList{ refusal("ui", stray) });
}

void tst_OwnFiles::ui_doesNotComeFromOtherPackages_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("file");
    QTest::newRow("up") << "ui"
                        << "../Other.hintreels/ui/Other.qml";
    QTest::newRow("absolute") << "ui"
                              << "%1/Other.hintreels/ui/Other.qml";
    QTest::newRow("simple") << "simple"
                            << "../Other.hintreels/ui/Other.qml";
}

void tst_OwnFiles::ui_doesNotComeFromOtherPackages()
{
    QFETCH(QString, attribute);
    QFETCH(QString, file);
    GateFixture f({ { ownFilesOnlyKey, true }, { simpleTooltipKey, attribute == "simple" } });
    file.replace("%1", f.packages.path());
    f.root = QString("%1='%2'").arg(attribute, file).toUtf8();
    f.packages.write("Other.hintreels/ui/Other.qml", rectangleQml(20, 20));
    f.show();
    QVERIFY(!f.view()->rootObject());
    const QString wanted = QDir(f.packages.path() + "/Own.hintreels").absoluteFilePath(file);
    QCOMPARE(f.warnings(), QStringList{ refusal(attribute, wanted) });
}

void tst_OwnFiles::ui_mayBeNamedByTheHost()
{
    GateFixture f({ { ownFilesOnlyKey, true } });
    const QString file = f.packages.write(
        "host/Ui.qml", "import QtQuick 2.15\nItem { width: 20; height: 20; Part { id: part } }\n");
    f.packages.write("host/Part.qml", rectangleQml(5, 5));
    f.settings.insert(uiFileKey, file);
    f.root.clear();
    QVERIFY(f.show());
    QVERIFY(f.view()->rootObject());
    QCOMPARE(f.warnings(), QStringList());
}

namespace {

/// QML that loads what another package has; %1 stands for the directory of the packages.
struct ForeignLoad
{
    const char *name;
    QByteArray imports;
    QByteArray body;
    QString kind; ///< for which it is refused
    QString file;
};

QByteArray sourceOf(const QByteArray &type, const QByteArray &file)
{
    return type + " { source: 'file://%1/" + file + "' }";
}

QByteArray boundSourceOf(const QByteArray &type, const QByteArray &file)
{
    return "property string at: 'file://%1'; " + type + " { source: at + '/" + file + "' }";
}

QVector<ForeignLoad> loadsByItems()
{
    const QString file = "secret.png";
    QVector<ForeignLoad> loads;
    for (const char *type : { "Image", "AnimatedImage", "BorderImage", "FontLoader" })
        loads.append({ type, "", sourceOf(type, "secret.png"), "source", file });
    if (QT_VERSION_MAJOR >= 6) {
        const QByteArray bound = boundSourceOf("AnimatedImage", "secret.png");
        loads.append({ "AnimatedImage, bound", "", bound, "source", file });
    }
    return loads << ForeignLoad{ "Image, bound", "", boundSourceOf("Image", "secret.png"), "source",
        file }
                 << ForeignLoad{ "BorderImage, bound", "",
                        boundSourceOf("BorderImage", "secret.png"), "source", file }
                 << ForeignLoad{ "Loader, bound", "", boundSourceOf("Loader", "far/Far.qml"),
                        "source", "far/Far.qml" }
                 << ForeignLoad{ "Loader", "", "Loader { source: '../../far/Far.qml' }", "source",
                        "far/Far.qml" }
                 << ForeignLoad{ "Image, relative", "", "Image { source: '../../secret.png' }",
                        "source", file }
                 << ForeignLoad{ "Image of a Repeater", "",
                        "Repeater { model: 1; Image { source: '../../secret.png' } }", "source",
                        file }
                 << ForeignLoad{ "own property", "",
                        "property url at: '../../secret.png'; Image { source: at }", "at", file }
                 << ForeignLoad{ "object that is no item", "",
                        "property var part: QtObject {"
                        "property url at: Qt.resolvedUrl('../../secret.png') }",
                        "at", file };
}

QVector<ForeignLoad> loadsByScripts()
{
    const QString file = "secret.png";
    return {
        { "XMLHttpRequest", "",
            "Component.onCompleted: { var r = new XMLHttpRequest();"
            "r.open('GET', 'file://%1/secret.png'); r.send() }",
            "url", file },
        { "source of the view", "",
            "Component.onCompleted: hintreelView.source = 'file://%1/far/Far.qml'", "ui",
            "far/Far.qml" },
        { "Image that a script sets", "",
            "Image { id: image }\nComponent.onCompleted: image.source = '../../secret.png'",
            "source", file },
        { "Image outside the scene", "",
            "Component { id: picture; Image { source: '../../secret.png' } }\n"
            "Component.onCompleted: picture.createObject(null)",
            "url", file },
    };
}

QVector<ForeignLoad> loadsByImports()
{
    return {
        { "script", "import '../../far/far.js' as Far", "", "script", "far/far.js" },
        { "directory", "import '../../far'", "", "qmldir", "far/qmldir" },
        { "type of a qmldir", "import 'near'", "Far {}", "QML file", "far/Far.qml" },
        { "plugin", "import 'plugin'", "", "qmldir", "Own.hintreels/ui/plugin/qmldir" },
    };
}

} // namespace

void tst_OwnFiles::qml_loadsNothingOfOthers_data()
{
    QTest::addColumn<QByteArray>("imports");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("file");

    const QVector<ForeignLoad> loads = loadsByItems() + loadsByScripts() + loadsByImports();
    for (const ForeignLoad &load : loads)
        QTest::newRow(load.name) << load.imports << load.body << load.kind << load.file;
}

void tst_OwnFiles::qml_loadsNothingOfOthers()
{
    QFETCH(QByteArray, imports);
    QFETCH(QByteArray, body);
    QFETCH(QString, kind);
    QFETCH(QString, file);
    GateFixture f({ { ownFilesOnlyKey, true } });
    const QByteArray path = f.packages.path().toUtf8();
    f.packages.write("secret.png", picture());
    f.packages.write("far/Far.qml", rectangleQml(5, 5));
    f.packages.write("far/far.js", "var a = 1\n");
    f.packages.write("far/qmldir", "Far 1.0 Far.qml\n");
    f.write("ui/near/qmldir", "Far 1.0 ../../../far/Far.qml\n");
    f.write("ui/plugin/qmldir", "module plugin\nplugin far ../../../far\n");
    f.writeUi(body.replace("%1", path), imports.replace("%1", path));
    f.show();
    const QString wanted = refusal(kind, QString(path) + '/' + file);
    QTRY_VERIFY2(f.host->messages.contains({ int(messageWarning), wanted }), qPrintable(wanted));
}

// What docs/security.md says that no gate holds. Once this fails, that can go.
void tst_OwnFiles::pictures_areNotKeptToPackages_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::newRow("rich text") << QByteArray(
        "Text { id: shown; textFormat: Text.RichText; text: '<img src=\"file://%1\">' }");
    QTest::newRow("styled text") << QByteArray(
        "Text { id: shown; textFormat: Text.StyledText; text: '<img src=\"file://%1\">' }");
    QTest::newRow("Markdown") << QByteArray(
        "Text { id: shown; textFormat: Text.MarkdownText; text: '![x](file://%1)' }");
    // Qt 6 asks the gate for these, too.
    if (QT_VERSION_MAJOR < 6) {
        QTest::newRow("AnimatedImage, by a binding") << QByteArray(
            "property string at: '%1'\nAnimatedImage { id: shown; source: 'file://' + at }");
    }
}

void tst_OwnFiles::pictures_areNotKeptToPackages()
{
    QFETCH(QByteArray, item);
    GateFixture f({ { ownFilesOnlyKey, true } });
    QImage large(8, 300, QImage::Format_RGB32);
    large.fill(Qt::red);
    QBuffer bytes;
    large.save(&bytes, "PNG");
    const QString secret = f.packages.write("secret.png", bytes.data());
    f.writeUi("property alias shown: shown.implicitHeight\n" + item.replace("%1", secret.toUtf8()));
    QVERIFY(f.show());
    QTRY_VERIFY(f.view()->rootObject()->property("shown").toInt() >= 300);
    QCOMPARE(f.warnings(), QStringList());
}

void tst_OwnFiles::qml_importsListedModulesOnly_data()
{
    QTest::addColumn<QByteArray>("import");
    QTest::addColumn<QStringList>("further");
    QTest::addColumn<QStringList>("refused");
    const QStringList none;
    QTest::newRow("usual") << QByteArray("import QtQuick.Layouts 1.15\nimport QtQuick.Window 2.15")
                           << none << none;
    QTest::newRow("controls") << QByteArray("import QtQuick.Controls 2.15") << none << none;
    QTest::newRow("ours") << QByteArray("import com.zentora.hintreels.qml 1.0") << none << none;
    QTest::newRow("the tests'") << QByteArray("import QtTest 1.15") << none
                                << QStringList{ "QtTest" };
    QTest::newRow("one that Qt knows already")
        << QByteArray("import Hidden.Module 1.0") << none << QStringList{ "Hidden.Module" };
    QTest::newRow("one that the host adds")
        << QByteArray("import Hidden.Module 1.0") << QStringList{ "Hidden.Module" } << none;
}

void tst_OwnFiles::qml_importsListedModulesOnly()
{
    QFETCH(QByteArray, import);
    QFETCH(QStringList, further);
    QFETCH(QStringList, refused);
    qmlRegisterType<QObject>("Hidden.Module", 1, 0, "Thing");
    GateFixture f({ { ownFilesOnlyKey, true }, { qmlModulesKey, further } });
    f.writeUi({}, import);
    f.show();
    QStringList told;
    for (const QString &module : refused)
        told.append(refusal("import", module));
    QCOMPARE(f.warnings(), told);
    QCOMPARE(bool(f.view()->rootObject()), refused.isEmpty());
}

void tst_OwnFiles::qml_importsTheLibrarysModule_besideItsQmldir()
{
    qputenv("QML2_IMPORT_PATH", HINTREELS_SOURCE_DIR "/src/ui/qml");
    GateFixture f({ { ownFilesOnlyKey, true } });
    f.writeUi("property HRView view", "import com.zentora.hintreels.qml 1.1");
    f.show();
    qunsetenv("QML2_IMPORT_PATH");
    QCOMPARE(f.warnings(), QStringList());
    QVERIFY(f.view()->rootObject());
}

void tst_OwnFiles::reader_looksAtOwnFilesOnly()
{
    GateFixture f({ { ownFilesOnlyKey, true } });
    f.writeUi({});
    const QString own = f.write("Resources/own.png", picture());
    const QString secret = f.packages.write("secret.png", picture());
    const QString captions
        = f.packages.write("secret.vtt", "WEBVTT\n\n00:00.000 --> 00:01.000\nsecret\n");
    QVERIFY(f.show());
    auto *reader = qobject_cast<HRContentReader *>(
        f.view()->rootContext()->contextProperty("hintreelReader").value<QObject *>());
    QTRY_VERIFY(!reader->picture(own).isEmpty());
    QVERIFY(reader->picture(secret).isEmpty());
    QVERIFY(reader->clip(secret).isEmpty());
    QVERIFY(reader->captions(captions).isEmpty());
    QCOMPARE(f.warnings(), (QStringList{ refusal("source", secret), refusal("source", captions) }));
}

void tst_OwnFiles::translations_areThePackagesOwn()
{
    GateFixture f({ { ownFilesOnlyKey, true }, { localeKey, "de_DE" } });
    f.root += " l10n_name='../l10n'";
    f.writeUi({});
    const QString stray = f.packages.write("l10n/Hintreels_de_DE.qm", "stray");
    QVERIFY(f.show());
    QCOMPARE(f.view()->translate("text", "context"), QString("text"));
    QCOMPARE(f.warnings(), QStringList{ refusal("l10n_name", stray) });
}

void tst_OwnFiles::everything_isAllowed_byDefault()
{
    GateFixture f;
    f.packages.write("far/Far.qml", rectangleQml(5, 5));
    const QString secret = f.packages.write("secret.png", picture());
    f.writeUi("Image { objectName: 'image'; source: '../../secret.png' } Far {}",
        "import '../../far'\nimport QtTest 1.15");
    f.settings.insert(qmlModulesKey, QStringList());
    f.write("Resources/own.png", picture());
    f.show();
    QCOMPARE(f.view()->findResource(secret), secret);
    QCOMPARE(f.warnings(), QStringList());
}

QTEST_MAIN(tst_OwnFiles)
#include "tst_OwnFiles.moc"
