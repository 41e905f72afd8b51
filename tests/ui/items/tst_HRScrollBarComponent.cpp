// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/HRScrollBarComponent.h"

#include "support/MetaMembers.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QtTest>

#include <limits>

namespace {

/// A component, and the native bar that it has made.
struct Fixture
{
    HRScrollBarComponent component;
    QScrollBar *bar = newestBar();

    static QScrollBar *newestBar()
    {
        QScrollBar *newest = nullptr;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *bar = qobject_cast<QScrollBar *>(widget);
            if (bar && !known().contains(bar))
                newest = bar;
        }
        known().append(newest);
        return newest;
    }

    static QVector<QScrollBar *> &known()
    {
        static QVector<QScrollBar *> bars;
        return bars;
    }
};

} // namespace

class tst_HRScrollBarComponent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasMembersInOrder();
    void newBar_hasQtsRange();
    void values_areKeptAsHundredths_data();
    void values_areKeptAsHundredths();
    void setters_emitDirectly();
    void setPositionExternal_emitsLater_onlyWhenChanged();
    void setOrientHorizontal_turnsBar();
    void updateDimensions_truncatesItemSize_data();
    void updateDimensions_truncatesItemSize();
    void itemChange_reachesBar();
    void paint_leavesThePictureAlone();
    void bar_outlivesComponent();
    void component_toleratesDeletedBar();
};

void tst_HRScrollBarComponent::metaObject_hasMembersInOrder()
{
    const QMetaObject &meta = HRScrollBarComponent::staticMetaObject;
    QCOMPARE(meta.className(), "HRScrollBarComponent");
    QCOMPARE(membersOf(meta),
        (QByteArrayList{ "startChanged()", "endChanged()", "positionChanged()",
            "orientHorizontalChanged()", "scrollBarWidthChanged()", "scrollBarPositionChanged(int)",
            "updateDimensions()", "setPositionExternal(float)", "start", "end", "position",
            "orientHorizontal", "scrollBarWidth" }));
}

void tst_HRScrollBarComponent::newBar_hasQtsRange()
{
    Fixture f;
    QVERIFY(f.bar);
    QCOMPARE(f.component.start(), 0.0F);
    QCOMPARE(f.component.end(), 0.99F);
    f.component.setPosition(5);
    QCOMPARE(f.component.position(), 0.99F);
    QCOMPARE(f.component.acceptedMouseButtons(), Qt::MouseButtons(Qt::AllButtons));
}

void tst_HRScrollBarComponent::values_areKeptAsHundredths_data()
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("hundredths");
    QTest::newRow("truncated") << 0.999F << 99;
    QTest::newRow("truncated towards zero") << -0.999F << -99;
    QTest::newRow("negative half") << -0.5F << -50;
    QTest::newRow("single precision") << 0.29F << int(0.29F * 100.0F);
    QTest::newRow("large") << 1e20F << std::numeric_limits<int>::max();
    QTest::newRow("infinite") << -infinity << std::numeric_limits<int>::min();
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void tst_HRScrollBarComponent::values_areKeptAsHundredths()
{
    QFETCH(float, value);
    QFETCH(int, hundredths);
    Fixture f;
    f.bar->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());

    f.component.setPosition(value);
    QCOMPARE(f.bar->value(), hundredths);
    QCOMPARE(f.component.position(), float(hundredths) / 100.0F);

    f.component.setStart(value);
    QCOMPARE(f.bar->minimum(), hundredths);
    f.component.setEnd(value);
    QCOMPARE(f.bar->maximum(), hundredths);
}

void tst_HRScrollBarComponent::setters_emitDirectly()
{
    Fixture f;
    QSignalSpy start(&f.component, &HRScrollBarComponent::startChanged);
    QSignalSpy end(&f.component, &HRScrollBarComponent::endChanged);
    QSignalSpy position(&f.component, &HRScrollBarComponent::positionChanged);
    f.component.setStart(0);
    f.component.setEnd(1);
    f.component.setPosition(0.5);
    QCOMPARE(start.count(), 1);
    QCOMPARE(end.count(), 1);
    QCOMPARE(position.count(), 1);
    QTRY_COMPARE(position.count(), 2); // the bar's own news follows
}

void tst_HRScrollBarComponent::setPositionExternal_emitsLater_onlyWhenChanged()
{
    Fixture f;
    QSignalSpy position(&f.component, &HRScrollBarComponent::positionChanged);
    f.component.setPositionExternal(0);
    f.component.setPositionExternal(0.5);
    QCOMPARE(position.count(), 0);
    QTRY_COMPARE(position.count(), 1);
    f.component.setPositionExternal(0.5);
    f.component.setPositionExternal(0.6F);
    QTRY_COMPARE(position.count(), 2); // what was sent before came before
}

void tst_HRScrollBarComponent::setOrientHorizontal_turnsBar()
{
    Fixture f;
    QSignalSpy changed(&f.component, &HRScrollBarComponent::orientHorizontalChanged);
    f.bar->setFixedSize(40, 12);
    QVERIFY(!f.component.orientHorizontal());
    QCOMPARE(f.component.scrollBarWidth(), 40.0F);
    f.component.setOrientHorizontal(true);
    QVERIFY(f.component.orientHorizontal());
    QCOMPARE(f.component.scrollBarWidth(), 12.0F);
    QCOMPARE(changed.count(), 1);
}

void tst_HRScrollBarComponent::updateDimensions_truncatesItemSize_data()
{
    QTest::addColumn<QSizeF>("item");
    QTest::addColumn<QSize>("bar");
    QTest::newRow("fractions") << QSizeF(12.9, 200.9) << QSize(12, 200);
    QTest::newRow("negative") << QSizeF(-5, 10) << QSize(0, 10);
    QTest::newRow("huge") << QSizeF(10, 1e15) << QSize(10, QWIDGETSIZE_MAX);
}

void tst_HRScrollBarComponent::updateDimensions_truncatesItemSize()
{
    QFETCH(QSizeF, item);
    Fixture f;
    f.component.setSize(item);
    f.component.updateDimensions();
    QTEST(f.bar->maximumSize(), "bar");
}

void tst_HRScrollBarComponent::itemChange_reachesBar()
{
    Fixture f;
    f.component.setVisible(false);
    QVERIFY(!f.bar->isVisible());
    f.component.setVisible(true);
    QVERIFY(f.bar->isVisible());
    f.component.setOpacity(0.5);
    QCOMPARE(qRound(f.bar->windowOpacity() * 10), 5);
    f.bar->hide();
}

void tst_HRScrollBarComponent::paint_leavesThePictureAlone()
{
    Fixture f;
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QImage before = picture.copy();
    QPainter painter(&picture);
    f.component.paint(&painter);
    painter.end();
    QCOMPARE(picture, before);
}

void tst_HRScrollBarComponent::bar_outlivesComponent()
{
    auto *component = new HRScrollBarComponent;
    const QPointer<QScrollBar> bar = Fixture::newestBar();
    QVERIFY(bar);
    delete component;
    QVERIFY(bar);
}

void tst_HRScrollBarComponent::component_toleratesDeletedBar()
{
    Fixture f;
    delete f.bar;
    f.component.setPosition(1);
    f.component.setStart(1);
    f.component.setEnd(1);
    f.component.setOrientHorizontal(true);
    f.component.setVisible(false);
    f.component.setOpacity(0.5);
    f.component.updateDimensions();
    QCOMPARE(f.component.start(), 0.0F);
    QCOMPARE(f.component.end(), 0.0F);
    QCOMPARE(f.component.position(), 0.0F);
    QCOMPARE(f.component.scrollBarWidth(), 0.0F);
    QVERIFY(!f.component.orientHorizontal());
}

QTEST_MAIN(tst_HRScrollBarComponent)
#include "tst_HRScrollBarComponent.moc"
