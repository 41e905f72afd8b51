// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/HRStyledRectangleComponent.h"

#include <QPainter>
#include <QToolTip>
#include <QtTest>

using namespace Hintreels;

namespace {

QImage paint(HRStyledRectangleComponent &rectangle)
{
    QImage image(30, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    rectangle.setSize(image.size());
    QPainter painter(&image);
    rectangle.paint(&painter);
    return image;
}

QColor windowColor()
{
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Window);
}

} // namespace

class tst_HRStyledRectangleComponent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasMembersInOrder();
    void setElement_acceptsTwoNames_data();
    void setElement_acceptsTwoNames();
    void setToolTipStyle_emitsBothSignals_evenForSameValue();
    void textColor_isBlackOnlyInToolTipStyle();
    void textColor_changesWithPalette();
    void paint_fillsWithWindowColor_beyondItsEdges();
    void paint_fillsWithToolTipColor_insideOutline();
};

void tst_HRStyledRectangleComponent::metaObject_hasMembersInOrder()
{
    const QMetaObject &meta = HRStyledRectangleComponent::staticMetaObject;
    QCOMPARE(meta.className(), "Hintreels::HRStyledRectangleComponent");
    QByteArrayList members;
    for (int i = meta.methodOffset(); i < meta.methodOffset() + 3; ++i)
        members.append(meta.method(i).methodSignature());
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        members.append(meta.property(i).name());
    QCOMPARE(members,
        (QByteArrayList{ "elementChanged()", "textColorChanged()", "toolTipStyleChanged()",
            "element", "textColor", "toolTipStyle" }));
}

void tst_HRStyledRectangleComponent::setElement_acceptsTwoNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("frame") << "PE_Frame" << true;
    QTest::newRow("widget") << "PE_Widget" << true;
    QTest::newRow("wrong case") << "PE_frame" << false;
    QTest::newRow("another primitive") << "PE_PanelTipLabel" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_HRStyledRectangleComponent::setElement_acceptsTwoNames()
{
    QFETCH(QString, name);
    QFETCH(bool, accepted);
    HRStyledRectangleComponent rectangle;
    QCOMPARE(rectangle.element(), QString("PE_Widget"));
    QSignalSpy changed(&rectangle, &HRStyledRectangleComponent::elementChanged);

    rectangle.setElement(name);

    QCOMPARE(changed.count(), accepted ? 1 : 0);
    QCOMPARE(rectangle.element(), accepted ? name : QString("PE_Widget"));
}

void tst_HRStyledRectangleComponent::setToolTipStyle_emitsBothSignals_evenForSameValue()
{
    HRStyledRectangleComponent rectangle;
    QVERIFY(!rectangle.toolTipStyle());
    QSignalSpy style(&rectangle, &HRStyledRectangleComponent::toolTipStyleChanged);
    QSignalSpy color(&rectangle, &HRStyledRectangleComponent::textColorChanged);
    rectangle.setToolTipStyle(true);
    rectangle.setToolTipStyle(true);
    QCOMPARE(style.count(), 2);
    QCOMPARE(color.count(), 2);
}

void tst_HRStyledRectangleComponent::textColor_isBlackOnlyInToolTipStyle()
{
    HRStyledRectangleComponent rectangle;
    QCOMPARE(rectangle.textColor(),
        QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText));
    rectangle.setToolTipStyle(true);
    QCOMPARE(rectangle.textColor(), QColor(Qt::black));
}

void tst_HRStyledRectangleComponent::textColor_changesWithPalette()
{
    HRStyledRectangleComponent rectangle;
    QSignalSpy color(&rectangle, &HRStyledRectangleComponent::textColorChanged);
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::WindowText, Qt::magenta);

    QGuiApplication::setPalette(palette);

    QCOMPARE(rectangle.textColor(), QColor(Qt::magenta));
    QVERIFY(color.count() >= 1);
    QGuiApplication::setPalette(before);
}

void tst_HRStyledRectangleComponent::paint_fillsWithWindowColor_beyondItsEdges()
{
    HRStyledRectangleComponent rectangle;
    QVERIFY(rectangle.flags() & QQuickItem::ItemHasContents);
    QImage expected(30, 20, QImage::Format_ARGB32);
    expected.fill(windowColor());
    QCOMPARE(paint(rectangle), expected);
}

void tst_HRStyledRectangleComponent::paint_fillsWithToolTipColor_insideOutline()
{
    HRStyledRectangleComponent rectangle;
    rectangle.setToolTipStyle(true);
    const QImage image = paint(rectangle);
    QCOMPARE(image.pixelColor(15, 10), QToolTip::palette().color(QPalette::ToolTipBase));
    // The pen is the painter's own.
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::black));
}

QTEST_MAIN(tst_HRStyledRectangleComponent)
#include "tst_HRStyledRectangleComponent.moc"
