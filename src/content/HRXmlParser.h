// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QByteArray>
#include <QList>
#include <QStringView>
#include <QXmlAttributes>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <memory>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace Hintreels {

class HRXmlDocument;
struct HRXmlParserPrivate;

/// Builds objects from an XML document, one per element, as a filter decides.
///
/// An element's class is the one registered under its local name, or the default class. A class
/// with an invokable constructor of (QObject *, QXmlAttributes) takes the attributes itself;
/// with one of (QObject *) alone, every attribute must name a property, which is written. Text
/// goes to an invokable appendContent(QString), where the class has one.
///
/// The filter is asked for elements with their qualified name and attributes, and answers with the
/// sum of these:
/// - 1: make an object, and ask for the children as well; the same as 0
/// - 2: make objects for the element and all below it without asking
/// - 4: make no object for this element; its children go to the nearest object around it
/// - 8: make no objects below this element, and do not ask for them
///
/// Errors end the reading; they are written to Qt's debug output with line and column. So are
/// documents that would exhaust the host: elements nested so deeply that the stack runs short, and
/// entities and namespace prefixes that grow to too much text or work. External entities are never
/// opened. A document is held in memory whole while it is read.
///
/// A parser may read several documents in turn. Use one parser on one thread.
class HINTREELS_EXPORT HRXmlParser : public QXmlSimpleReader, private QXmlDefaultHandler
{
public:
    /// Answers for an element by a sum of 1, 2, 4 and 8; @p context is what the parser was given.
    using Filter = int (*)(const QString &qName, const QXmlAttributes &attributes, void *context);

    /// Makes a parser with HRXmlElement as the default class. Without a filter, every element
    /// becomes an object.
    explicit HRXmlParser(Filter callback = nullptr, void *context = nullptr);

    /// Deletes those objects that a failed reading left open, even though they were returned.
    ~HRXmlParser() override;

    /// Makes objects of @p metaObject for elements with this local name from now on.
    void registerElement(const QString &localName, const QMetaObject *metaObject);
    /// Makes objects of the default class for elements with this local name from now on.
    void unregisterElement(const QString &localName);

    /// The class of elements that are not registered.
    void setDefaultElement(const QMetaObject *metaObject);
    /// The class of elements that are not registered; null where none was set.
    const QMetaObject *defaultElement() const;

    /// The class registered under this name, or null; the default class does not count.
    const QMetaObject *metaObjectForElement(const QString &localName) const;

    /// Reads a document and returns its top-level objects in document order; the caller owns them.
    ///
    /// After an error this is what was built until then. The elements that were open at the error
    /// go with the parser: guard the result by a QPointer, or be done with it before.
    QList<QObject *> read(const QXmlInputSource *source);
    /// The same for a source by reference.
    QList<QObject *> read(const QXmlInputSource &source);

    /// Reads a document that is in memory whole, which is much quicker than from a source. The
    /// encoding is found as for a source.
    QList<QObject *> read(const QByteArray &document);

    /// The document, decoded, as far as it is read. Asked from a filter, that is to the end of the
    /// element's start tag, unless it stands in an entity; of an empty element, up to its slash.
    /// After an error, it is to where that was found. Valid until the next reading.
    QStringView readText() const;

    /// The line, counted from 1, of the error that ended the last reading; 0 where there was none.
    int errorLine() const;
    /// What that error was, in English; null where there was none.
    QString errorText() const;

private:
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
        const QXmlAttributes &attributes) override;
    bool endElement(
        const QString &namespaceURI, const QString &localName, const QString &qName) override;
    bool characters(const QString &text) override;
    bool ignorableWhitespace(const QString &text) override;
    bool fatalError(const QXmlParseException &exception) override;

    // What could exhaust the host is refused here.
    bool startPrefixMapping(const QString &prefix, const QString &uri) override;
    bool endPrefixMapping(const QString &prefix) override;
    bool internalEntityDecl(const QString &name, const QString &value) override;
    bool startEntity(const QString &name) override;
    bool endDTD() override;

    QList<QObject *> readDocument(std::unique_ptr<HRXmlDocument> document);
    void reportEntities(bool on);

    std::unique_ptr<HRXmlParserPrivate> d;
};

} // namespace Hintreels

QT_WARNING_POP
