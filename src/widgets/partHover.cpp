// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/partHover_p.h"

#include "content/HRXmlElement.h"
#include "widgets/parts/partName_p.h"
#include "widgets/parts/partPlace_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

const QString titleAttribute = QStringLiteral("title");
const QString shortcutAttribute = QStringLiteral("shortcut");

/// What an entry carries that its reader does not see.
const QStringList silentAttributes{ QStringLiteral("key"), QStringLiteral("covers"),
    QStringLiteral("HRLocation"), QStringLiteral("HRPackagName"), titleAttribute,
    shortcutAttribute };

bool coversItsInside(const HRXmlElement &content)
{
    return content.attribute(QStringLiteral("covers")) == QLatin1String("inside");
}

bool hasMoreThanTitle(const HRXmlElement &content)
{
    const QStringList names = content.attributeNames();
    return !content.children().isEmpty() || !content.content().trimmed().isEmpty()
        || std::any_of(names.begin(), names.end(),
            [](const QString &name) { return !silentAttributes.contains(name); });
}

bool namesOtherTitle(const HRXmlElement &content, const HRPart &part)
{
    const QString title = withoutMnemonic(content.attribute(titleAttribute));
    return !title.isEmpty() && title.compare(part.text, Qt::CaseInsensitive) != 0;
}

bool namesShortcut(const HRXmlElement &content, const HRPart &part)
{
    return !part.showsShortcut
        && !(content.attribute(shortcutAttribute).isEmpty() && part.shortcut().isEmpty());
}

} // namespace

bool saysMore(const HRXmlElement &content, const HRPart &part)
{
    return !part.showsText || hasMoreThanTitle(content) || namesOtherTitle(content, part)
        || namesShortcut(content, part);
}

HRHover hoverOf(const HRPart &part, const QPoint &position)
{
    const QStringList keys = keysOf(part);
    HRHover hover{ keys, position, part.widget.data(), part.area };
    const QStringList around = keysAround(part);
    for (const QString &key : around) {
        if (!keys.contains(key))
            hover.keys.append(key);
    }
    hover.accepts = [keys, part](const QString &key, const HRXmlElement &content) {
        return keys.contains(key) ? saysMore(content, part) : coversItsInside(content);
    };
    hover.completes = [keys, text = part.text](const QString &key, HRXmlElement &content) {
        if (keys.contains(key) && content.attribute(titleAttribute).isEmpty() && !text.isEmpty())
            content.setAttribute(titleAttribute, text);
    };
    return hover;
}

} // namespace Hintreels
