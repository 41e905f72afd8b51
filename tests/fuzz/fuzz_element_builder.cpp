// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"
#include "fuzz/FuzzTarget.h"
#include "support/Promises.h"

#include <QBuffer>
#include <QHash>
#include <QPointer>
#include <QUrl>

using namespace Hintreels;

namespace {

/// A class whose attributes are written to properties, under the name "p".
class Properties : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int number MEMBER m_number)
    Q_PROPERTY(bool flag MEMBER m_flag)
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(QUrl url MEMBER m_url)

public:
    Q_INVOKABLE explicit Properties(QObject *parent)
        : QObject(parent)
    {
    }

private:
    int m_number = 0;
    bool m_flag = false;
    QString m_text;
    QUrl m_url;
};

/// Any of the sixteen answers, the same one for the same name.
int answer(const QString &name, const QXmlAttributes &, void *)
{
    return int(qHash(name, 0) % 16);
}

/// Takes the result of a reading, of which the parser may take parts along when it goes.
class Reading
{
public:
    explicit Reading(const QList<QObject *> &objects)
    {
        for (QObject *object : objects)
            m_objects.append(object);
    }

    ~Reading()
    {
        for (const QPointer<QObject> &object : m_objects)
            delete object;
    }

    QString text() const
    {
        QString all;
        for (const QPointer<QObject> &object : m_objects)
            all += textOf(object);
        return all;
    }

private:
    static QString textOf(const QObject *object)
    {
        const auto *element = qobject_cast<const HRXmlElement *>(object);
        return element ? element->toXml() + element->content() : QStringLiteral("-");
    }

    QList<QPointer<QObject>> m_objects;
};

QString readByByteArray(const QByteArray &input, HRXmlParser &parser)
{
    return Reading(parser.read(input)).text();
}

QString readByDevice(QByteArray input, HRXmlParser &parser)
{
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    QXmlInputSource source(&buffer);
    return Reading(parser.read(source)).text();
}

/// How deep elements may be nested depends on the stack that is left, which differs between the two
/// ways of reading; so does where they stop.
bool isShallow(const QByteArray &input)
{
    return input.count('<') < 200 && !input.contains("<!ENTITY");
}

void readTwice(const QByteArray &input, HRXmlParser::Filter filter)
{
    HRXmlParser parser(filter);
    parser.registerElement("p", &Properties::staticMetaObject);
    const QString fromBytes = readByByteArray(input, parser);
    const QString fromDevice = readByDevice(input, parser);
    require(
        !isShallow(input) || fromBytes == fromDevice, "bytes and devices make the same objects");
}

} // namespace

void fuzzElementBuilder(const QByteArray &input)
{
    readTwice(input, nullptr);
    readTwice(input, answer);
}

#include "fuzz_element_builder.moc"
