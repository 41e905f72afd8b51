// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "ui/items/HRScrollBarComponent.h"
#include "ui/items/HRStyledRectangleComponent.h"
#include "ui/items/qmlTypes_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/serviceTypes_p.h"
#include "ui/reader/HRContentReader_p.h"
#include "video/HRClipStill_p.h"

#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

using namespace Hintreels;

namespace {

/// A type of the module "com.zentora.hintreels.qml".
struct Type
{
    QString name;
    const QMetaObject *meta;
    QString prototype; ///< the nearest base that Qt's own descriptions hold
    int minor; ///< of the first version that has it
    bool creatable;
};

QVector<Type> types()
{
    return {
        { "HRClipStill", &HRClipStill::staticMetaObject, "QQuickPaintedItem", 1, true },
        { "HRContentReader", &HRContentReader::staticMetaObject, "QObject", 1, false },
        { "HRScrollBar", &HRScrollBarComponent::staticMetaObject, "QQuickPaintedItem", 0, true },
        { "HRStyledRectangle", &HRStyledRectangleComponent::staticMetaObject, "QQuickPaintedItem",
            0, true },
        { "HRVideoComponent", &HRVideoComponent::staticMetaObject, "QQuickPaintedItem", 0, true },
        { "HRView", &HRView::staticMetaObject, "QQuickWindow", 1, false },
        { "HRXmlElement", &HRXmlElement::staticMetaObject, "QObject", 0, true },
    };
}

/// A type as Qt's descriptions write it.
QString described(QByteArray type)
{
    const bool isPointer = type.endsWith('*');
    if (isPointer)
        type.chop(1);
    if (type == "QString")
        type = "string";
    return QString("type: \"%1\"%2").arg(type, isPointer ? "; isPointer: true" : "");
}

// QML resolves no enumerators that begin with a small letter: they are numbers there.
QString describe(const QMetaProperty &property)
{
    const QByteArray type = property.isEnumType() ? QByteArray("int") : property.typeName();
    return QString("        Property { name: \"%1\"; %2%3 }\n")
        .arg(property.name(), described(type),
            property.isWritable() ? QString() : "; isReadonly: true");
}

QString describe(const QMetaMethod &method)
{
    const bool isSignal = method.methodType() == QMetaMethod::Signal;
    QString text = QString("        %1 {\n            name: \"%2\"\n")
                       .arg(isSignal ? "Signal" : "Method", method.name());
    if (method.returnType() != QMetaType::Void)
        text += "            " + described(method.typeName()) + '\n';
    for (int i = 0; i < method.parameterCount(); ++i)
        text += QString("            Parameter { name: \"%1\"; %2 }\n")
                    .arg(method.parameterNames().at(i), described(method.parameterTypes().at(i)));
    return text + "        }\n";
}

QString describe(const Type &type)
{
    QString text = QString("    Component {\n        name: \"%1\"\n        prototype: \"%2\"\n"
                           "        exports: [\"com.zentora.hintreels.qml/%3 1.%4\"]\n"
                           "%5        exportMetaObjectRevisions: [0]\n")
                       .arg(type.meta->className(), type.prototype, type.name)
                       .arg(type.minor)
                       .arg(type.creatable ? "" : "        isCreatable: false\n");
    for (int i = type.meta->propertyOffset(); i < type.meta->propertyCount(); ++i)
        text += describe(type.meta->property(i));
    for (int i = type.meta->methodOffset(); i < type.meta->methodCount(); ++i)
        text += describe(type.meta->method(i));
    return text + "    }\n";
}

QString describeModule()
{
    // In pieces: this text is not the licence of this file.
    QString text = "// SPDX"
                   "-FileCopyrightText: 2026 The Hintreels authors\n"
                   "// SPDX"
                   "-License-Identifier: MIT\n\n"
                   "// What tools know of the module; tst_TypeDescriptions holds it to the C++ "
                   "classes.\n"
                   "import QtQuick.tooling 1.2\n\n"
                   "Module {\n    dependencies: [\"QtQuick 2.15\", \"QtQuick.Window 2.15\"]\n";
    for (const Type &type : types())
        text += describe(type);
    return text + "}\n";
}

/// Why QML with a property of a type does not compile; empty where it does.
QString troubleWith(const QString &type, int minor)
{
    QQmlEngine engine;
    engine.addImportPath(HINTREELS_SOURCE_DIR "/src/ui/qml");
    QQmlComponent component(&engine);
    component.setData(QString("import QtQml 2.15\nimport com.zentora.hintreels.qml 1.%1\n"
                              "QtObject { property %2 some }")
                          .arg(minor)
                          .arg(type)
                          .toUtf8(),
        QUrl());
    return component.errorString();
}

} // namespace

/// The qmldir and the .qmltypes file of the library's QML module.
class tst_TypeDescriptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void file_saysWhatTheClassesHave();
    void module_hasTheType_data();
    void module_hasTheType();
};

void tst_TypeDescriptions::initTestCase()
{
    registerQmlTypes();
    registerServiceTypes();
}

void tst_TypeDescriptions::file_saysWhatTheClassesHave()
{
    const QString described = describeModule();
    QFile file(HINTREELS_SOURCE_DIR "/src/ui/qml/com/zentora/hintreels/qml/plugins.qmltypes");
    const QString found
        = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    if (found == described)
        return;
    QFile wanted("plugins.qmltypes");
    QVERIFY(wanted.open(QIODevice::WriteOnly));
    wanted.write(described.toUtf8());
    const QString advice = QString("%1 is out of date; what it should be is in %2")
                               .arg(file.fileName(), QFileInfo(wanted).absoluteFilePath());
    QFAIL(qPrintable(advice));
}

void tst_TypeDescriptions::module_hasTheType_data()
{
    QTest::addColumn<int>("minor");
    for (const Type &type : types())
        QTest::newRow(qPrintable(type.name)) << type.minor;
}

/// With the qmldir in an import path, too, which names no plug-in.
void tst_TypeDescriptions::module_hasTheType()
{
    QFETCH(int, minor);
    QCOMPARE(troubleWith(QTest::currentDataTag(), minor), QString());
    if (minor > 0)
        QVERIFY(troubleWith(QTest::currentDataTag(), minor - 1).contains("not a type"));
}

QTEST_MAIN(tst_TypeDescriptions)
#include "tst_TypeDescriptions.moc"
