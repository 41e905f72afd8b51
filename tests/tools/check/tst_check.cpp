// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Rule.h"
#include "tools/CommandRun.h"
#include "tools/check/GoodPackage.h"

#include <QDir>
#include <QSet>
#include <QtTest>

namespace {

const QString command = HINTREELS_COMMAND;

} // namespace

/// The rules of `hintreels check`, each with mistakes that it finds and others that it leaves
/// alone.
class tst_check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check_findsMistake_inControlFile_data();
    void check_findsMistake_inControlFile();
    void check_findsMistake_inPackage_data();
    void check_findsMistake_inPackage();
    void check_leavesAlone_data();
    void check_leavesAlone();
    void check_findsNothing_inPackagesOfThisRepository();
    void eachRule_hasMistake();

private:
    void addMistake(
        const char *name, const QByteArray &text, const QByteArray &by, const char *finding);
    void addFile(
        const char *name, const QString &path, const QByteArray &content, const char *finding);
    void learnTag(const QByteArray &finding);

    QSet<QByteArray> m_foundTags;
};

/// @param finding of the English file, from its line on
void tst_check::addMistake(
    const char *name, const QByteArray &text, const QByteArray &by, const char *finding)
{
    QTest::newRow(name) << text << by << QByteArray(finding);
    learnTag(finding);
}

void tst_check::learnTag(const QByteArray &finding)
{
    m_foundTags.insert(finding.split(':').value(3).trimmed());
}

void tst_check::check_findsMistake_inControlFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("by");
    QTest::addColumn<QByteArray>("finding");

    addMistake("unknown element", "<summary>Draws a free line.</summary>",
        "<sunmary>Draws</sunmary>",
        "5:5: error: unknown-element: hintreel knows no element sunmary; did you mean summary?");
    addMistake("unknown element in the root", "<hintreel key=\"editUndo\"",
        "<hint/>\n  <hintreel key=\"editUndo\"",
        "13:3: error: unknown-element: hintreels knows no element hint");
    addMistake("element in the wrong place", "<link to",
        "<keys press=\"a\"><link to=\"a\"/></keys><link to",
        "11:21: error: element-in-text: link is left out of keys");
    addMistake("XML elements in a text", "<![CDATA[Press, *drag* and <release>.]]>",
        "Press, <b>drag</b>.", "6:18: error: element-in-text: b is left out of text");
    addMistake("misspelt attribute", "title=\"Pen\"", "tilte=\"Pen\"",
        "4:27: error: unknown-attribute: hintreel knows no attribute tilte; did you mean title?");
    addMistake("attribute of another element", "<link to", "<link press=\"a\" to",
        "11:11: error: unknown-attribute: link knows no attribute press");
    addMistake("attribute in a tag over several lines", "loop=\"true\"", "\n  lop = 'true'",
        "8:3: error: unknown-attribute: video knows no attribute lop; did you mean loop?");
    addMistake("missing attribute", " to=\"https://example.org\"", "",
        "11:5: error: missing-attribute: link shows nothing without to");
    addMistake("entry without key", " key=\"editUndo\"", "",
        "13:3: error: missing-attribute: hintreel shows nothing without key");
    addMistake("unknown kind", "kind=\"tip\"", "kind=\"tipp\"",
        "10:11: warning: unknown-value: kind cannot be \"tipp\"; did you mean tip?");
    addMistake("unknown loop", "loop=\"true\"", "loop=\"yes\"",
        "7:42: warning: unknown-value: loop cannot be \"yes\"");
    addMistake("missing picture", "pictures/pen.png", "pen.png",
        "9:14: error: missing-file: there is no file pen.png in Resources");
    addMistake("missing clip", "pen.mp4", "penn.mp4",
        "7:12: error: missing-file: there is no file penn.mp4 in Resources; did you mean pen.mp4?");
    addMistake("path to a file outside", "pen.mp4", "/etc/passwd",
        "7:12: error: path-outside: /etc/passwd lies outside of the package");
    addMistake("path that leads outside", "pen.mp4", "../../other.mp4",
        "7:12: error: path-outside: ../../other.mp4 lies outside of the package");
    addMistake(
        "bad XML in the middle", "</text>", "</txt>", "6:56: error: xml: not XML: tag mismatch");
    addMistake("bare ampersand", "&amp;", "&", "9:71: error: xml: not XML: ");
    addMistake("file cut off", "  </hintreel>\n</hintreels>\n", "",
        "14:51: error: xml: not XML: unexpected end of file");
    addMistake("Latin-1 bytes", "Größe",
        "Gr\xF6\xDF"
        "e",
        "10:24: error: encoding: the file is not UTF-8");
    addMistake("root tag over two lines", "<hintreels locale=\"en_US\"\n",
        "<hintreels\nlocale=\"en_US\"\n",
        "2:1: error: root: the library passes this file over: the first line of the tag");
    addMistake("another root", "<hintreels locale=\"en_US\"\n    search=\"Standard\">",
        "<Hintreels locale=\"en_US\"><hintreels>",
        "2:1: error: root: the library passes this file over: the first element is Hintreels, not "
        "hintreels; did you mean hintreels?");
    addMistake("locale that is a word", "\"en_US\"", "\"english\"",
        "2:12: error: locale: there is no locale \"english\"; the library takes it for C; did you "
        "mean en_US?");
    addMistake("locale of no country", "\"en_US\"", "\"en-UK\"",
        "2:12: error: locale: there is no locale \"en-UK\"; the library takes it for en_US; did "
        "you "
        "mean en_GB?");
    addMistake("no search", "\n    search=\"Standard\"", "",
        "2:1: error: no-ui: nothing shows these hints");
    addMistake("no such user interface", "<hintreel key=\"editUndo\"",
        "<hintreel ui=\"my.qml\" key=\"editUndo\"",
        "13:13: error: no-ui: there is no user interface my.qml");
    addMistake("misspelt search", "\"Standard\"", "\"Standardd\"",
        "3:5: error: search: there is no package Standardd; did you mean Standard?");
    addMistake("key twice", "<hintreel key=\"editUndo\"", "<hintreel key=\"toolPen\"",
        "13:13: error: key-twice: the key toolPen stands in line 4 already");
    addMistake("suppression without a reason", "<link to", "<!-- hintreels: ignore xml --><link to",
        "11:5: warning: suppression: the comment gives no reason");
    addMistake("suppression of no rule", "<link to", "<!-- hintreels: ignore xlm: so --><link to",
        "11:5: warning: suppression: there is no rule \"xlm\"; did you mean xml?");
    addMistake("long summary", "Draws a free line.", QByteArray(161, 'a'),
        "5:5: hint: summary-length: the summary has 161 characters; 160 are plenty");
    addMistake("long paragraph", "*drag*", QByteArray(351, 'a'),
        "6:5: hint: paragraph-length: the paragraph that begins with \"Press, aaaaaaaaaaaaa\" "
        "has ");
    addMistake("title in the summary", "Draws a free line.", "Pen: draws a free line.",
        "5:5: hint: title-repeated: the summary begins with the title");
    addMistake("no alternative", " alt=\"A line\" width=\"8\"", "",
        "9:5: warning: alt: picture does not say what it shows, in alt");
    addMistake("file name for an alternative", "alt=\"A line\" loop", "alt=\"pen\" loop",
        "7:29: warning: alt: alt names the file");
    addMistake("missing picture in a text", "*drag*", "![a pen](penn.png)",
        "6:36: error: text-picture: the package has no picture penn.png");
    addMistake("title that is cut", "\"Undo\"", '"' + QByteArray(301, 'a') + '"',
        "13:3: warning: cut: the hint is longer than what is shown of one");
    addMistake("entry with nothing in it",
        " title=\"Undo\">\n    <summary>Takes back the last change.</summary>", ">",
        "13:3: warning: empty-hint: the hint shows nothing");
}

void tst_check::check_findsMistake_inControlFile()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, by);
    QFETCH(QByteArray, finding);
    const GoodPackage good;
    good.replace(text, by);

    const CommandRun run(command, { "check", good.path() });

    QCOMPARE(run.status, finding.contains(" hint: ") ? 0 : 1);
    QCOMPARE(run.errors, QByteArray());
    const QByteArray line = good.english().toUtf8() + ':' + finding;
    QVERIFY2(('\n' + run.output).contains('\n' + line), run.output.constData());
}

/// @param finding from the path below the data path on
void tst_check::addFile(
    const char *name, const QString &path, const QByteArray &content, const char *finding)
{
    QTest::newRow(name) << path << content << QByteArray(finding);
    learnTag(QByteArray(strchr(finding, ':') + 1));
}

void tst_check::check_findsMistake_inPackage_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("finding");
    const QByteArray file = goodControlFile();

    addFile("file in a sub-folder", "Painter.hintreels/Control/more/en_US.xml", file,
        "Painter.hintreels/Control/more/en_US.xml:1:1: error: misplaced-file: the library does not "
        "see this file: only files directly in the directory Control are read");
    addFile("file beside the folder", "Painter.hintreels/en_US.xml", file,
        "Painter.hintreels/en_US.xml:1:1: error: misplaced-file: ");
    addFile("package suffix", "Writer.hintreel/Control/en_US.xml", file,
        "Writer.hintreel:1:1: error: package-suffix: the library does not take this directory for "
        "a package; did you mean Writer.hintreels?");
    addFile("package suffix in capitals", "Writer.Hintreels/Control/en_US.xml", file,
        "Writer.Hintreels:1:1: error: package-suffix: ");
    addFile("no control directory", "Writer.hintreels/control/en_US.xml", file,
        "Writer.hintreels:1:1: error: control-directory: the package has no directory Control, but "
        "one control");
    addFile("damaged clip", "Painter.hintreels/Resources/pen.mp4", "no clip",
        "Painter.hintreels/Resources/pen.mp4:1:1: error: clip: Could not open media at: pen.mp4");
    addFile("damaged picture", "Painter.hintreels/Resources/pictures/pen.png", "\x89PNG\r\n",
        "Painter.hintreels/Resources/pictures/pen.png:1:1: error: picture: ");
    addFile("captions that are none", "Painter.hintreels/Resources/pen.de_DE.vtt", "Press.",
        "Painter.hintreels/Resources/pen.de_DE.vtt:1:1: warning: captions: ");
    addFile("key spelled otherwise", "Painter.hintreels/Control/de_DE.xml",
        QByteArray(file).replace("en_US", "de_DE").replace("editUndo", "editUndu"),
        "Painter.hintreels/Control/de_DE.xml:13:13: warning: key-spelling: only this locale has "
        "the key editUndu; others have editUndo");
    addFile("key in two files", "Painter.hintreels/Control/en_US2.xml", file,
        "Painter.hintreels/Control/en_US2.xml:4:13: warning: key-in-two-files: the key toolPen is "
        "in en_US.xml, too");
}

void tst_check::check_findsMistake_inPackage()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, finding);
    const GoodPackage good;
    good.write("../" + path, content);

    const CommandRun run(command, { "check", good.path() });

    QCOMPARE(run.status, 1);
    const QByteArray line = good.path().toUtf8() + '/' + finding;
    QVERIFY2(('\n' + run.output).contains('\n' + line), run.output.constData());
}

void tst_check::check_leavesAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("by");

    QTest::newRow("the good package") << QByteArray("Größe") << QByteArray("Größe");
    QTest::newRow("language alone") << QByteArray("\"en_US\"") << QByteArray("\"en\"");
    QTest::newRow("other signs") << QByteArray("\"en_US\"") << QByteArray("\"en-GB\"");
    QTest::newRow("with a script") << QByteArray("\"en_US\"") << QByteArray("\"zh_Hans_CN\"");
    QTest::newRow("no locale") << QByteArray(" locale=\"en_US\"") << QByteArray(" locale=\"\"");
    QTest::newRow("separators") << QByteArray("\"Standard\"")
                                << QByteArray("\" Standard,; Painter \"");
    QTest::newRow("key in no other locale") << QByteArray("editUndo") << QByteArray("zoomFit");
    QTest::newRow("placeholder") << QByteArray("pen.mp4") << QByteArray("%(clip)s.mp4");
    QTest::newRow("attribute of XML itself")
        << QByteArray("<hintreels ") << QByteArray("<hintreels xml:lang=\"en\" ");
    const QByteArray good = goodControlFile();
    QTest::newRow("encoding that is named")
        << good << QString::fromUtf8(good).replace("UTF-8", "ISO-8859-1").toLatin1();
    QTest::newRow("summary that just fits")
        << QByteArray("Draws a free line.") << QByteArray(160, 'a');
    QTest::newRow("long list") << QByteArray("*drag*")
                               << "\n- " + QByteArray(300, 'a') + "\n- " + QByteArray(300, 'a');
    QTest::newRow("word that begins like the title")
        << QByteArray("Draws a free line.") << QByteArray("Pencils a free line.");
    QTest::newRow("picture in a text")
        << QByteArray("*drag*") << QByteArray("![a pen](pictures/pen.png)");
    QTest::newRow("ellipsis of the writer's own")
        << QByteArray("\"Undo\"") << QByteArray("\"Undo\xE2\x80\xA6\"");
    QTest::newRow("suppressed element")
        << QByteArray("<link to")
        << QByteArray("<!-- hintreels: ignore unknown-element: ours -->"
                      "\n<mark>a</mark>\n<link to");
    QTest::newRow("suppressed in the whole file")
        << QByteArray("?>\n<hintreels locale=\"en_US\"")
        << QByteArray("?>\n<!-- hintreels: ignore locale: it is our own -->\n<hintreels "
                      "locale=\"klingon\"");
}

void tst_check::check_leavesAlone()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, by);
    const GoodPackage good;
    good.replace(text, by);

    const CommandRun run(command, { "check", good.path() });

    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.status, 0);
}

void tst_check::check_findsNothing_inPackagesOfThisRepository()
{
    const QDir sources(SOURCES);
    QStringList arguments{ "check" };
    for (const char *path :
        { "packages", "examples/attach", "examples/minimal", "examples/sketchpad" })
        arguments.append(sources.filePath(path));

    const CommandRun run(command, arguments);

    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.status, 0);
}

void tst_check::eachRule_hasMistake()
{
    if (m_foundTags.isEmpty())
        QSKIP("the tests that name mistakes did not run");
    for (const Hintreels::Rule &rule : Hintreels::allRules())
        QVERIFY2(m_foundTags.contains(rule.tag), rule.tag);
}

QTEST_MAIN(tst_check)
#include "tst_check.moc"
