// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QXmlAttributes>

#include <memory>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace Hintreels {

struct HRXmlElementPrivate;

/// One element of a content or control file, with its attributes, its text and its children.
///
/// A document is a tree of these objects. Children are the QObject children, in document order;
/// deleting an element deletes everything below it. Who holds an element without a parent owns its
/// tree. The tag name is the object name, so that QObject's own searches find elements too.
///
/// Trees may be deep: deletion, search and serialisation use no stack that grows with the depth.
/// No operation fails. An element lives on the thread that made it.
class HINTREELS_EXPORT HRXmlElement : public QObject
{
    Q_OBJECT
    // QML and the builder see signals, methods and properties in the order in which they stand
    // here.
    ///@{
    /// What QML reads and writes; the operations behind it say more.
    Q_PROPERTY(QString tagName READ getTagName WRITE setTagName NOTIFY tagNameChanged)
    Q_PROPERTY(
        QString tagNameSpace READ getTagNameSpace WRITE setTagNameSpace NOTIFY tagNameSpaceChanged)
    Q_PROPERTY(QString content READ content NOTIFY contentChanged)
    ///@}

public:
    /// Makes an element with @p attrs under their qualified names and without tag name or text.
    /// Of attributes of the same name the last one stays.
    Q_INVOKABLE explicit HRXmlElement(
        QObject *parent = nullptr, const QXmlAttributes &attrs = QXmlAttributes());

    /// Deletes the whole tree, the first child first, without recursion along elements.
    ~HRXmlElement() override;

    /// The qualified name as it stands in the document, prefix included.
    QString getTagName() const;

    /// Renames the element and emits tagNameChanged(), also where the name stays the same.
    void setTagName(const QString &name);

    /// The URI of the element's namespace.
    QString getTagNameSpace() const;

    /// Sets the URI and emits tagNameSpaceChanged(), also where it stays the same.
    void setTagNameSpace(const QString &uri);

    /// All text directly inside the element, joined, with its white space.
    QString content() const;

    /// Replaces the text and emits contentChanged().
    void setContent(const QString &text);

    /// Inserts or replaces an attribute; nothing is emitted.
    void setAttribute(const QString &name, const QString &value);

    /// The names of all attributes in ascending order of their UTF-16 code units.
    QStringList attributeNames() const;

    /// The first element below this one with this tag name, or null. The tree keeps it.
    ///
    /// The direct children come first, in order; where none matches, each direct child is searched
    /// in the same way, in order. Objects of other classes are searched through, not returned.
    Q_INVOKABLE Hintreels::HRXmlElement *childElement(const QString &name) const;

    /// Every object below this one with this object name, of any class, parents before their
    /// children; with an empty name every object. The tree keeps them.
    Q_INVOKABLE QList<QObject *> childElementList(const QString &name) const;

    /// The attribute's value, or a null string without such an attribute.
    Q_INVOKABLE QString attribute(const QString &name) const;

    /// Whether the element has an attribute of this name, even an empty one.
    Q_INVOKABLE bool hasAttribute(const QString &name) const;

    /// Adds text as it is at the end of the text and emits contentChanged().
    Q_INVOKABLE void appendContent(const QString &content);

    /// The tree's tags and attributes as indented text, for logs and for telling trees apart.
    ///
    /// Text and namespaces are left out, and values are not escaped: the result need not be XML.
    /// Placeholders like "%3" in names and values are taken for those of the line's pattern.
    /// @param index the width of the indentation in spaces; each level below adds two, up to 10,000
    Q_INVOKABLE QString toXml(int index = 0) const;

Q_SIGNALS:
    ///@{
    /// The property of its name was set, or has changed.
    void tagNameChanged();
    void tagNameSpaceChanged();
    void contentChanged();
    ///@}

private:
    std::unique_ptr<HRXmlElementPrivate> d;
};

} // namespace Hintreels

QT_WARNING_POP
