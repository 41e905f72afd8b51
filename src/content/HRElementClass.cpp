// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRElementClass_p.h"

#include <QMetaProperty>

namespace Hintreels {

namespace {

int constructorIndex(const QMetaObject *metaObject, const char *parameters)
{
    // A constructor goes by the name of its class without the namespace.
    const QByteArray className = metaObject->className();
    const QByteArray name = className.mid(className.lastIndexOf(':') + 1);
    return metaObject->indexOfConstructor((name + parameters).constData());
}

QObject *callConstructor(const QMetaObject *metaObject, int index, void *parent, void *attributes)
{
    QObject *object = nullptr;
    void *arguments[] = { &object, parent, attributes };
    if (index >= 0)
        metaObject->static_metacall(QMetaObject::CreateInstance, index, arguments);
    return object;
}

} // namespace

HRElementClass::HRElementClass(const QMetaObject *metaObject)
    : m_metaObject(metaObject)
    , m_attributesConstructor(constructorIndex(metaObject, "(QObject*,QXmlAttributes)"))
    , m_parentConstructor(constructorIndex(metaObject, "(QObject*)"))
    , m_tagNameSpace(metaObject->indexOfProperty("tagNameSpace"))
    , m_tagName(metaObject->indexOfProperty("tagName"))
    , m_appendContent(metaObject->indexOfMethod("appendContent(QString)"))
{
}

QObject *HRElementClass::construct(QObject *parent, const QXmlAttributes &attributes) const
{
    return callConstructor(
        m_metaObject, m_attributesConstructor, &parent, const_cast<QXmlAttributes *>(&attributes));
}

QObject *HRElementClass::construct(QObject *parent) const
{
    return callConstructor(m_metaObject, m_parentConstructor, &parent, nullptr);
}

void HRElementClass::writeTag(QObject *object, const QString &nameSpace, const QString &name) const
{
    writeProperty(object, m_tagNameSpace, nameSpace);
    writeProperty(object, m_tagName, name);
}

void HRElementClass::appendContent(QObject *object, const QString &text) const
{
    if (m_appendContent < 0)
        return;
    void *arguments[] = { nullptr, const_cast<QString *>(&text) };
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, m_appendContent, arguments);
}

void HRElementClass::writeProperty(QObject *object, int property, const QString &value) const
{
    if (property >= 0)
        m_metaObject->property(property).write(object, value);
}

} // namespace Hintreels
