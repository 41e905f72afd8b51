// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/hintLinks_p.h"

#include "ui/reader/HRMarkdownGate_p.h"
#include "ui/reader/textCut_p.h"

#include <QVariantMap>

#include <algorithm>
#include <numeric>

namespace Hintreels {

namespace {

constexpr int mostLinks = 100;

bool isOfKind(const QVariantMap &block, const char *kind)
{
    return block.value(QStringLiteral("block")) == QLatin1String(kind);
}

/// Never fewer than there are, and quick to find: each one is closed by a bracket, or is an
/// address.
int mostLinksIn(const QVariantMap &block)
{
    const QString text = block.value(QStringLiteral("text")).toString();
    if (isOfKind(block, "text") || isOfKind(block, "note"))
        return text.count(u']') + text.count(u':') + text.count(u'@')
            + text.count(QStringLiteral("www."));
    return isOfKind(block, "link") ? 1 : 0;
}

int linksIn(const QVariantMap &block)
{
    return isOfKind(block, "link") || mostLinksIn(block) == 0
        ? mostLinksIn(block)
        : countLinks(block.value(QStringLiteral("text")).toString());
}

QVariantMap limited(QVariantMap block, int links)
{
    if (isOfKind(block, "link") && links == 0)
        return { { QStringLiteral("block"), QStringLiteral("text") },
            { QStringLiteral("text"), QString(ellipsis) } };
    if (!isOfKind(block, "link"))
        block.insert(QStringLiteral("links"), links);
    return block;
}

} // namespace

QVariantList limitLinks(const QVariantList &blocks)
{
    const auto add
        = [](int sum, const QVariant &block) { return sum + mostLinksIn(block.toMap()); };
    if (std::accumulate(blocks.begin(), blocks.end(), 0, add) <= mostLinks)
        return blocks;
    QVariantList result;
    int left = mostLinks;
    for (const QVariant &block : blocks) {
        result.append(limited(block.toMap(), left));
        left = std::max(0, left - linksIn(block.toMap()));
    }
    return result;
}

} // namespace Hintreels
