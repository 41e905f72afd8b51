// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HROverrideCursors_p.h"
#include "ui/popup/cursorShape_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

/// The shape of the application's override cursor, or -1 without any.
int shape()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor ? int(cursor->shape()) : -1;
}

} // namespace

class tst_HROverrideCursors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void cursorShapeNamed_knowsTheNames_data();
    void cursorShapeNamed_knowsTheNames();
    void restore_popsWhatWasPushed();
    void restore_popsTheHostsCursor_whenNothingWasPushed();
    void release_popsAllOwnCursors_andNoOthers();
    void restore_isSwallowed_onceForEachReleasedCursor();
    void restore_popsLaterCursor_beforeLateRestoresAreSwallowed();
};

void tst_HROverrideCursors::cleanup()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void tst_HROverrideCursors::cursorShapeNamed_knowsTheNames_data()
{
    QTest::addColumn<int>("expected");
    QTest::newRow("PointingHandCursor") << int(Qt::PointingHandCursor);
    QTest::newRow("ArrowCursor") << int(Qt::ArrowCursor);
    QTest::newRow("IBeamCursor") << int(Qt::IBeamCursor);
    QTest::newRow("BlankCursor") << int(Qt::BlankCursor);
    QTest::newRow("pointinghandcursor") << int(Qt::ArrowCursor);
    QTest::newRow("WaitCursor") << int(Qt::ArrowCursor);
    QTest::newRow("") << int(Qt::ArrowCursor);
}

void tst_HROverrideCursors::cursorShapeNamed_knowsTheNames()
{
    QTEST(int(cursorShapeNamed(QTest::currentDataTag())), "expected");
}

void tst_HROverrideCursors::restore_popsWhatWasPushed()
{
    HROverrideCursors cursors;
    cursors.push(Qt::IBeamCursor);
    cursors.push(Qt::BlankCursor);
    QCOMPARE(shape(), int(Qt::BlankCursor));
    cursors.restore();
    QCOMPARE(shape(), int(Qt::IBeamCursor));
    cursors.restore();
    QCOMPARE(shape(), -1);
}

void tst_HROverrideCursors::restore_popsTheHostsCursor_whenNothingWasPushed()
{
    HROverrideCursors cursors;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    cursors.restore();
    QCOMPARE(shape(), -1);
}

void tst_HROverrideCursors::release_popsAllOwnCursors_andNoOthers()
{
    HROverrideCursors cursors;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    cursors.push(Qt::IBeamCursor);
    cursors.push(Qt::BlankCursor);
    cursors.release();
    QCOMPARE(shape(), int(Qt::WaitCursor));
    cursors.release();
    QCOMPARE(shape(), int(Qt::WaitCursor));
}

void tst_HROverrideCursors::restore_isSwallowed_onceForEachReleasedCursor()
{
    HROverrideCursors cursors;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    cursors.push(Qt::IBeamCursor);
    cursors.push(Qt::IBeamCursor);
    cursors.release();
    cursors.restore();
    cursors.restore();
    QCOMPARE(shape(), int(Qt::WaitCursor));
    cursors.restore();
    QCOMPARE(shape(), -1);
}

void tst_HROverrideCursors::restore_popsLaterCursor_beforeLateRestoresAreSwallowed()
{
    HROverrideCursors cursors;
    cursors.push(Qt::IBeamCursor);
    cursors.release();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    cursors.push(Qt::BlankCursor);
    cursors.restore();
    QCOMPARE(shape(), int(Qt::WaitCursor));
    cursors.restore();
    QCOMPARE(shape(), int(Qt::WaitCursor));
}

QTEST_MAIN(tst_HROverrideCursors)
#include "tst_HROverrideCursors.moc"
