// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/ElementBuilder.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

HRXmlElement *deepest(HRXmlElement *element)
{
    while (!element->children().isEmpty())
        element = static_cast<HRXmlElement *>(element->children().first());
    return element;
}

} // namespace

class tst_HRXmlElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_listsMethodsInOrder();
    void metaObject_listsConstructorsInOrder();
    void metaObject_listsPropertiesInOrder();
    void constructor_startsEmpty();
    void constructor_keepsLastAttribute_whenNameOccursTwice();
    void constructor_isInvokable();
    void setters_emitEveryTime();
    void contentProperty_cannotBeWritten();
    void appendContent_joinsText();
    void setAttribute_replacesValue();
    void attribute_isNull_whenAbsent();
    void attribute_isEmptyAndPresent_whenValueIsEmpty();
    void attributeNames_ascend();
    void childElement_takesDirectChildrenFirst();
    void childElement_searchesEachChildInItsTurn();
    void childElement_searchesThroughOtherObjects();
    void childElement_isNull_whenCaseDiffers();
    void childElement_findsNamelessElement_whenNameIsEmpty();
    void childElementList_putsParentsBeforeChildren();
    void childElementList_returnsEverything_whenNameIsEmpty();
    void deletion_freesWholeTree();
    void deletion_leavesOtherObjectsTheirChildren();
    void deletion_takesDeepTree();
    void deletion_takesWideTree();
    void search_takesDeepTree();
    void qml_readsElements();
};

void tst_HRXmlElement::metaObject_listsMethodsInOrder()
{
    const QMetaObject &meta = HRXmlElement::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(
            meta.method(i).typeName() + QByteArray(" ") + meta.method(i).methodSignature()));

    const QStringList expected{ "void tagNameChanged()", "void tagNameSpaceChanged()",
        "void contentChanged()", "Hintreels::HRXmlElement* childElement(QString)",
        "QList<QObject*> childElementList(QString)", "QString attribute(QString)",
        "bool hasAttribute(QString)", "void appendContent(QString)", "QString toXml(int)",
        "QString toXml()" };
    QCOMPARE(methods, expected);
    const QMetaMethod toXml = meta.method(meta.indexOfMethod("toXml(int)"));
    QCOMPARE(toXml.parameterNames(), QList<QByteArray>{ "index" });
    const QMetaMethod cloned = meta.method(meta.indexOfMethod("toXml()"));
    QVERIFY(cloned.attributes() & QMetaMethod::Cloned);
}

void tst_HRXmlElement::metaObject_listsConstructorsInOrder()
{
    const QMetaObject &meta = HRXmlElement::staticMetaObject;
    QList<QByteArray> constructors;
    for (int i = 0; i < meta.constructorCount(); ++i)
        constructors.append(meta.constructor(i).methodSignature());

    const QList<QByteArray> expected{ "HRXmlElement(QObject*,QXmlAttributes)",
        "HRXmlElement(QObject*)", "HRXmlElement()" };
    QCOMPARE(constructors, expected);
}

void tst_HRXmlElement::metaObject_listsPropertiesInOrder()
{
    const QMetaObject &meta = HRXmlElement::staticMetaObject;
    QList<QByteArray> properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        properties.append(QByteArray(property.typeName()) + ' ' + property.name()
            + (property.isWritable() ? " w " : " r ") + property.notifySignal().name());
    }

    const QList<QByteArray> expected{ "QString tagName w tagNameChanged",
        "QString tagNameSpace w tagNameSpaceChanged", "QString content r contentChanged" };
    QCOMPARE(properties, expected);
}

void tst_HRXmlElement::constructor_startsEmpty()
{
    const HRXmlElement element;
    QCOMPARE(element.getTagName(), QString());
    QCOMPARE(element.getTagNameSpace(), QString());
    QCOMPARE(element.content(), QString());
    QCOMPARE(element.attributeNames(), QStringList());
}

void tst_HRXmlElement::constructor_keepsLastAttribute_whenNameOccursTwice()
{
    const HRXmlElement element(nullptr, attributes({ { "x", "1" }, { "y", "2" }, { "x", "3" } }));
    QCOMPARE(element.attributeNames(), (QStringList{ "x", "y" }));
    QCOMPARE(element.attribute("x"), QString("3"));
}

void tst_HRXmlElement::constructor_isInvokable()
{
    QObject parent;
    const QXmlAttributes attrs = attributes({ { "p:x", "1" } });
    QObject *object = HRXmlElement::staticMetaObject.newInstance(
        Q_ARG(QObject *, &parent), Q_ARG(QXmlAttributes, attrs));
    const auto *element = qobject_cast<HRXmlElement *>(object);
    QVERIFY(element);
    QCOMPARE(element->parent(), &parent);
    QCOMPARE(element->attribute("p:x"), QString("1"));
}

void tst_HRXmlElement::setters_emitEveryTime()
{
    HRXmlElement element;
    QSignalSpy tagName(&element, &HRXmlElement::tagNameChanged);
    QSignalSpy tagNameSpace(&element, &HRXmlElement::tagNameSpaceChanged);
    QSignalSpy content(&element, &HRXmlElement::contentChanged);

    for (int i = 0; i < 2; ++i) {
        element.setTagName("a");
        element.setTagNameSpace("urn:a");
        element.setContent("text");
        element.appendContent("");
    }

    QCOMPARE(tagName.count(), 2);
    QCOMPARE(tagNameSpace.count(), 2);
    QCOMPARE(content.count(), 4);
    QCOMPARE(element.objectName(), QString("a"));
    QCOMPARE(element.getTagNameSpace(), QString("urn:a"));
}

void tst_HRXmlElement::contentProperty_cannotBeWritten()
{
    HRXmlElement element;
    element.setContent("text");
    QVERIFY(!element.setProperty("content", "other"));
    QCOMPARE(element.property("content").toString(), QString("text"));
}

void tst_HRXmlElement::appendContent_joinsText()
{
    HRXmlElement element;
    element.appendContent(" a\n");
    element.appendContent("  b ");
    QCOMPARE(element.content(), QString(" a\n  b "));
    element.setContent("c");
    QCOMPARE(element.content(), QString("c"));
}

void tst_HRXmlElement::setAttribute_replacesValue()
{
    HRXmlElement element;
    element.setAttribute("a", "1");
    element.setAttribute("a", "2");
    QCOMPARE(element.attributeNames(), QStringList{ "a" });
    QCOMPARE(element.attribute("a"), QString("2"));
}

void tst_HRXmlElement::attribute_isNull_whenAbsent()
{
    const HRXmlElement element;
    QVERIFY(element.attribute("x").isNull());
    QVERIFY(!element.hasAttribute("x"));
}

void tst_HRXmlElement::attribute_isEmptyAndPresent_whenValueIsEmpty()
{
    HRXmlElement element;
    element.setAttribute("x", "");
    QCOMPARE(element.attribute("x"), QString(""));
    QVERIFY(element.hasAttribute("x"));
}

void tst_HRXmlElement::attributeNames_ascend()
{
    const HRXmlElement element(
        nullptr, attributes({ { "b", "" }, { "a", "" }, { "B", "" }, { "ä", "" }, { "a:b", "" } }));
    QCOMPARE(element.attributeNames(), (QStringList{ "B", "a", "a:b", "b", "ä" }));
}

void tst_HRXmlElement::childElement_takesDirectChildrenFirst()
{
    HRXmlElement root;
    HRXmlElement *first = newElement("a", &root);
    newElement("wanted", first);
    HRXmlElement *wanted = newElement("wanted", &root);
    newElement("wanted", &root);
    QCOMPARE(root.childElement("wanted"), wanted);
}

void tst_HRXmlElement::childElement_searchesEachChildInItsTurn()
{
    // Breadth first would find the other one, which is one level nearer.
    HRXmlElement root;
    HRXmlElement *first = newElement("a", &root);
    HRXmlElement *deep = newElement("b", newElement("b", first));
    HRXmlElement *wanted = newElement("wanted", deep);
    HRXmlElement *second = newElement("a", &root);
    newElement("wanted", second);
    QCOMPARE(root.childElement("wanted"), wanted);

    // Depth first would find the one below the first child.
    HRXmlElement *nearer = newElement("wanted", first);
    QCOMPARE(first->children().last(), nearer);
    QCOMPARE(root.childElement("wanted"), nearer);
}

void tst_HRXmlElement::childElement_searchesThroughOtherObjects()
{
    HRXmlElement root;
    QObject *other = newObject("wanted", &root);
    HRXmlElement *wanted = newElement("wanted", other);
    QCOMPARE(root.childElement("wanted"), wanted);
}

void tst_HRXmlElement::childElement_isNull_whenCaseDiffers()
{
    HRXmlElement root;
    newElement("Wanted", &root);
    QCOMPARE(root.childElement("wanted"), nullptr);
}

void tst_HRXmlElement::childElement_findsNamelessElement_whenNameIsEmpty()
{
    HRXmlElement root;
    newElement("a", &root);
    HRXmlElement *nameless = newElement("", &root);
    QCOMPARE(root.childElement(""), nameless);
}

void tst_HRXmlElement::childElementList_putsParentsBeforeChildren()
{
    HRXmlElement root;
    HRXmlElement *first = newElement("x", &root);
    HRXmlElement *nested = newElement("x", newElement("y", first));
    QObject *other = newObject("x", &root);
    HRXmlElement *last = newElement("x", &root);
    QCOMPARE(root.childElementList("x"), (QList<QObject *>{ first, nested, other, last }));
    QCOMPARE(root.childElementList("z"), QList<QObject *>());
}

void tst_HRXmlElement::childElementList_returnsEverything_whenNameIsEmpty()
{
    HRXmlElement root;
    HRXmlElement *first = newElement("x", &root);
    QObject *nested = newObject("", first);
    HRXmlElement *last = newElement("y", &root);
    const QList<QObject *> all{ first, nested, last };
    QCOMPARE(root.childElementList(""), all);
    QCOMPARE(root.childElementList(QString()), all);
}

void tst_HRXmlElement::deletion_freesWholeTree()
{
    auto *root = new HRXmlElement;
    const QPointer<QObject> element(newElement("a", newElement("b", root)));
    const QPointer<QObject> other(newObject("c", newObject("d", root)));
    const QPointer<QObject> below(newElement("e", other));
    delete root;
    QVERIFY(!element);
    QVERIFY(!other);
    QVERIFY(!below);
}

void tst_HRXmlElement::deletion_leavesOtherObjectsTheirChildren()
{
    struct Owner : QObject
    {
        explicit Owner(QObject *parent, QString *name)
            : QObject(parent)
            , child(newObject("child", this))
            , seenName(name)
        {
        }
        ~Owner() override { *seenName = child ? child->objectName() : QString("gone"); }

        QPointer<QObject> child;
        QString *seenName;
    };

    QString seenName;
    auto *root = new HRXmlElement;
    new Owner(newElement("a", root), &seenName);
    delete root;
    QCOMPARE(seenName, QString("child"));
}

void tst_HRXmlElement::deletion_takesDeepTree()
{
    std::unique_ptr<HRXmlElement> root = newChain(200000);
    const QPointer<QObject> last(deepest(root.get()));
    root.reset();
    QVERIFY(!last);
}

void tst_HRXmlElement::deletion_takesWideTree()
{
    auto root = std::make_unique<HRXmlElement>();
    for (int i = 0; i < 200000; ++i)
        new HRXmlElement(root.get());

    QElapsedTimer timer;
    timer.start();
    root.reset();
    // Linear time takes a fraction of a second, quadratic time minutes.
    QVERIFY(timer.elapsed() < 10000);
}

void tst_HRXmlElement::search_takesDeepTree()
{
    const std::unique_ptr<HRXmlElement> root = newChain(200000);
    HRXmlElement *last = deepest(root.get());
    last->setTagName("wanted");
    QCOMPARE(root->childElement("wanted"), last);
    QCOMPARE(root->childElement("absent"), nullptr);
    QCOMPARE(root->childElementList("wanted"), QList<QObject *>{ last });
    QCOMPARE(root->childElementList("a").size(), 199998);
}

void tst_HRXmlElement::qml_readsElements()
{
    HRXmlElement root(nullptr, attributes({ { "locale", "de_DE" } }));
    newElement("b", newElement("a", &root))->setContent("text");
    QQmlEngine engine;
    engine.rootContext()->setContextProperty("root", &root);

    QQmlExpression expression(engine.rootContext(), nullptr,
        "[root.childElement('b').tagName, root.childElement('b').content,"
        " root.childElement('c') === null, root.childElementList('').length,"
        " root.childElementList('')[1].tagName, root.attribute('locale'),"
        " root.hasAttribute('x'), root.childElement('a').toXml(),"
        " root.childElement('a').toXml(1)].join('|')");
    const QString result = expression.evaluate().toString();

    QVERIFY2(!expression.hasError(), qPrintable(expression.error().toString()));
    QCOMPARE(result, QString("b|text|true|2|b|de_DE|false|<a>\n  <b/>\n</a>| <a>\n   <b/>\n </a>"));
}

QTEST_GUILESS_MAIN(tst_HRXmlElement)
#include "tst_HRXmlElement.moc"
