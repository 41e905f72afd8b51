// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/retiredSources_p.h"

#include "support/FakeSource.h"
#include "support/SignalCounter.h"
#include "video/HRVideoComponent.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QPointer>
#include <QProcess>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

using namespace Hintreels;

class tst_retiredSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void idleSource_isDeletedAtOnce();
    void endedSource_isDeletedAtOnce();
    void runningSource_endsAndIsDeleted();
    void deafSource_isNotWaitedFor();
    void deafSource_isWaitedForAtTheEndOfTheProcess();
    void thread_freesTheClip();
    void item_leavesASourceThatHearsNothing();
    void clips_areOpenedWhenRetiredSourcesAreFew();
};

namespace {

std::atomic<size_t> picturesDropped;

/// Hears nothing before it is let go.
class DeafSource : public FakeSource
{
public:
    explicit DeafSource(QSemaphore *release)
        : m_release(release)
    {
        start();
    }
    ~DeafSource() override { quit(); }

protected:
    // ThreadSanitizer knows the locks of the source, but not those of Qt.
    void run() override
    {
        m_release->acquire();
        shouldQuit();
    }
    void dropClip() override
    {
        picturesDropped = totalFrameCount();
        FakeSource::dropClip();
        picturesDropped -= totalFrameCount();
        shouldQuit();
    }

private:
    QSemaphore *m_release;
};

QPointer<HRVideoSource> retire(HRVideoSource *source)
{
    QPointer<HRVideoSource> watched(source);
    retireSource(std::unique_ptr<HRVideoSource>(source));
    return watched;
}

} // namespace

void tst_retiredSources::cleanup()
{
    QVERIFY(!areRetiredSourcesMany());
}

void tst_retiredSources::idleSource_isDeletedAtOnce()
{
    QVERIFY(retire(new FakeSource).isNull());
}

void tst_retiredSources::endedSource_isDeletedAtOnce()
{
    auto *source = new FakeSource;
    source->start();
    source->quit();
    QVERIFY(retire(source).isNull());
}

void tst_retiredSources::runningSource_endsAndIsDeleted()
{
    auto *source = new FakeSource;
    source->start();
    const QPointer<HRVideoSource> watched = retire(source);
    QTRY_VERIFY(watched.isNull());
}

void tst_retiredSources::deafSource_isNotWaitedFor()
{
    QSemaphore release;
    const QPointer<HRVideoSource> first = retire(new DeafSource(&release));
    QVERIFY(first);
    QVERIFY(!areRetiredSourcesMany());
    const QPointer<HRVideoSource> second = retire(new DeafSource(&release));
    QVERIFY(second);
    QVERIFY(areRetiredSourcesMany());
    release.release(2);
    QTRY_VERIFY(first.isNull() && second.isNull());
}

void tst_retiredSources::deafSource_isWaitedForAtTheEndOfTheProcess()
{
    QProcess process;
    process.start(QStringLiteral(LEAVE_SOURCE), QStringList());
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("ended\n"));
}

void tst_retiredSources::thread_freesTheClip()
{
    QSemaphore release;
    auto *source = new DeafSource(&release);
    source->load(QUrl(QStringLiteral("file:///clip")), 3);
    const QPointer<HRVideoSource> watched = retire(source);
    QVERIFY(watched);
    picturesDropped = 0;
    release.release();
    QTRY_VERIFY(watched.isNull());
    QCOMPARE(picturesDropped.load(), size_t(3));
}

void tst_retiredSources::item_leavesASourceThatHearsNothing()
{
    auto *item = new HRVideoComponent;
    const QPointer<HRVideoSourceFFMPEG> source = item->findChild<HRVideoSourceFFMPEG *>();
    QSemaphore deaf;
    QSemaphore release;
    connect(
        source, &HRVideoSource::actionChanged, source,
        [&] {
            deaf.release();
            release.acquire();
        },
        Qt::DirectConnection);
    source->setAction(HRVideoSource::idleAction);
    deaf.acquire();
    delete item;
    QVERIFY(source);
    release.release();
    QTRY_VERIFY(source.isNull());
}

void tst_retiredSources::clips_areOpenedWhenRetiredSourcesAreFew()
{
    QTemporaryDir directory;
    const QUrl first = QUrl::fromLocalFile(TestClip().write(directory.filePath("first.mp4")));
    const QUrl second = QUrl::fromLocalFile(TestClip().write(directory.filePath("second.mp4")));
    QSemaphore release;
    const QPointer<HRVideoSource> deaf = retire(new DeafSource(&release));
    retire(new DeafSource(&release));

    HRVideoSourceFFMPEG source;
    SignalCounter loaded(&source, &HRVideoSource::sourceLoaded);
    source.setSource(first);
    source.setSource(second);
    source.start();
    QTRY_COMPARE(source.source(), second); // the first had its turn
    QCOMPARE(loaded.count(), 0);
    release.release(2);
    QTRY_COMPARE(loaded.count(), 1);
    QTRY_VERIFY(deaf.isNull() && !areRetiredSourcesMany());
}

QTEST_MAIN(tst_retiredSources)
#include "tst_retiredSources.moc"
