// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"

#include <QXmlAttributes>

#include <memory>

inline Hintreels::HRXmlElement *newElement(const QString &tagName, QObject *parent = nullptr)
{
    auto *element = new Hintreels::HRXmlElement(parent);
    element->setTagName(tagName);
    return element;
}

inline QObject *newObject(const QString &name, QObject *parent)
{
    auto *object = new QObject(parent);
    object->setObjectName(name);
    return object;
}

/// A chain of elements "a", each the only child of the one before.
inline std::unique_ptr<Hintreels::HRXmlElement> newChain(int length)
{
    std::unique_ptr<Hintreels::HRXmlElement> root(newElement("a"));
    Hintreels::HRXmlElement *last = root.get();
    for (int i = 1; i < length; ++i)
        last = newElement("a", last);
    return root;
}

inline QXmlAttributes attributes(const QVector<QPair<QString, QString>> &pairs)
{
    QXmlAttributes result;
    for (const auto &pair : pairs)
        result.append(pair.first, QString(), pair.first, pair.second);
    return result;
}
