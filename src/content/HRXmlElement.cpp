// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"

#include <QMap>
#include <QVector>

#include <algorithm>
#include <iterator>

namespace Hintreels {

struct HRXmlElementPrivate
{
    QMap<QString, QString> attributes; // value by qualified name
    QString tagNameSpace;
    QString content;
};

namespace {

// More would help nobody, and a string has an end.
const int maximumIndentation = 10000;

HRXmlElement *firstChildElement(const HRXmlElement *element)
{
    const QObjectList &children = element->children();
    return children.isEmpty() ? nullptr : qobject_cast<HRXmlElement *>(children.first());
}

/// Deletes all children, from the leaves up. The first child is always the next one to go, since
/// taking the first one out of the list of children is cheap. Objects of other classes free what
/// they own themselves.
void deleteDescendants(HRXmlElement *root)
{
    HRXmlElement *element = root;
    while (element != root || !root->children().isEmpty()) {
        if (HRXmlElement *child = firstChildElement(element)) {
            element = child;
        } else if (!element->children().isEmpty()) {
            delete element->children().first();
        } else {
            auto *parent = static_cast<HRXmlElement *>(element->parent());
            delete element;
            element = parent;
        }
    }
}

/// Puts children on a stack so that the first one comes off first.
template <typename T>
void pushReversed(const QList<T> &children, QVector<T> *stack)
{
    std::copy(children.crbegin(), children.crend(), std::back_inserter(*stack));
}

QList<HRXmlElement *> childElements(const HRXmlElement *element)
{
    QList<HRXmlElement *> elements;
    for (QObject *child : element->children()) {
        if (auto *childElement = qobject_cast<HRXmlElement *>(child))
            elements.append(childElement);
    }
    return elements;
}

HRXmlElement *childElementNamed(const QObject *parent, const QString &name)
{
    for (QObject *child : parent->children()) {
        auto *element = qobject_cast<HRXmlElement *>(child);
        if (element && element->getTagName() == name)
            return element;
    }
    return nullptr;
}

// Placeholders in names and values are meant to be filled by what comes after them: the text that
// results tells trees apart, and it is kept as it always was.
// clazy:excludeall=qstring-arg

QString attributeText(const HRXmlElement &element)
{
    QStringList items;
    const QStringList names = element.attributeNames();
    for (const QString &name : names)
        items.append(QStringLiteral("%1=\"%2\"").arg(name).arg(element.attribute(name)));
    return items.isEmpty() ? QString() : u' ' + items.join(u' ');
}

QString openingLine(const HRXmlElement &element, const QString &indent, bool isLeaf)
{
    return QStringLiteral("%1<%2%3%4>")
        .arg(indent)
        .arg(element.getTagName())
        .arg(attributeText(element))
        .arg(isLeaf ? QStringLiteral("/") : QString());
}

QString closingLine(const HRXmlElement &element, const QString &indent)
{
    return QStringLiteral("%1</%2>").arg(indent).arg(element.getTagName());
}

/// An element whose lines are still to be written: all of them, or the closing line only.
struct Pending
{
    const HRXmlElement *element;
    int indentation;
    bool isOpen;

    QString indent() const { return QString(qBound(0, indentation, maximumIndentation), u' '); }
    int childIndentation() const { return qMin(indentation, maximumIndentation) + 2; }
};

} // namespace

HRXmlElement::HRXmlElement(QObject *parent, const QXmlAttributes &attrs)
    : QObject(parent)
    , d(std::make_unique<HRXmlElementPrivate>())
{
    // QML finds the type that childElement() returns by its written name.
    qRegisterMetaType<HRXmlElement *>();
    for (int i = 0; i < attrs.length(); ++i)
        d->attributes.insert(attrs.qName(i), attrs.value(i));
}

HRXmlElement::~HRXmlElement()
{
    deleteDescendants(this);
}

QString HRXmlElement::getTagName() const
{
    return objectName();
}

void HRXmlElement::setTagName(const QString &name)
{
    setObjectName(name);
    Q_EMIT tagNameChanged();
}

QString HRXmlElement::getTagNameSpace() const
{
    return d->tagNameSpace;
}

void HRXmlElement::setTagNameSpace(const QString &uri)
{
    d->tagNameSpace = uri;
    Q_EMIT tagNameSpaceChanged();
}

QString HRXmlElement::content() const
{
    return d->content;
}

void HRXmlElement::setContent(const QString &text)
{
    d->content = text;
    Q_EMIT contentChanged();
}

void HRXmlElement::setAttribute(const QString &name, const QString &value)
{
    d->attributes.insert(name, value);
}

QStringList HRXmlElement::attributeNames() const
{
    return d->attributes.keys();
}

HRXmlElement *HRXmlElement::childElement(const QString &name) const
{
    QVector<QObject *> pending{ const_cast<HRXmlElement *>(this) };
    while (!pending.isEmpty()) {
        const QObject *parent = pending.takeLast();
        if (HRXmlElement *found = childElementNamed(parent, name))
            return found;
        pushReversed(parent->children(), &pending);
    }
    return nullptr;
}

QList<QObject *> HRXmlElement::childElementList(const QString &name) const
{
    QList<QObject *> found;
    QVector<QObject *> pending;
    pushReversed(children(), &pending);
    while (!pending.isEmpty()) {
        QObject *object = pending.takeLast();
        if (name.isEmpty() || object->objectName() == name)
            found.append(object);
        pushReversed(object->children(), &pending);
    }
    return found;
}

QString HRXmlElement::attribute(const QString &name) const
{
    return d->attributes.value(name);
}

bool HRXmlElement::hasAttribute(const QString &name) const
{
    return d->attributes.contains(name);
}

void HRXmlElement::appendContent(const QString &content)
{
    d->content += content;
    Q_EMIT contentChanged();
}

QString HRXmlElement::toXml(int index) const
{
    QStringList lines;
    QVector<Pending> pending{ { this, index, false } };
    while (!pending.isEmpty()) {
        const Pending entry = pending.takeLast();
        if (entry.isOpen) {
            lines.append(closingLine(*entry.element, entry.indent()));
            continue;
        }
        const QList<HRXmlElement *> children = childElements(entry.element);
        lines.append(openingLine(*entry.element, entry.indent(), children.isEmpty()));
        if (!children.isEmpty())
            pending.append({ entry.element, entry.indentation, true });
        for (auto child = children.crbegin(); child != children.crend(); ++child)
            pending.append({ *child, entry.childIndentation(), false });
    }
    return lines.join(u'\n');
}

} // namespace Hintreels
