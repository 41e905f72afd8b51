// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/qmlTypes_p.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

using namespace Hintreels;

class tst_qmlTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void qml_createsEveryType_data();
    void qml_createsEveryType();
};

void tst_qmlTypes::qml_createsEveryType_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("HRVideoComponent") << QByteArray("Hintreels::HRVideoComponent");
    QTest::newRow("HRXmlElement") << QByteArray("Hintreels::HRXmlElement");
    QTest::newRow("HRStyledRectangle") << QByteArray("Hintreels::HRStyledRectangleComponent");
    QTest::newRow("HRScrollBar") << QByteArray("HRScrollBarComponent");
}

void tst_qmlTypes::qml_createsEveryType()
{
    QFETCH(QByteArray, className);
    registerQmlTypes();
    registerQmlTypes();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(
        QByteArray("import com.zentora.hintreels.qml 1.0\n") + QTest::currentDataTag() + "{}", {});

    const std::unique_ptr<QObject> object(component.create());

    QVERIFY2(object, qPrintable(component.errorString()));
    const QMetaObject *meta = object->metaObject();
    while (meta && meta->className() != className)
        meta = meta->superClass();
    QVERIFY(meta);
}

QTEST_MAIN(tst_qmlTypes)
#include "tst_qmlTypes.moc"
