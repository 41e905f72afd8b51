// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "manager/HRReservedPopups_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

std::unique_ptr<HRWidget> popupWith(const QString &key)
{
    auto popup = std::make_unique<HRWidget>(nullptr, nullptr, nullptr);
    popup->setView(new HRView(nullptr, nullptr));
    popup->view()->setContent(new HRXmlElement);
    popup->view()->content()->setAttribute("key", key);
    return popup;
}

} // namespace

class tst_HRReservedPopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void content_isThatOfTheFirst();
    void content_passesOverWhatIsGone();
    void setStayOnTop_changesAll_andShowsThem();
};

void tst_HRReservedPopups::content_isThatOfTheFirst()
{
    const auto pen = popupWith("pen");
    const auto ink = popupWith("ink");
    const auto otherPen = popupWith("pen");
    HRReservedPopups popups;
    QVERIFY(!popups.content("pen"));
    for (HRWidget *popup : { pen.get(), ink.get(), otherPen.get() })
        popups.append(popup);

    QCOMPARE(popups.content("pen"), pen->view()->content());
    QCOMPARE(popups.content("ink"), ink->view()->content());
    QVERIFY(!popups.content("brush"));
}

void tst_HRReservedPopups::content_passesOverWhatIsGone()
{
    auto gone = popupWith("pen");
    const auto pen = popupWith("pen");
    const auto withoutView = popupWith("ink");
    HRReservedPopups popups;
    for (HRWidget *popup : { gone.get(), pen.get(), withoutView.get() })
        popups.append(popup);
    gone.reset();
    withoutView->setView(nullptr);
    QCOMPARE(popups.content("pen"), pen->view()->content());
    QVERIFY(!popups.content("ink"));
}

void tst_HRReservedPopups::setStayOnTop_changesAll_andShowsThem()
{
    auto gone = popupWith("pen");
    const auto pen = popupWith("pen");
    const auto ink = popupWith("ink");
    HRReservedPopups popups;
    for (HRWidget *popup : { gone.get(), pen.get(), ink.get() })
        popups.append(popup);
    gone.reset();
    for (const bool on : { true, false }) {
        popups.setStayOnTop(on);
        for (HRWidget *popup : { pen.get(), ink.get() }) {
            QCOMPARE(popup->windowFlags().testFlag(Qt::WindowStaysOnTopHint), on);
            QVERIFY(popup->isVisible());
        }
        popups.raise();
    }
}

QTEST_MAIN(tst_HRReservedPopups)
#include "tst_HRReservedPopups.moc"
