// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>
#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>

/// Signatures of the methods that a class adds, in their order.
inline QByteArrayList methodsOf(const QMetaObject &meta)
{
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(meta.method(i).methodSignature());
    return methods;
}

/// The same, and then the names of its properties.
inline QByteArrayList membersOf(const QMetaObject &meta)
{
    QByteArrayList members = methodsOf(meta);
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        members.append(meta.property(i).name());
    return members;
}
