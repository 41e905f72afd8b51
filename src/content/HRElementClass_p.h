// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaObject>
#include <QString>
#include <QXmlAttributes>

namespace Hintreels {

/// A class of elements as the parser uses it: what has to be looked up by name is looked up once.
class HRElementClass
{
public:
    explicit HRElementClass(const QMetaObject *metaObject);

    const QMetaObject *metaObject() const { return m_metaObject; }

    /// Makes an object, or null where the class has no invokable constructor of
    /// (QObject *, QXmlAttributes).
    QObject *construct(QObject *parent, const QXmlAttributes &attributes) const;

    /// Makes an object, or null where the class has no invokable constructor of (QObject *).
    QObject *construct(QObject *parent) const;

    /// Writes the properties tagNameSpace and tagName, in this order, of those that there are.
    void writeTag(QObject *object, const QString &nameSpace, const QString &name) const;

    /// Calls appendContent(QString), where the class has it.
    void appendContent(QObject *object, const QString &text) const;

private:
    void writeProperty(QObject *object, int property, const QString &value) const;

    const QMetaObject *m_metaObject;
    int m_attributesConstructor; // these are indexes, -1 where there is none
    int m_parentConstructor;
    int m_tagNameSpace;
    int m_tagName;
    int m_appendContent;
};

} // namespace Hintreels
