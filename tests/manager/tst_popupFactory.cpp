// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "manager/popupFactory_p.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHBoxLayout>
#include <QtTest>

#include <memory>

using namespace Hintreels;

class tst_popupFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createPopup_putsViewIntoPopup_data();
    void createPopup_putsViewIntoPopup();
};

void tst_popupFactory::createPopup_putsViewIntoPopup_data()
{
    QTest::addColumn<bool>("hasManager");
    QTest::newRow("for a manager") << true;
    QTest::newRow("without manager") << false;
}

void tst_popupFactory::createPopup_putsViewIntoPopup()
{
    QFETCH(bool, hasManager);
    HRContext context;
    RecordingHost host(context, {});
    HRManager *manager = hasManager ? host.manager() : nullptr;

    const std::unique_ptr<HRWidget> popup(createPopup(manager));

    QVERIFY(!popup->parent());
    QVERIFY(!popup->isVisible());
    QVERIFY(!popup->referenceWidget());
    QCOMPARE(popup->manager(), manager);
    QCOMPARE(popup->view()->manager(), manager);
    const auto *layout = qobject_cast<QHBoxLayout *>(popup->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 1);
    // The popup knows its container: the content begins where the popup does.
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignTop);
    const QPointer<HRView> view = popup->view();
    delete layout->itemAt(0)->widget();
    QVERIFY(!view);
}

QTEST_MAIN(tst_popupFactory)
#include "tst_popupFactory.moc"
