// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/urlProperties_p.h"

#include "gates/HRNetworkAccess_p.h"

#include <QMetaProperty>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSet>
#include <QUrl>
#include <QVector>

namespace Hintreels {

namespace {

/// Qt 6 leaves a property as it was written, and finds where it leads when somebody loads it.
QUrl resolved(const QUrl &url, const QObject &object)
{
    const QQmlContext *context = url.isEmpty() ? nullptr : qmlContext(&object);
    return context && url.isRelative() ? context->baseUrl().resolved(url) : url;
}

void addProperties(const QObject &object, QHash<QString, QString> &properties)
{
    const QMetaObject &type = *object.metaObject();
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        if (property.userType() != QMetaType::QUrl)
            continue;
        const QString text = withoutRefusal(property.read(&object).toUrl().toString());
        const QUrl url = resolved(QUrl(text), object);
        const QString told = url.isLocalFile() ? url.toLocalFile() : text;
        if (!properties.contains(told))
            properties.insert(told, QString::fromLatin1(property.name()));
    }
}

/// What a Repeater makes is an item below another one, but no child of any object.
QObjectList below(const QObject *object)
{
    QObjectList objects = object->children();
    if (const auto *item = qobject_cast<const QQuickItem *>(object)) {
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            objects.append(child);
    }
    return objects;
}

} // namespace

QHash<QString, QString> urlProperties(QQuickItem *scene)
{
    QHash<QString, QString> properties;
    QVector<const QObject *> objects{ scene };
    QSet<const QObject *> found{ scene };
    for (int i = 0; i < objects.size(); ++i) {
        addProperties(*objects.at(i), properties);
        const QObjectList next = below(objects.at(i));
        for (const QObject *object : next) {
            if (found.contains(object))
                continue;
            found.insert(object);
            objects.append(object);
        }
    }
    return properties;
}

} // namespace Hintreels
