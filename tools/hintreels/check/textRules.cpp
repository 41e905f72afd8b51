// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/nearestWord.h"
#include "hintreels/check/resources.h"
#include "ui/reader/hintReading_p.h"
#include "ui/reader/textCut_p.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Hintreels {

namespace {

constexpr int longestSummary = 160; // two lines of a popup in most fonts
constexpr int longestParagraph = 350; // what is longer, nobody reads beside a pointer

/// Whether the element is one of the standard user interface's own in an entry.
bool isBlock(const Element &element, const char *tag)
{
    const HRXmlElement *entry = element.entry();
    return entry && element.parent() == entry && element.tag() == QLatin1String(tag)
        && element.file->isForStandardUi(*entry);
}

bool isMarkdown(const Element &element)
{
    return isBlock(element, "text") || isBlock(element, "note");
}

void checkSummaryLength(const Element &element, const Tell &tell)
{
    const int length = int(element.node->content().simplified().size());
    if (isBlock(element, "summary") && length > longestSummary)
        tell(element.spot(),
            QStringLiteral("the summary has %1 characters; %2 are plenty")
                .arg(length)
                .arg(longestSummary));
}

/// Lines of a list stand for themselves.
QStringList paragraphsOf(const QString &markdown)
{
    static const QRegularExpression end(
        QStringLiteral(R"(\n[ \t]*\n|\n(?=[ \t]*([-*+]|[0-9]+[.)])[ \t]))"));
    return markdown.split(end);
}

void checkParagraphLength(const Element &element, const Tell &tell)
{
    if (!isMarkdown(element))
        return;
    const QStringList paragraphs = paragraphsOf(dedent(element.node->content()));
    for (const QString &paragraph : paragraphs) {
        const QString text = paragraph.simplified();
        if (text.size() > longestParagraph)
            tell(element.spot(),
                QStringLiteral("the paragraph that begins with \"%1\" has %2 characters; %3 are "
                               "plenty")
                    .arg(text.left(20).trimmed())
                    .arg(text.size())
                    .arg(longestParagraph));
    }
}

void checkTitleRepeated(const Element &element, const Tell &tell)
{
    if (!isBlock(element, "summary"))
        return;
    const QString title = readGist(*element.entry()).title;
    const QString summary = element.node->content().simplified();
    const bool goesOn = summary.size() > title.size() && summary[title.size()].isLetterOrNumber();
    if (!title.isEmpty() && !goesOn && summary.startsWith(title, Qt::CaseInsensitive))
        tell(element.spot(),
            QStringLiteral("the summary begins with the title, which stands above"));
}

void checkAlternative(const Element &element, const Tell &tell)
{
    if (!isBlock(element, "picture") && !isBlock(element, "video"))
        return;
    const QString alternative = element.attribute("alt").simplified();
    const QString source = element.attribute("source");
    if (alternative.isEmpty())
        tell(element.spot(QStringLiteral("alt")),
            QStringLiteral("%1 does not say what it shows, in alt").arg(element.tag()));
    else if (alternative == source || alternative == QFileInfo(source).fileName()
        || alternative == QFileInfo(source).completeBaseName())
        tell(element.spot(QStringLiteral("alt")),
            QStringLiteral("alt names the file, and does not say what it shows"));
}

/// Where the name of a picture stands in the source of a text.
Spot spotOfPicture(const Element &element, const QString &name)
{
    const int at = int(element.file->text().indexOf(u'(' + name, element.end));
    return at < 0 ? element.spot() : element.file->spot(at + 1);
}

void checkTextPictures(const Element &element, const Tell &tell)
{
    if (!isMarkdown(element))
        return;
    static const QRegularExpression picture(QStringLiteral(R"(!\[[^\]]*\]\(([^)\s]+))"));
    auto pictures = picture.globalMatch(element.node->content());
    while (pictures.hasNext()) {
        const QString name = pictures.next().captured(1);
        if (!name.contains(QLatin1String("%("))
            && (leavesPackage(element, name) || findResource(element, name).isNull()))
            tell(spotOfPicture(element, name),
                QStringLiteral("the package has no picture %1").arg(name));
    }
}

/// How many of the texts that are shown of an entry end in a sign that its writer did not write.
bool isCut(const HRXmlElement &entry, const QVariantMap &hint)
{
    QStringList shown{ hint.value(QStringLiteral("title")).toString(),
        hint.value(QStringLiteral("summary")).toString() };
    const QVariantList blocks = hint.value(QStringLiteral("blocks")).toList();
    for (const QVariant &block : blocks)
        shown.append(block.toMap().value(QStringLiteral("text")).toString());
    const HRHintGist gist = readGist(entry);
    QStringList written{ gist.title, gist.summary };
    for (const QObject *child : entry.children())
        written.append(static_cast<const HRXmlElement *>(child)->content().trimmed());
    const auto endsCut = [](const QString &text) { return text.endsWith(ellipsis); };
    return std::count_if(shown.begin(), shown.end(), endsCut)
        > std::count_if(written.begin(), written.end(), endsCut);
}

QVariantMap hintOf(const HRXmlElement &entry)
{
    return readHint(entry, [](const QString &text) { return text; });
}

void checkCut(const Element &element, const Tell &tell)
{
    if (element.isEntry() && element.file->isForStandardUi(*element.node)
        && isCut(*element.node, hintOf(*element.node)))
        tell(element.spot(), QStringLiteral("the hint is longer than what is shown of one"));
}

void checkEmpty(const Element &element, const Tell &tell)
{
    if (!element.isEntry() || !element.file->isForStandardUi(*element.node))
        return;
    const QVariantMap hint = hintOf(*element.node);
    if (hint.value(QStringLiteral("summary")).toString().isEmpty()
        && hint.value(QStringLiteral("blocks")).toList().isEmpty()
        && hint.value(QStringLiteral("title")).toString().isEmpty())
        tell(element.spot(), QStringLiteral("the hint shows nothing"));
}

constexpr Rule rules[] = {
    { "empty-hint", Severity::warning, "An entry has nothing to show", "Its popup is empty.",
        "Give it a title and a summary, or delete it.",
        "<hintreel key=\"toolPen\" title=\"Pen\">\n  <summary>Draws a free line.</summary>\n"
        "</hintreel>",
        checkEmpty, nullptr, nullptr },
    { "cut", Severity::warning, "A hint is longer than what is shown of one",
        "Its texts end in an ellipsis, and what stands behind that is lost. "
        "docs/content-format.md lists what is shown at most.",
        "Shorten it, or move the rest to a help page.",
        "<hintreel key=\"toolPen\" title=\"Pen\" documentation=\"tools/pen\">", checkCut, nullptr,
        nullptr },
    { "alt", Severity::warning, "A picture or clip does not say what it shows",
        "Readers who cannot see it get nothing, or the name of a file.",
        "Say in a sentence what is to be seen.",
        "<picture source=\"pen.png\" alt=\"A shaky line becomes a smooth curve\"/>",
        checkAlternative, nullptr, nullptr },
    { "text-picture", Severity::error, "A picture in a text does not exist",
        "The words in brackets show in its place.",
        "Put the file into the directory Resources of the package, and name it by its path in "
        "there.",
        "<text>Press ![the pen](pen.png).</text>", checkTextPictures, nullptr, nullptr },
    { "summary-length", Severity::hint, "A summary is long",
        "It is to be understood at a glance, and is all that readers of small hints see.",
        "Say what the tool is for, in one sentence; the rest belongs into a text.",
        "<summary>Draws a free line that follows the pointer.</summary>", checkSummaryLength,
        nullptr, nullptr },
    { "paragraph-length", Severity::hint, "A paragraph is long",
        "Few read so much beside a pointer.", "Break it up, or make a list of it.",
        "<text>\n  - a quick stroke becomes a curve\n  - a slow one keeps its corners\n</text>",
        checkParagraphLength, nullptr, nullptr },
    { "title-repeated", Severity::hint, "A summary begins with the title",
        "The title stands right above, so readers read it twice.", "Begin with a verb.",
        "<hintreel key=\"toolPen\" title=\"Pen\">\n  <summary>Draws a free line.</summary>\n"
        "</hintreel>",
        checkTitleRepeated, nullptr, nullptr },
};

} // namespace

std::vector<Rule> textRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
