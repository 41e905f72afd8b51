// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRHostDescription_p.h"

#include <QtTest>

#include <memory>

using namespace Hintreels;

class tst_HRHostDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widget_getsItsOwnBack();
    void widget_getsItsOwnBack_whenTheLenderGoes();
    void widget_getsItsOwnBack_whenAnotherIsDescribed();
    void widget_keepsWhatTheHostSetsMeanwhile();
    void widget_mayGoMeanwhile();
    void describe_describesNone_forNull();
};

void tst_HRHostDescription::widget_getsItsOwnBack()
{
    QWidget widget;
    widget.setAccessibleDescription("own");
    HRHostDescription description;
    description.describe(&widget, "lent");
    QCOMPARE(widget.accessibleDescription(), QString("lent"));
    description.describe(&widget, "lent again");
    QCOMPARE(widget.accessibleDescription(), QString("lent again"));
    description.restore();
    QCOMPARE(widget.accessibleDescription(), QString("own"));
    widget.setAccessibleDescription("lent again");
    description.restore();
    QCOMPARE(widget.accessibleDescription(), QString("lent again"));
}

void tst_HRHostDescription::widget_getsItsOwnBack_whenTheLenderGoes()
{
    QWidget widget;
    {
        HRHostDescription description;
        description.describe(&widget, "lent");
    }
    QCOMPARE(widget.accessibleDescription(), QString());
}

void tst_HRHostDescription::widget_getsItsOwnBack_whenAnotherIsDescribed()
{
    QWidget widget;
    QWidget other;
    HRHostDescription description;
    description.describe(&widget, "lent");
    description.describe(&other, "lent");
    QCOMPARE(widget.accessibleDescription(), QString());
    QCOMPARE(other.accessibleDescription(), QString("lent"));
}

void tst_HRHostDescription::widget_keepsWhatTheHostSetsMeanwhile()
{
    QWidget widget;
    widget.setAccessibleDescription("own");
    HRHostDescription description;
    description.describe(&widget, "lent");
    widget.setAccessibleDescription("new");
    description.restore();
    QCOMPARE(widget.accessibleDescription(), QString("new"));
}

void tst_HRHostDescription::widget_mayGoMeanwhile()
{
    QWidget other;
    HRHostDescription description;
    auto widget = std::make_unique<QWidget>();
    description.describe(widget.get(), "lent");
    widget.reset();
    description.describe(&other, "lent");
    QCOMPARE(other.accessibleDescription(), QString("lent"));
}

void tst_HRHostDescription::describe_describesNone_forNull()
{
    QWidget widget;
    HRHostDescription description;
    description.describe(&widget, "lent");
    description.describe(nullptr, "lent");
    QCOMPARE(widget.accessibleDescription(), QString());
}

QTEST_MAIN(tst_HRHostDescription)
#include "tst_HRHostDescription.moc"
