// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRMeasuring_p.h"

#include <QMutex>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

using namespace Hintreels;

namespace {

/// Measures as many files as a test allows it, each in the thread of the measuring.
struct Fixture
{
    QSize measure(const QString &path, const std::function<bool()> &shouldStop)
    {
        inThread = QThread::currentThread() != QCoreApplication::instance()->thread();
        while (!allowed.tryAcquire(1, 1)) {
            if (shouldStop())
                return {};
        }
        return { int(path.size()), 1 };
    }

    QSemaphore allowed;
    std::atomic_bool inThread{ false };
    HRMeasuring measuring{ [this](const QString &path, const std::function<bool()> &shouldStop) {
        return measure(path, shouldStop);
    } };
    QSignalSpy spy{ &measuring, &HRMeasuring::measured };
};

} // namespace

class tst_HRMeasuring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void size_isThereAtOnce_whereAFileIsQuick();
    void size_isToldLater_whereAFileIsSlow();
    void size_waitsNoMore_onceItHasWaited();
    void size_measuresAgain_forAnotherHint();
    void destructor_givesUpWhatTakesLong();
};

void tst_HRMeasuring::size_isThereAtOnce_whereAFileIsQuick()
{
    Fixture fixture;
    fixture.allowed.release(2);

    QTRY_COMPARE(fixture.measuring.size("ab"), QSize(2, 1));
    QTRY_COMPARE(fixture.measuring.size("abc"), QSize(3, 1));
    QCOMPARE(fixture.measuring.size("ab"), QSize(2, 1));
    QVERIFY(fixture.inThread);
    QCOMPARE(fixture.allowed.available(), 0);
}

void tst_HRMeasuring::size_isToldLater_whereAFileIsSlow()
{
    Fixture fixture;
    QCOMPARE(fixture.measuring.size("ab"), QSize());
    QCOMPARE(fixture.measuring.size("abc"), QSize());
    QVERIFY(fixture.spy.isEmpty());

    fixture.allowed.release();
    QTRY_COMPARE(fixture.spy.size(), 1);
    QCOMPARE(fixture.measuring.size("ab"), QSize(2, 1));
    QCOMPARE(fixture.measuring.size("abc"), QSize());

    fixture.allowed.release();
    QTRY_COMPARE(fixture.spy.size(), 2);
    QCOMPARE(fixture.measuring.size("abc"), QSize(3, 1));
}

void tst_HRMeasuring::size_waitsNoMore_onceItHasWaited()
{
    Fixture fixture;
    QElapsedTimer time;
    time.start();

    for (int i = 0; i < 200; ++i)
        QCOMPARE(fixture.measuring.size(QString::number(i)), QSize());

    // Together, not for each of them: that would be 8 s.
    QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
}

void tst_HRMeasuring::size_measuresAgain_forAnotherHint()
{
    Fixture fixture;
    fixture.allowed.release();
    QTRY_COMPARE(fixture.measuring.size("ab"), QSize(2, 1));

    fixture.measuring.forget();
    QCOMPARE(fixture.measuring.size("ab"), QSize());
    fixture.allowed.release();

    QTRY_COMPARE(fixture.measuring.size("ab"), QSize(2, 1));
}

void tst_HRMeasuring::destructor_givesUpWhatTakesLong()
{
    QElapsedTimer time;
    time.start();
    {
        Fixture fixture;
        for (int i = 0; i < 1000; ++i)
            fixture.measuring.size(QString::number(i));
    }
    QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
}

QTEST_MAIN(tst_HRMeasuring)
#include "tst_HRMeasuring.moc"
