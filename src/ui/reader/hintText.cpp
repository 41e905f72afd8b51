// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/hintText_p.h"

#include "ui/reader/HRMarkdownGate_p.h"

#include <QStringList>
#include <QTextCursor>
#include <QTextDocument>

namespace Hintreels {

namespace {

QString value(const QVariantMap &map, QLatin1String name)
{
    return map.value(name).toString();
}

QString withoutMarks(const QString &markdown)
{
    QTextDocument document;
    QTextCursor whole(&document);
    whole.beginEditBlock();
    HRMarkdownGate().fill(&document, markdown);
    whole.endEditBlock();
    return document.toPlainText().remove(QChar::ObjectReplacementCharacter).trimmed();
}

QString joined(QStringList texts, const QString &between)
{
    texts.removeAll(QString());
    return texts.join(between);
}

QString blockText(const QVariantMap &block)
{
    const QString kind = value(block, QLatin1String("block"));
    const QString text = value(block, QLatin1String("text"));
    if (kind == QLatin1String("text") || kind == QLatin1String("note"))
        return withoutMarks(text);
    const QString more = kind == QLatin1String("link") ? value(block, QLatin1String("to"))
        : kind == QLatin1String("keys")                ? value(block, QLatin1String("press"))
                                                       : value(block, QLatin1String("alt"));
    return joined({ text, more == text ? QString() : more }, QStringLiteral("\n"));
}

} // namespace

QString hintText(const QVariantMap &hint)
{
    const QString shortcut = value(hint, QLatin1String("shortcut"));
    QStringList texts{ joined({ value(hint, QLatin1String("title")),
                                  shortcut.isEmpty() ? QString() : u'(' + shortcut + u')' },
                           QStringLiteral(" ")),
        value(hint, QLatin1String("summary")) };
    const QVariantList blocks = hint.value(QStringLiteral("blocks")).toList();
    for (const QVariant &block : blocks)
        texts.append(blockText(block.toMap()));
    return joined(texts, QStringLiteral("\n\n"));
}

} // namespace Hintreels
