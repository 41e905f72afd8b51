// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Package.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/Suppression.h"
#include "hintreels/check/nearestWord.h"

#include <QRegularExpression>

#include <iterator>

namespace Hintreels {

namespace {

void checkXml(const ControlFile &file, const Tell &tell)
{
    if (!file.error().isNull())
        tell(file.spot(int(file.text().size()) - 1),
            QStringLiteral("not XML: %1").arg(file.error()));
}

bool isUtf8(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

bool namesOtherEncoding(const QByteArray &bytes)
{
    static const QRegularExpression declaration(
        QStringLiteral(R"(^<\?xml[^>]*encoding\s*=\s*["'](?!utf-8)[^"']+["'])"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr int longEnough = 200; // for any declaration
    return declaration.match(QString::fromLatin1(bytes.left(longEnough))).hasMatch();
}

bool hasByteOrderMark(const QByteArray &bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") || bytes.startsWith("\xFE\xFF")
        || bytes.startsWith("\xFF\xFE");
}

/// Of a line that is no UTF-8, in the text that is made of it all the same.
int columnOfWrongByte(const QByteArray &line)
{
    return int(QString::fromUtf8(line).indexOf(QChar(QChar::ReplacementCharacter))) + 1;
}

void checkEncoding(const ControlFile &file, const Tell &tell)
{
    if (hasByteOrderMark(file.bytes()) || namesOtherEncoding(file.bytes()) || isUtf8(file.bytes()))
        return;
    const QList<QByteArray> lines = file.bytes().split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (!isUtf8(lines[i])) {
            tell({ file.path(), i + 1, columnOfWrongByte(lines[i]) },
                QStringLiteral("the file is not UTF-8, and names no other encoding"));
            return;
        }
    }
}

/// What the look at the beginning of a file asks for, in which it was not recognised.
QString reasonOfRoot(const ControlFile &file)
{
    const QString tag = file.root()->tag();
    if (tag != QLatin1String("hintreels"))
        return QStringLiteral("the first element is %1, not hintreels").arg(tag)
            + suggestion(tag, { QStringLiteral("hintreels") });
    return QStringLiteral("the first line of the tag has to hold an attribute or the tag's end");
}

void checkRoot(const ControlFile &file, const Tell &tell)
{
    if (file.root() && !file.isIndexed())
        tell(file.root()->spot(),
            QStringLiteral("the library passes this file over: %1").arg(reasonOfRoot(file)));
}

void checkSuppressions(const ControlFile &file, const Tell &tell)
{
    QStringList tags;
    for (const Rule &rule : allRules())
        tags.append(QLatin1String(rule.tag));
    const QVector<Suppression> suppressions = suppressionsOf(file);
    for (const Suppression &suppression : suppressions) {
        if (!tags.contains(suppression.tag))
            tell(suppression.spot,
                QStringLiteral("there is no rule \"%1\"").arg(suppression.tag)
                    + suggestion(suppression.tag, tags));
        else if (suppression.reason.isEmpty())
            tell(suppression.spot,
                QStringLiteral("the comment gives no reason, and suppresses nothing"));
    }
}

constexpr Rule rules[] = {
    { "xml", Severity::error, "The file is not well-formed XML",
        "Reading ends at the error. Hints behind it are never shown, and the one in which it "
        "lies is lost as a whole. Programs say so in their log only.",
        "Close every element, in the order opposite to that in which they were opened; write "
        "&lt; and &amp; for < and & in text, or wrap the text in <![CDATA[ and ]]>. Where the "
        "file ends too early, the error stands at its end: look for the element that is not "
        "closed.",
        "<summary>Black &amp; white</summary>", nullptr, checkXml, nullptr },
    { "encoding", Severity::error, "The file is not UTF-8",
        "Letters beyond ASCII show as question marks or as other letters.",
        "Save the file as UTF-8. A file in another encoding has to name it in its first line.",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>", nullptr, checkEncoding, nullptr },
    { "root", Severity::error, "The file is not recognised as a control file",
        "The library looks for its first element line by line, and reads the file only if that "
        "is hintreels. A tag whose first line ends behind the name is not recognised. No hint "
        "of the file is ever shown.",
        "Begin the file with the element hintreels, and write its first attribute into the "
        "same line. Move other XML files out of the directory Control.",
        "<hintreels locale=\"en_US\"\n    search=\"Standard\">", nullptr, checkRoot, nullptr },
    { "suppression", Severity::warning, "A comment to suppress findings has no effect",
        "A suppression without a reason cannot be judged by whoever reads the file next, so it "
        "suppresses nothing; nor does one of a rule that does not exist.",
        "Name the rule by its tag, then a colon and the reason. The comment covers the element "
        "behind it; before the first element, the whole file.",
        "<!-- hintreels: ignore unknown-attribute: our host asks for it -->", nullptr,
        checkSuppressions, nullptr },
};

} // namespace

std::vector<Rule> fileRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
