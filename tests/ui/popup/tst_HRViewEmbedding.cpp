// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRViewEmbedding_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

/// A popup with the native window of a view in it.
struct Fixture
{
    Fixture()
    {
        view.create();
        embedding.setView(&view);
        embedding.setContainer(&container);
        container.show();
    }

    bool isContainerShown() const { return !container.isHidden(); }
    bool hasNativeWindow() const { return view.handle(); }

    QWindow view;
    QWidget popup{ nullptr, Qt::ToolTip };
    QWidget container{ &popup };
    HRViewEmbedding embedding;
};

} // namespace

/// What happens to the view's own window; tst_x11_popup and tst_wayland_popup look at its pixels.
class tst_HRViewEmbedding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void view_staysAway_untilItsPopupIsMapped();
    void view_stays_whereItsPopupKeepsItsWindow();
    void view_isMadeAnew_whereItsPopupGetsAnotherWindow();
    void view_isMadeAnew_afterItsWindowIsMapped();
    void view_comesAndGoes_withTheWindowAroundIt();
    void withoutViewAndContainer_nothingHappens();
};

void tst_HRViewEmbedding::view_staysAway_untilItsPopupIsMapped()
{
    Fixture f;
    f.embedding.prepareFor(f.popup); // which has no window yet
    QVERIFY(f.hasNativeWindow());
    f.popup.winId();
    f.embedding.prepareFor(f.popup);
    QVERIFY(!f.isContainerShown());
    QVERIFY(!f.hasNativeWindow());
    f.embedding.embedIn(f.popup);
    QVERIFY(f.isContainerShown());
}

void tst_HRViewEmbedding::view_stays_whereItsPopupKeepsItsWindow()
{
    Fixture f;
    f.popup.winId();
    f.embedding.embedIn(f.popup);
    f.embedding.prepareFor(f.popup);
    QVERIFY(f.isContainerShown());
    QVERIFY(f.hasNativeWindow());
}

void tst_HRViewEmbedding::view_isMadeAnew_whereItsPopupGetsAnotherWindow()
{
    Fixture f;
    f.popup.winId();
    f.embedding.embedIn(f.popup);
    f.popup.setWindowFlag(Qt::WindowStaysOnTopHint);
    f.popup.winId();
    f.embedding.prepareFor(f.popup);
    QVERIFY(!f.isContainerShown());
    QVERIFY(!f.hasNativeWindow());
}

void tst_HRViewEmbedding::view_isMadeAnew_afterItsWindowIsMapped()
{
    Fixture f;
    f.embedding.renewLater();
    QVERIFY(!f.isContainerShown());
    QVERIFY(!f.hasNativeWindow());
    QTRY_VERIFY(f.isContainerShown());
}

// As on Wayland, where the news of a showing may come after the window was hidden.
void tst_HRViewEmbedding::view_comesAndGoes_withTheWindowAroundIt()
{
    Fixture f;
    QWindow around;
    QEvent exposed(QEvent::Expose);
    f.embedding.eventFilter(&around, &exposed);
    QVERIFY(!f.isContainerShown());

    around.show();
    QVERIFY(QTest::qWaitForWindowExposed(&around));
    QEvent other(QEvent::UpdateRequest);
    f.embedding.eventFilter(&around, &other);
    QVERIFY(!f.isContainerShown());
    QVERIFY(!f.embedding.eventFilter(&around, &exposed));
    QVERIFY(f.isContainerShown());
}

void tst_HRViewEmbedding::withoutViewAndContainer_nothingHappens()
{
    Fixture f;
    f.embedding.setView(nullptr);
    f.embedding.setContainer(nullptr);
    f.popup.winId();
    f.embedding.prepareFor(f.popup);
    f.embedding.embedIn(f.popup);
    f.embedding.release();
    QWindow around;
    QEvent exposed(QEvent::Expose);
    QVERIFY(!f.embedding.eventFilter(&around, &exposed));
    QVERIFY(f.isContainerShown());
    QVERIFY(f.hasNativeWindow());
}

QTEST_MAIN(tst_HRViewEmbedding)
#include "tst_HRViewEmbedding.moc"
