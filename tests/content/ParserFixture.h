// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"

#include <QMap>
#include <QPointer>
#include <QVector>

/// The answers of a filter by qualified name, and what it was asked.
struct Answers
{
    QMap<QString, int> modes;
    QStringList asked;

    static int give(const QString &qName, const QXmlAttributes &attributes, void *context)
    {
        auto *answers = static_cast<Answers *>(context);
        answers->asked.append(qName);
        for (int i = 0; i < attributes.length(); ++i)
            answers->asked.append(attributes.qName(i) + '=' + attributes.value(i));
        return answers->modes.value(qName);
    }
};

/// The top-level objects of one reading, which die with this.
class Objects
{
public:
    Objects(Hintreels::HRXmlParser &parser, const QString &document)
    {
        QXmlInputSource source;
        source.setData(document);
        const QList<QObject *> objects = parser.read(source);
        for (QObject *object : objects)
            m_objects.append(object);
    }
    ~Objects()
    {
        for (const QPointer<QObject> &object : qAsConst(m_objects))
            delete object;
    }
    Q_DISABLE_COPY(Objects)

    int size() const { return m_objects.size(); }
    QObject *at(int i) const { return m_objects.at(i); }
    Hintreels::HRXmlElement *element(int i = 0) const
    {
        return qobject_cast<Hintreels::HRXmlElement *>(m_objects.at(i));
    }

private:
    QVector<QPointer<QObject>> m_objects;
};

/// Tags and text of a tree in one line, such as "a{b'text'}".
inline QString outline(const QObject *object)
{
    QString result = object->objectName();
    if (const auto *element = qobject_cast<const Hintreels::HRXmlElement *>(object)) {
        if (!element->content().isEmpty())
            result += '\'' + element->content() + '\'';
    }
    QStringList children;
    for (const QObject *child : object->children())
        children.append(outline(child));
    return children.isEmpty() ? result : result + '{' + children.join(' ') + '}';
}

inline QString outline(const Objects &objects)
{
    QStringList outlines;
    for (int i = 0; i < objects.size(); ++i)
        outlines.append(outline(objects.at(i)));
    return outlines.join(' ');
}
