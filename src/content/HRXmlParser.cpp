// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlParser.h"

#include "content/HRElementClass_p.h"
#include "content/HRFilterAnswer_p.h"
#include "content/HRXmlDocument_p.h"
#include "content/HRXmlElement.h"
#include "context/printable_p.h"

#include <QDebug>
#include <QMap>
#include <QMetaProperty>
#include <QPointer>
#include <QVector>

#include <map>
#include <utility>

namespace Hintreels {

namespace {

/// An element that was opened and not yet closed.
struct OpenElement
{
    QPointer<QObject> object; // null where the element makes none
    const HRElementClass *elementClass; // of the object
    HRFilterAnswer mode; // for its children
};

HRFilterAnswer modeOfAnswer(int answer)
{
    if (answer & dropChildren)
        return dropChildren;
    return answer & takeAll ? takeAll : askForChildren;
}

void log(const QString &message)
{
    qDebug().noquote() << printable(message);
}

/// Writes every attribute to the property of its name; false where there is no such property.
bool writeProperties(
    QObject *object, const QMetaObject &metaObject, const QXmlAttributes &attributes)
{
    for (int i = 0; i < attributes.length(); ++i) {
        const QString name = attributes.localName(i);
        const int index = metaObject.indexOfProperty(name.toLatin1().constData());
        if (index < 0) {
            log(QStringLiteral("No Property named %1 on %2")
                    .arg(name, QLatin1String(metaObject.className())));
            return false;
        }
        if (!metaObject.property(index).write(object, attributes.value(i))) {
            log(QStringLiteral("Could not write \"%1\" to property %2 of %3")
                    .arg(attributes.value(i), name, QLatin1String(metaObject.className())));
        }
    }
    return true;
}

void logMissingClass(const QString &localName)
{
    log(QStringLiteral("Could not find object for element: %1").arg(localName));
}

/// Makes an object of the class, or logs why there is none. A class that takes the attributes
/// itself gets them; of others the properties are written.
QObject *makeObject(const HRElementClass &elementClass, QObject *parent, const QString &localName,
    const QXmlAttributes &attributes)
{
    QObject *object = elementClass.construct(parent, attributes);
    if (object)
        return object;
    object = elementClass.construct(parent);
    if (!object) {
        logMissingClass(localName);
        return nullptr;
    }
    if (writeProperties(object, *elementClass.metaObject(), attributes))
        return object;
    delete object;
    return nullptr;
}

} // namespace

struct HRXmlParserPrivate
{
    QMap<QString, const QMetaObject *> registry; // class by local name
    const QMetaObject *defaultElement;
    HRXmlParser::Filter callback;
    void *context;
    QVector<OpenElement> stack; // the root comes first
    HRFilterAnswer mode; // of the elements read next
    std::map<const QMetaObject *, std::unique_ptr<HRElementClass>> classes; // used until now
    std::unique_ptr<HRXmlDocument> document; // the one read last, or being read
    int errorLine; // in that document; 0 for none
    QString errorText;

    int answerFor(const QString &qName, const QXmlAttributes &attributes) const
    {
        return callback && (mode & askForChildren) ? callback(qName, attributes, context) : mode;
    }

    /// The object nearest around the next element: elements that make none are seen through.
    QObject *enclosingObject() const
    {
        for (auto open = stack.crbegin(); open != stack.crend(); ++open) {
            if (open->object)
                return open->object;
        }
        return nullptr;
    }

    /// Null where not even a default class is set.
    const HRElementClass *classFor(const QString &localName)
    {
        const QMetaObject *registered = registry.value(localName);
        const QMetaObject *metaObject = registered ? registered : defaultElement;
        if (!metaObject)
            return nullptr;
        std::unique_ptr<HRElementClass> &known = classes[metaObject];
        if (!known)
            known = std::make_unique<HRElementClass>(metaObject);
        return known.get();
    }

    /// Whether text at this place goes nowhere: it stands in an element that makes no object.
    bool isTextUnread() const { return stack.size() > 1 && !stack.last().object; }

    void skipText()
    {
        if (isTextUnread())
            document->skipText();
    }

    void push(QObject *object, const HRElementClass *elementClass, HRFilterAnswer childMode)
    {
        stack.append({ object, elementClass, childMode });
        mode = childMode;
    }
};

HRXmlParser::HRXmlParser(Filter callback, void *context)
    : d(new HRXmlParserPrivate{ {}, &HRXmlElement::staticMetaObject, callback, context, {},
        askForChildren, {}, nullptr, 0, {} })
{
}

HRXmlParser::~HRXmlParser()
{
    for (const OpenElement &open : qAsConst(d->stack))
        delete open.object;
}

void HRXmlParser::registerElement(const QString &localName, const QMetaObject *metaObject)
{
    d->registry.insert(localName, metaObject);
}

void HRXmlParser::unregisterElement(const QString &localName)
{
    d->registry.remove(localName);
}

void HRXmlParser::setDefaultElement(const QMetaObject *metaObject)
{
    d->defaultElement = metaObject;
}

const QMetaObject *HRXmlParser::defaultElement() const
{
    return d->defaultElement;
}

const QMetaObject *HRXmlParser::metaObjectForElement(const QString &localName) const
{
    return d->registry.value(localName);
}

QList<QObject *> HRXmlParser::read(const QXmlInputSource *source)
{
    return readDocument(std::make_unique<HRXmlDocument>(const_cast<QXmlInputSource *>(source)));
}

QList<QObject *> HRXmlParser::read(const QXmlInputSource &source)
{
    return read(&source);
}

QList<QObject *> HRXmlParser::read(const QByteArray &document)
{
    return readDocument(std::make_unique<HRXmlDocument>(document));
}

QStringView HRXmlParser::readText() const
{
    return d->document ? d->document->taken() : QStringView();
}

int HRXmlParser::errorLine() const
{
    return d->errorLine;
}

QString HRXmlParser::errorText() const
{
    return d->errorText;
}

bool HRXmlParser::startElement(const QString &namespaceURI, const QString &localName,
    const QString &qName, const QXmlAttributes &attributes)
{
    if (!d->document->guard().allowsElement())
        return false;
    if (d->mode & dropChildren) {
        d->push(nullptr, nullptr, dropChildren);
        d->skipText();
        return true;
    }
    const int answer = d->answerFor(qName, attributes);
    if (answer & dropElement) {
        d->push(nullptr, nullptr, modeOfAnswer(answer));
        d->skipText();
        return true;
    }
    const HRElementClass *elementClass = d->classFor(localName);
    if (!elementClass) {
        logMissingClass(localName);
        return false;
    }
    QObject *object = makeObject(*elementClass, d->enclosingObject(), localName, attributes);
    if (!object)
        return false;
    elementClass->writeTag(object, namespaceURI.trimmed(), qName.trimmed());
    d->push(object, elementClass, modeOfAnswer(answer));
    return true;
}

bool HRXmlParser::endElement(const QString &, const QString &, const QString &)
{
    d->stack.removeLast();
    d->mode = d->stack.last().mode;
    d->skipText();
    return true;
}

bool HRXmlParser::characters(const QString &text)
{
    const OpenElement &element = d->stack.last();
    if (element.object && element.elementClass)
        element.elementClass->appendContent(element.object, text);
    return true;
}

bool HRXmlParser::ignorableWhitespace(const QString &text)
{
    return characters(text);
}

bool HRXmlParser::fatalError(const QXmlParseException &exception)
{
    const QString refusal = d->document->guard().refusal();
    d->errorLine = exception.lineNumber();
    d->errorText = refusal.isEmpty() ? exception.message() : refusal;
    log(QStringLiteral("Fatal error at %1,%2 : %3")
            .arg(d->errorLine)
            .arg(exception.columnNumber() + d->document->skippedInLine())
            .arg(d->errorText));
    return false;
}

bool HRXmlParser::startPrefixMapping(const QString &prefix, const QString &)
{
    d->document->guard().prefixes().enter(prefix);
    return true;
}

bool HRXmlParser::endPrefixMapping(const QString &prefix)
{
    d->document->guard().prefixes().leave(prefix);
    return true;
}

bool HRXmlParser::internalEntityDecl(const QString &name, const QString &value)
{
    reportEntities(true);
    d->document->keepEverything(); // the reader may be in an entity's text, away from the document
    return d->document->guard().allowsEntity(name, value);
}

bool HRXmlParser::startEntity(const QString &name)
{
    return d->document->guard().allowsExpansion(name);
}

bool HRXmlParser::endDTD()
{
    return d->document->guard().allowsBody(d->document->unread());
}

QList<QObject *> HRXmlParser::readDocument(std::unique_ptr<HRXmlDocument> document)
{
    d->stack.clear();
    d->push(new HRXmlElement, nullptr, askForChildren);
    setContentHandler(this);
    setErrorHandler(this);
    setDeclHandler(this);
    setLexicalHandler(this);
    reportEntities(false);
    d->document = std::move(document);
    d->errorLine = 0;
    d->errorText = QString();
    parse(d->document.get());

    QObject *root = d->stack.first().object;
    if (!root)
        return {};
    const QList<QObject *> objects = root->children();
    for (QObject *object : objects)
        object->setParent(nullptr);
    delete root;
    return objects;
}

/// Asks the reader to call startEntity(). It then looks at each character for the end of one, so
/// this waits until a document declares entities, which few do.
void HRXmlParser::reportEntities(bool on)
{
    setFeature(QStringLiteral("http://qt-project.org/xml/features/report-start-end-entity"), on);
}

} // namespace Hintreels
