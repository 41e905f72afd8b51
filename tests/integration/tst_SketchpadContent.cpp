// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "index/HRIndex.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QImageReader>
#include <QtTest>

using namespace Hintreels;

Q_DECLARE_METATYPE(QDomElement)

namespace {

const QString sketchpad = QStringLiteral(SKETCHPAD_DIRECTORY);
const QString package = sketchpad + "/Sketchpad.hintreels";
const QString standardPackage = QStringLiteral(STANDARD_PACKAGE);
const QStringList locales = { "en_US", "de_DE" };

// What a reader takes in at one glance under the title.
const int longestSummary = 60;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The root of an XML file; null where the file is not well-formed.
QDomElement rootOf(const QString &path)
{
    QDomDocument document;
    document.setContent(contentOf(path));
    return document.documentElement();
}

QVector<QDomElement> childrenOf(const QDomElement &parent, const QString &tag = {})
{
    QVector<QDomElement> children;
    for (auto child = parent.firstChildElement(tag); !child.isNull();
         child = child.nextSiblingElement(tag))
        children.append(child);
    return children;
}

QVector<QDomElement> hintsOf(const QString &locale)
{
    return childrenOf(rootOf(package + "/Control/" + locale + ".xml"));
}

/// All that a hint says, attributes included.
QStringList textsOf(const QDomElement &hint)
{
    QStringList texts{ hint.text() };
    QVector<QDomElement> elements = childrenOf(hint);
    elements.append(hint);
    for (const QDomElement &element : qAsConst(elements)) {
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.size(); ++i)
            texts.append(attributes.item(i).nodeValue());
    }
    return texts;
}

QStringList keysOf(const QString &locale)
{
    QStringList keys;
    const auto hints = hintsOf(locale);
    for (const QDomElement &hint : hints)
        keys.append(hint.attribute("key"));
    return keys;
}

/// Every hint of both languages as a data row, named by its locale and key.
void addHints()
{
    QTest::addColumn<QDomElement>("hint");
    for (const QString &locale : locales) {
        const auto hints = hintsOf(locale);
        for (const QDomElement &hint : hints)
            QTest::addRow("%s %s", qPrintable(locale), qPrintable(hint.attribute("key"))) << hint;
    }
}

/// Takes every control file of a package into an index.
void indexPackage(HRIndex &index, const QString &path)
{
    const QString directory = QFileInfo(path).canonicalFilePath();
    QDirIterator files(directory + "/Control", { "*.xml" }, QDir::Files);
    while (files.hasNext())
        index.indexControlFile(files.next(), directory);
}

/// Every match of a pattern's first group in all files below a directory with one of the suffixes.
QSet<QString> findAll(const QString &directory, const QStringList &suffixes, const QString &pattern)
{
    QSet<QString> found;
    QDirIterator files(directory, suffixes, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        auto matches
            = QRegularExpression(pattern).globalMatch(QString::fromUtf8(contentOf(files.next())));
        while (matches.hasNext())
            found.insert(matches.next().captured(1));
    }
    return found;
}

} // namespace

/// Looks at what Sketchpad's hints say: each is complete, and names only what there is.
class tst_SketchpadContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlFile_namesItsLocaleAndTheStandardUi_data();
    void controlFile_namesItsLocaleAndTheStandardUi();
    void hint_isFoundWithItsUi_data();
    void hint_isFoundWithItsUi();
    void keys_areUnique_data();
    void keys_areUnique();
    void germanKeys_areMostOfTheEnglishOnes();
    void hint_hasTitleSummaryAndBody_data();
    void hint_hasTitleSummaryAndBody();
    void hint_usesTheVocabularyOnly_data();
    void hint_usesTheVocabularyOnly();
    void hint_closesWhatItsMarkdownOpens_data();
    void hint_closesWhatItsMarkdownOpens();
    void hint_interpolatesOnlyWhatSketchpadSets_data();
    void hint_interpolatesOnlyWhatSketchpadSets();
    void pictures_canBePainted_data();
    void pictures_canBePainted();
    void picturesAndClips_areAllShown();
    void tools_haveClips_data();
    void tools_haveClips();
    void links_leadToPages_data();
    void links_leadToPages();
    void translation_isOfWordsOfTheStandardUi();
};

void tst_SketchpadContent::controlFile_namesItsLocaleAndTheStandardUi_data()
{
    QTest::addColumn<QString>("locale");
    for (const QString &locale : locales)
        QTest::newRow(qPrintable(locale)) << locale;
}

void tst_SketchpadContent::controlFile_namesItsLocaleAndTheStandardUi()
{
    QFETCH(QString, locale);
    const QDomElement root = rootOf(package + "/Control/" + locale + ".xml");
    QCOMPARE(root.tagName(), QString("hintreels"));
    QCOMPARE(root.attribute("locale"), locale);
    QCOMPARE(root.attribute("search"), QString("Standard"));
}

void tst_SketchpadContent::hint_isFoundWithItsUi_data()
{
    addHints();
}

void tst_SketchpadContent::hint_isFoundWithItsUi()
{
    QFETCH(QDomElement, hint);
    HRIndex index(nullptr, {});
    indexPackage(index, standardPackage);
    indexPackage(index, package);
    QString directory;
    int depth = 0;
    HRXmlElement *root = nullptr;
    const QString locale = QString(QTest::currentDataTag()).section(' ', 0, 0);
    const HRXmlElement *found
        = index.retrieve(hint.attribute("key"), QLocale(locale), directory, depth, root);
    QVERIFY(found);
    const std::unique_ptr<HRXmlElement> owner(root);
    QCOMPARE(found->attribute("title"), hint.attribute("title"));
    QCOMPARE(found->attribute("HRPackagName"), QString("Sketchpad"));
    QVERIFY(index.componentPathsForElement(found, "ui/HintreelUI.qml")
                .contains(QFileInfo(standardPackage).canonicalFilePath() + "/ui/HintreelUI.qml"));
}

void tst_SketchpadContent::keys_areUnique_data()
{
    controlFile_namesItsLocaleAndTheStandardUi_data();
}

void tst_SketchpadContent::keys_areUnique()
{
    QFETCH(QString, locale);
    QStringList keys = keysOf(locale);
    QVERIFY(!keys.isEmpty());
    QVERIFY(!keys.contains(QString()));
    QCOMPARE(keys.removeDuplicates(), 0);
}

void tst_SketchpadContent::germanKeys_areMostOfTheEnglishOnes()
{
    const QStringList english = keysOf("en_US");
    const QStringList german = keysOf("de_DE");
    for (const QString &key : german)
        QVERIFY2(english.contains(key), qPrintable(key));
    const double share = double(german.size()) / english.size();
    QVERIFY2(share >= 0.55 && share <= 0.80, qPrintable(QString::number(share)));
}

void tst_SketchpadContent::hint_hasTitleSummaryAndBody_data()
{
    addHints();
}

void tst_SketchpadContent::hint_hasTitleSummaryAndBody()
{
    QFETCH(QDomElement, hint);
    QVERIFY(!hint.attribute("title").isEmpty());
    const auto summaries = childrenOf(hint, "summary");
    QCOMPARE(summaries.size(), 1);
    QVERIFY(!summaries.first().text().isEmpty());
    QVERIFY2(
        summaries.first().text().size() <= longestSummary, qPrintable(summaries.first().text()));
    QVERIFY(!childrenOf(hint, "text").isEmpty() || !childrenOf(hint, "keys").isEmpty());
}

void tst_SketchpadContent::hint_usesTheVocabularyOnly_data()
{
    addHints();
}

void tst_SketchpadContent::hint_usesTheVocabularyOnly()
{
    const QMap<QString, QStringList> vocabulary = {
        { "summary", {} },
        { "text", {} },
        { "keys", { "press" } },
        { "picture", { "source", "alt", "width" } },
        { "note", { "kind" } },
        { "link", { "to" } },
        { "video", { "source", "alt", "width", "loop" } },
    };
    QFETCH(QDomElement, hint);
    QCOMPARE(hint.tagName(), QString("hintreel"));
    const auto blocks = childrenOf(hint);
    for (const QDomElement &block : blocks) {
        QVERIFY2(vocabulary.contains(block.tagName()), qPrintable(block.tagName()));
        QVERIFY(childrenOf(block).isEmpty());
        const QDomNamedNodeMap attributes = block.attributes();
        for (int i = 0; i < attributes.size(); ++i)
            QVERIFY(vocabulary.value(block.tagName()).contains(attributes.item(i).nodeName()));
    }
    const QStringList kinds = { "tip", "note", "warning" };
    const auto notes = childrenOf(hint, "note");
    for (const QDomElement &note : notes)
        QVERIFY(kinds.contains(note.attribute("kind", "note")));
}

void tst_SketchpadContent::hint_closesWhatItsMarkdownOpens_data()
{
    addHints();
}

void tst_SketchpadContent::hint_closesWhatItsMarkdownOpens()
{
    QFETCH(QDomElement, hint);
    const auto blocks = childrenOf(hint);
    for (const QDomElement &block : blocks) {
        QVERIFY2(block.text().count("**") % 2 == 0, qPrintable(block.text()));
        QVERIFY2(block.text().count('`') % 2 == 0, qPrintable(block.text()));
    }
}

void tst_SketchpadContent::hint_interpolatesOnlyWhatSketchpadSets_data()
{
    addHints();
}

void tst_SketchpadContent::hint_interpolatesOnlyWhatSketchpadSets()
{
    static const QSet<QString> set
        = findAll(sketchpad, { "*.cpp" }, "setGlobalProperty\\([^\"]*\"([^\"]+)\"");
    QVERIFY(!set.isEmpty());
    QFETCH(QDomElement, hint);
    const QString texts = textsOf(hint).join('\n');
    auto placeholders = QRegularExpression("%\\(([-_a-zA-Z0-9]+)\\)s").globalMatch(texts);
    int known = 0;
    for (; placeholders.hasNext(); ++known) {
        const QString name = placeholders.next().captured(1);
        QVERIFY2(set.contains(name), qPrintable(name));
    }
    QCOMPARE(texts.count("%("), known);
}

void tst_SketchpadContent::pictures_canBePainted_data()
{
    addHints();
}

void tst_SketchpadContent::pictures_canBePainted()
{
    QFETCH(QDomElement, hint);
    const auto pictures = childrenOf(hint, "picture");
    for (const QDomElement &picture : pictures) {
        QImageReader reader(package + "/Resources/" + picture.attribute("source"));
        QVERIFY2(!reader.read().isNull(), qPrintable(reader.fileName()));
        QVERIFY(!picture.attribute("alt").isEmpty());
    }
}

void tst_SketchpadContent::picturesAndClips_areAllShown()
{
    const QStringList files = QDir(package + "/Resources").entryList({ "*.svg", "*.png", "*.mp4" });
    const QSet<QString> expected(files.begin(), files.end());
    QSet<QString> shown;
    const auto hints = hintsOf("en_US");
    for (const QDomElement &hint : hints) {
        const auto blocks = childrenOf(hint);
        for (const QDomElement &block : blocks) {
            if (block.hasAttribute("source"))
                shown.insert(block.attribute("source"));
        }
    }
    QCOMPARE(shown, expected);
}

void tst_SketchpadContent::tools_haveClips_data()
{
    addHints();
}

void tst_SketchpadContent::tools_haveClips()
{
    QFETCH(QDomElement, hint);
    const auto clips = childrenOf(hint, "video");
    for (const QDomElement &clip : clips) {
        QVERIFY(QFile::exists(package + "/Resources/" + clip.attribute("source")));
        QVERIFY(!clip.attribute("alt").isEmpty());
    }
    QCOMPARE(clips.size(), hint.attribute("key").startsWith("tool") ? 1 : 0);
}

void tst_SketchpadContent::links_leadToPages_data()
{
    addHints();
}

void tst_SketchpadContent::links_leadToPages()
{
    QFETCH(QDomElement, hint);
    const auto links = childrenOf(hint, "link");
    for (const QDomElement &link : links) {
        const QUrl url(link.attribute("to"), QUrl::StrictMode);
        QVERIFY2(url.isValid() && url.scheme() == "https", qPrintable(link.attribute("to")));
        QVERIFY(!url.host().isEmpty());
        QVERIFY(!link.text().isEmpty());
    }
    const QString documentation = hint.attribute("documentation", "index");
    QVERIFY(QRegularExpression("^[a-z]+(/[a-z]+)*$").match(documentation).hasMatch());
}

void tst_SketchpadContent::translation_isOfWordsOfTheStandardUi()
{
    const QSet<QString> words
        = findAll(standardPackage, { "*.qml", "*.js" }, "\\bown\\(\"([^\"]+)\"\\)");
    QVERIFY(!words.isEmpty());

    const QDomElement context
        = rootOf(package + "/l10n/Hintreels_de_DE.ts").firstChildElement("context");
    QCOMPARE(context.firstChildElement("name").text(), QString("StandardUI"));
    QSet<QString> translated;
    const auto messages = childrenOf(context, "message");
    for (const QDomElement &message : messages) {
        const QDomElement translation = message.firstChildElement("translation");
        QVERIFY(!translation.text().isEmpty() && !translation.hasAttribute("type"));
        translated.insert(message.firstChildElement("source").text());
    }
    QVERIFY(!translated.isEmpty());
    QVERIFY(words.contains(translated));
}

QTEST_MAIN(tst_SketchpadContent)

#include "tst_SketchpadContent.moc"
