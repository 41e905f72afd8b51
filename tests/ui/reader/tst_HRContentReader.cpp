// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestPackage.h"
#include "ui/reader/HRContentReader_p.h"

#include <QBuffer>
#include <QImage>
#include <QJSEngine>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickTextDocument>
#include <QSignalSpy>
#include <QTextDocument>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

HRContentReader germanReader()
{
    return HRContentReader([] {
        return HRSceneSettings{ { QLocale("de_DE"), QLocale("en_US") }, false };
    });
}

HRXmlElement *addChild(HRXmlElement *parent, const QString &tag, const QString &text = {},
    const QMap<QString, QString> &attributes = {})
{
    auto *child = new HRXmlElement(parent);
    child->setTagName(tag);
    child->setContent(text);
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        child->setAttribute(it.key(), it.value());
    return child;
}

QVariantList blocksOf(HRXmlElement &element)
{
    return germanReader().read(&element).value("blocks").toList();
}

QByteArray png(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

// The header of a PNG file is 8 bytes of signature, then length, type, width and height of its
// first chunk; the checksum behind them is not looked at before the pixels are read.
QByteArray withWidthOf(qint32 width, QByteArray file)
{
    qToBigEndian(width, file.data() + 16);
    return file;
}

} // namespace

class tst_HRContentReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_returnsNothing_whenElementIsNull();
    void read_returnsAttributesAndSummary();
    void read_returnsBlocksInDocumentOrder();
    void read_leavesOut_whatShowsNothing_data();
    void read_leavesOut_whatShowsNothing();
    void read_keepsTagAndText_whenAttributesHaveTheirNames();
    void read_takesDirectChildrenOnly();
    void read_showsWhatTheUiSays_data();
    void read_showsWhatTheUiSays();
    void read_tellsTheDirectionOfWriting_data();
    void read_tellsTheDirectionOfWriting();
    void picture_answersPicturesOnly_data();
    void picture_answersPicturesOnly();
    void clip_tellsTheSizeInItsHeader();
    void measured_changes_whenAnAnswerComesLate();
    void returnMemory_forgetsNothing();
    void captions_areMapsInTheirOrder();
    void captions_areCut_whereNobodyCouldReadThem();
    void captionFiles_followTheReadersLocales();
    void shownTarget_isOneShortLine_data();
    void shownTarget_isOneShortLine();
    void reducedMotion_isAskedAnew();
    void showMarkdown_findsNothing_whenDocumentIsNull();
    void showMarkdown_asksForPictures_data();
    void showMarkdown_asksForPictures();
};

void tst_HRContentReader::read_returnsNothing_whenElementIsNull()
{
    QVERIFY(germanReader().read(nullptr).isEmpty());
}

void tst_HRContentReader::read_returnsAttributesAndSummary()
{
    HRXmlElement element;
    element.setAttribute("title", " The\n  Pen ");
    element.setAttribute("shortcut", "Ctrl+P");
    element.setAttribute("documentation", "tools/pen");
    addChild(&element, "text", "first");
    addChild(&element, "summary", "\n  Draws a\n  line.\n");
    addChild(&element, "summary", "second");

    const QVariantMap hint = germanReader().read(&element);

    QCOMPARE(hint["title"].toString(), QString("The Pen"));
    QCOMPARE(hint["shortcut"].toString(), QString("Ctrl+P"));
    QCOMPARE(hint["documentation"].toString(), QString("tools/pen"));
    QCOMPARE(hint["summary"].toString(), QString("Draws a line."));
    QCOMPARE(hint["blocks"].toList().size(), 1);
}

void tst_HRContentReader::read_returnsBlocksInDocumentOrder()
{
    HRXmlElement element;
    addChild(&element, "note", "\n  Mind\n  **this**.\n", { { "kind", "tip" } });
    addChild(&element, "keys", "\n  Draws\n  straight.\n", { { "press", "Shift+Drag" } });
    addChild(&element, "text", "\n  Text.\n");

    QCOMPARE(blocksOf(element),
        (QVariantList{
            QVariantMap{ { "block", "note" }, { "kind", "tip" }, { "text", "Mind\n**this**." } },
            QVariantMap{
                { "block", "keys" }, { "press", "Shift+Drag" }, { "text", "Draws straight." } },
            QVariantMap{ { "block", "text" }, { "text", "Text." } } }));
}

void tst_HRContentReader::read_leavesOut_whatShowsNothing_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("shown");

    QTest::newRow("text") << "text"
                          << ""
                          << "Text" << true;
    QTest::newRow("blank text") << "text"
                                << ""
                                << " \n " << false;
    QTest::newRow("note") << "note"
                          << ""
                          << "Text" << true;
    QTest::newRow("blank note") << "note"
                                << ""
                                << "" << false;
    QTest::newRow("keys without text") << "keys"
                                       << "press"
                                       << "" << true;
    QTest::newRow("keys without keys") << "keys"
                                       << ""
                                       << "Text" << false;
    QTest::newRow("picture without caption") << "picture"
                                             << "source"
                                             << "" << true;
    QTest::newRow("picture without source") << "picture"
                                            << ""
                                            << "Caption" << false;
    QTest::newRow("link without label") << "link"
                                        << "to"
                                        << "" << true;
    QTest::newRow("link without target") << "link"
                                         << ""
                                         << "Label" << false;
    QTest::newRow("video without caption") << "video"
                                           << "source"
                                           << "" << true;
    QTest::newRow("video without source") << "video"
                                          << ""
                                          << "Caption" << false;
    QTest::newRow("unknown element") << "blink"
                                     << ""
                                     << "Text" << false;
    QTest::newRow("known element in upper case") << "Text"
                                                 << ""
                                                 << "Text" << false;
}

void tst_HRContentReader::read_leavesOut_whatShowsNothing()
{
    QFETCH(QString, tag);
    QFETCH(QString, attribute);
    QFETCH(QString, text);
    QFETCH(bool, shown);
    HRXmlElement element;
    HRXmlElement *child = addChild(&element, tag, text);
    if (!attribute.isEmpty())
        child->setAttribute(attribute, "something");

    QCOMPARE(blocksOf(element).size(), shown ? 1 : 0);
}

void tst_HRContentReader::read_keepsTagAndText_whenAttributesHaveTheirNames()
{
    HRXmlElement element;
    addChild(&element, "text", "real", { { "block", "forged" }, { "text", "forged" } });

    const QVariantMap block = blocksOf(element).value(0).toMap();

    QCOMPARE(block["block"].toString(), QString("text"));
    QCOMPARE(block["text"].toString(), QString("real"));
}

void tst_HRContentReader::read_takesDirectChildrenOnly()
{
    HRXmlElement element;
    HRXmlElement *unknown = addChild(&element, "section");
    addChild(unknown, "text", "inner");
    addChild(unknown, "summary", "inner");
    new QObject(&element);

    const QVariantMap hint = germanReader().read(&element);

    QVERIFY(hint["blocks"].toList().isEmpty());
    QVERIFY(hint["summary"].toString().isEmpty());
}

void tst_HRContentReader::read_showsWhatTheUiSays_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("shown");
    QTest::newRow("another text") << "(function (text) { return text + '!' })"
                                  << "The Pen!";
    QTest::newRow("nothing") << "(function () {})"
                             << "The Pen";
    QTest::newRow("a number") << "(function () { return 7 })"
                              << "The Pen";
    QTest::newRow("an error") << "(function () { throw new Error('no') })"
                              << "The Pen";
    QTest::newRow("no function") << "'other'"
                                 << "The Pen";
}

void tst_HRContentReader::read_showsWhatTheUiSays()
{
    QFETCH(QString, function);
    HRXmlElement element;
    element.setAttribute("title", "The Pen");
    QJSEngine engine;
    const QVariantMap hint = germanReader().read(&element, engine.evaluate(function));
    QTEST(hint["title"].toString(), "shown");
    QCOMPARE(hint["summary"].toString(), QString()); // nothing is not said
}

void tst_HRContentReader::read_tellsTheDirectionOfWriting_data()
{
    QTest::addColumn<QString>("contentLocale");
    QTest::addColumn<QString>("currentLocale");
    QTest::addColumn<bool>("rightToLeft");

    QTest::newRow("of the content") << "he_IL"
                                    << "en_US" << true;
    QTest::newRow("of the content, not the current one") << "en_US"
                                                         << "ar_EG" << false;
    QTest::newRow("current, when the content has none") << ""
                                                        << "ar_EG" << true;
    QTest::newRow("current, left to right") << ""
                                            << "de_DE" << false;
}

void tst_HRContentReader::read_tellsTheDirectionOfWriting()
{
    QFETCH(QString, contentLocale);
    QFETCH(QString, currentLocale);
    QFETCH(bool, rightToLeft);
    HRXmlElement root;
    root.setAttribute("locale", contentLocale);
    HRXmlElement *element = addChild(&root, "hintreel");
    const HRContentReader reader([currentLocale] {
        return HRSceneSettings{ { QLocale(currentLocale) }, false };
    });

    QCOMPARE(reader.read(element)["rightToLeft"].toBool(), rightToLeft);
}

void tst_HRContentReader::picture_answersPicturesOnly_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("shown");

    QTest::newRow("picture") << png({ 20, 10 }) << true;
    QTest::newRow("empty file") << QByteArray() << false;
    QTest::newRow("no picture") << QByteArray("<html>not a picture</html>") << false;
    QTest::newRow("picture that takes too much memory")
        << withWidthOf(30'000'000, png({ 20, 10 })) << false;
}

void tst_HRContentReader::picture_answersPicturesOnly()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, shown);
    TestPackages files;
    const QString path = files.write("picture.png", content);

    const HRContentReader reader = germanReader();

    const QVariantMap picture{ { "url", QUrl::fromLocalFile(path) }, { "width", 20 },
        { "height", 10 } };
    QTRY_COMPARE(reader.picture(path), shown ? picture : QVariantMap());
    QVERIFY(reader.picture(files.path()).isEmpty());
    QVERIFY(reader.picture("Resources").isEmpty());
}

void tst_HRContentReader::clip_tellsTheSizeInItsHeader()
{
    TestPackages files;
    const HRContentReader reader = germanReader();

    QTRY_COMPARE(reader.clip(TestClip().write(files.path() + "/clip.mp4")),
        (QVariantMap{ { "width", 64 }, { "height", 48 } }));
    QVERIFY(reader.clip(files.write("text.mp4", "not a clip")).isEmpty());
}

void tst_HRContentReader::measured_changes_whenAnAnswerComesLate()
{
    TestPackages files;
    TestClip().write(files.path() + "/clip.mp4");
    const HRContentReader reader = germanReader();
    QSignalSpy spy(&reader, &HRContentReader::measuredChanged);

    // Each answer takes some of the little time that is waited for all those of a hint.
    QString path = files.path() + "/clip.mp4";
    for (int asked = 0; asked < 1000 && !reader.clip(path).isEmpty(); ++asked)
        path.insert(files.path().size(), "/.");

    QTRY_VERIFY(!spy.isEmpty());
    QVERIFY(reader.measured() > 0);
    QCOMPARE(reader.clip(path), (QVariantMap{ { "width", 64 }, { "height", 48 } }));
}

void tst_HRContentReader::returnMemory_forgetsNothing()
{
    TestPackages files;
    const QString path = files.write("picture.png", png({ 20, 10 }));
    const HRContentReader reader = germanReader();
    QTRY_COMPARE(reader.picture(path)["width"].toInt(), 20);
    QVERIFY(QFile::remove(path));

    reader.returnMemory();

    QCOMPARE(reader.picture(path)["width"].toInt(), 20);
}

void tst_HRContentReader::captions_areMapsInTheirOrder()
{
    TestPackages files;
    const QString path = files.write(
        "clip.vtt", "WEBVTT\n\n00:00.000 --> 00:01.500\nOne\n\n00:02.000 --> 00:03.000\nTwo\n");

    QCOMPARE(germanReader().captions(path),
        (QVariantList{ QVariantMap{ { "start", 0.0 }, { "end", 1.5 }, { "text", "One" } },
            QVariantMap{ { "start", 2.0 }, { "end", 3.0 }, { "text", "Two" } } }));
}

void tst_HRContentReader::captions_areCut_whereNobodyCouldReadThem()
{
    TestPackages files;
    const QByteArray cue = "\n\n00:00.000 --> 00:01.000\n";
    const QString path = files.write("clip.vtt", "WEBVTT" + cue + QByteArray(90'000, 'x') + "\n");
    const HRContentReader reader = germanReader();

    const QString cut = QString(499, 'x') + QString::fromUtf8("…");
    QCOMPARE(reader.captions(path)[0].toMap()["text"].toString(), cut);
    QCOMPARE(reader.caption(QString(1000, 'x')), cut);
}

void tst_HRContentReader::captionFiles_followTheReadersLocales()
{
    QCOMPARE(germanReader().captionFiles("clip.mp4"),
        (QStringList{ "clip.de_DE.vtt", "clip.en_US.vtt", "clip.vtt" }));
}

void tst_HRContentReader::shownTarget_isOneShortLine_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("shown");
    QTest::newRow("as it is") << "https://a.example/"
                              << " (https://a.example/)";
    QTest::newRow("the link's text") << "text"
                                     << "";
    QTest::newRow("two lines") << "a\nb"
                               << " (a\\nb)";
    QTest::newRow("turned round") << QString("a") + QChar(0x202E) + "b"
                                  << " (a\\u202eb)";
    QTest::newRow("long") << QString(1000, 'a') << " (" + QString(199, 'a') + QChar(0x2026) + ")";
}

void tst_HRContentReader::shownTarget_isOneShortLine()
{
    QFETCH(QString, target);
    const HRContentReader reader([] {
        return HRSceneSettings{ { QLocale("en_US") }, false, true };
    });
    QTEST(reader.shownTarget(target, "text"), "shown");
}

void tst_HRContentReader::reducedMotion_isAskedAnew()
{
    bool reduced = false;
    const HRContentReader reader([&reduced] {
        return HRSceneSettings{ { QLocale("en_US") }, reduced };
    });
    QVERIFY(!reader.reducedMotion());

    reduced = true;

    QVERIFY(reader.reducedMotion());
}

void tst_HRContentReader::showMarkdown_findsNothing_whenDocumentIsNull()
{
    QVERIFY(germanReader().showMarkdown(nullptr, "[a](b)", {}).isEmpty());
}

void tst_HRContentReader::showMarkdown_asksForPictures_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("width"); // of the picture's place, 0 where its alternative text stands
    QTest::newRow("found") << "(function (path) { return '%1/' + path })" << 20;
    QTest::newRow("not found") << "(function () {})" << 0;
    QTest::newRow("no string") << "(function () { return 7 })" << 0;
    QTest::newRow("an error") << "(function () { throw new Error('no') })" << 0;
    QTest::newRow("no function") << "undefined" << 0;
}

void tst_HRContentReader::showMarkdown_asksForPictures()
{
    QFETCH(QString, function);
    QFETCH(int, width);
    TestPackages files;
    const QString path = files.write("a.png", png({ 20, 10 }));
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.15\nTextEdit { textFormat: TextEdit.RichText }", {});
    const std::unique_ptr<QObject> edit(component.create());
    auto *document = edit->property("textDocument").value<QQuickTextDocument *>();
    const HRContentReader reader = germanReader();
    QTRY_VERIFY(!reader.picture(path).isEmpty());

    const QVariantMap shown = reader.showMarkdown(document, "One ![two](a.png)",
        { { "room", QSizeF(100, 100) }, { "links", 10 } },
        engine.evaluate(function.replace("%1", files.path())));

    const QVariantList pictures = shown["pictures"].toList();
    QCOMPARE(pictures.size(), width > 0 ? 1 : 0);
    QCOMPARE(pictures.value(0).toMap()["width"].toInt(), width);
    QCOMPARE(document->textDocument()->toPlainText() == "One two", width == 0);
}

QTEST_MAIN(tst_HRContentReader)
#include "tst_HRContentReader.moc"
