// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/elementShape.h"

namespace Hintreels {

namespace {

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

} // namespace

const QMap<QString, ElementShape> &elementShapes()
{
    // What chooses a user interface and where its files lie may stand at the root and at entries.
    static const QString entry = QStringLiteral("hintreel");
    static const QMap<QString, ElementShape> shapes{
        { QStringLiteral("hintreels"),
            { QString(), words("locale search ui simple resource resources l10n_name"),
                QString() } },
        { entry,
            { QStringLiteral("hintreels"),
                words("key title shortcut documentation covers ui simple resource resources "
                      "l10n_name"),
                QStringLiteral("key") } },
        { QStringLiteral("summary"), { entry, {}, QString() } },
        { QStringLiteral("text"), { entry, {}, QString() } },
        { QStringLiteral("keys"), { entry, words("press"), QStringLiteral("press") } },
        { QStringLiteral("picture"),
            { entry, words("source alt width"), QStringLiteral("source") } },
        { QStringLiteral("video"),
            { entry, words("source alt loop width"), QStringLiteral("source") } },
        { QStringLiteral("note"), { entry, words("kind"), QString() } },
        { QStringLiteral("link"), { entry, words("to"), QStringLiteral("to") } },
    };
    return shapes;
}

QStringList elementsIn(const QString &parent)
{
    QStringList names;
    const auto &shapes = elementShapes();
    for (auto shape = shapes.cbegin(); shape != shapes.cend(); ++shape) {
        if (shape->parent == parent)
            names.append(shape.key());
    }
    return names;
}

QStringList valuesOf(const QString &element, const QString &attribute)
{
    static const QMap<QString, QStringList> values{
        { QStringLiteral("note kind"), words("tip note warning") },
        { QStringLiteral("video loop"), words("true false") },
        { QStringLiteral("hintreel covers"), words("inside") },
    };
    return values.value(element + u' ' + attribute);
}

} // namespace Hintreels
