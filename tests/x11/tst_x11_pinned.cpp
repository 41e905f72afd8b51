// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"
#include "ui/popup/HRPinnedWindow_p.h"
#include "x11/RealInput.h"

#include <QPushButton>

using namespace Hintreels;

namespace {

constexpr int longTime = 20000; // ms: other programs may keep the processor busy
constexpr int lastPicture = 57;
const QPoint farAway(1200, 750);

/// A host that shows a hint with a clip of 5.8 s, for a button of its window.
struct PinHost : StandardUiFixture
{
    PinHost()
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.mp4\"/>"
                            "<text>Draws a line.</text></hintreel>")
    {
        TestClip recording;
        recording.size = QSize(320, 180);
        recording.pictures = lastPicture + 1;
        recording.rate = 10;
        recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
        window.setGeometry(100, 100, 200, 100);
    }

    /// Shows the hint until its clip plays.
    bool showAndPlay()
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window, longTime))
            return false;
        start();
        if (!host->show("key", QPoint(300, 100), &button))
            return false;
        popup = host->manager()->widget();
        return QTest::qWaitFor([this] { return picture() > 2; }, longTime);
    }

    /// Pins the hint, until its window is used.
    bool pin()
    {
        host->window = new HRPinnedWindow(*popup, windowFor(*popup));
        view()->setReserved(true);
        // To Qt a window is active as soon as the one that it belongs to is.
        return QTest::qWaitFor(
            [this] { return QApplication::activeWindow() == host->window; }, longTime);
    }

    /// Number of the picture that the screen shows; -1 for none.
    int picture() const
    {
        if (!hasItem("clip"))
            return -1;
        const QQuickItem *clip = item("clip");
        const QPointF middle(clip->width() / 4, clip->height() / 4);
        const QPoint place = popup->mapToGlobal(clip->mapToScene(middle).toPoint());
        return TestClip::numberOf(RealInput::screenshot().copy(QRect(place, QSize(8, 8))));
    }

    /// Where the clip is, in seconds.
    qreal time() const { return item("clip")->property("time").toReal(); }

    /// Whether the picture stays the same for some periods.
    bool standsStill() const
    {
        const int seen = picture();
        return !QTest::qWaitFor([&] { return picture() != seen; }, 500);
    }

    QWidget window;
    QPushButton button{ "draw", &window };
};

} // namespace

/// The window of a hint that its reader has pinned, on a real X server with a window manager.
class tst_x11_pinned : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { RealInput::movePointer(farAway); }
    void window_hasTitleAndSizeOfItsHint();
    void window_hasTheTranslatedTitle();
    void window_closes_forKeys_data();
    void window_closes_forKeys();
    void window_goesWithTheHosts();
    void clip_goesOn_whenPinned();
    void clip_staysPaused_whenPinned();
};

void tst_x11_pinned::window_hasTitleAndSizeOfItsHint()
{
    PinHost host;
    QVERIFY(host.showAndPlay());
    QVERIFY(host.pin());
    const QPointer<QWidget> window = host.host->window;
    QTRY_VERIFY(window->frameGeometry() != window->geometry());
    QCOMPARE(window->windowTitle(), QString("Pen"));
    const QSize content = host.root()->size().toSize();
    QTRY_COMPARE(window->size(), content);
    host.popup->contentResized();
    QCOMPARE(window->size(), content);
    host.root()->setHeight(content.height() - 20);
    QTRY_COMPARE(window->size(), content - QSize(0, 20));
    QCOMPARE(host.popup->size(), window->size());
}

void tst_x11_pinned::window_hasTheTranslatedTitle()
{
    PinHost host;
    QVERIFY(host.showAndPlay());
    host.host->translations["Pen"] = "Stift %(kind)s";
    host.host->setGlobalProperty("kind", "2B");
    QVERIFY(host.pin());
    QCOMPARE(host.host->window->windowTitle(), QString("Stift 2B"));
}

void tst_x11_pinned::window_closes_forKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("Escape") << "Escape";
    QTest::newRow("Ctrl+W") << "ctrl+w";
}

void tst_x11_pinned::window_closes_forKeys()
{
    QFETCH(QString, key);
    PinHost host;
    QVERIFY(host.showAndPlay());
    QVERIFY(host.pin());
    RealInput::key(key);
    QTRY_VERIFY(!host.host->window);
    QVERIFY(!host.popup);
    QVERIFY(host.window.isVisible());
}

void tst_x11_pinned::window_goesWithTheHosts()
{
    PinHost host;
    auto dialog = std::make_unique<QWidget>(&host.window, Qt::Dialog);
    host.button.setParent(dialog.get());
    dialog->show();
    QVERIFY(host.showAndPlay());
    QVERIFY(host.pin());
    QCOMPARE(host.host->window->parentWidget(), dialog.get());
    host.button.setParent(&host.window);
    dialog.reset();
    QVERIFY(!host.popup);
}

void tst_x11_pinned::clip_goesOn_whenPinned()
{
    PinHost host;
    QVERIFY(host.showAndPlay());
    QTRY_VERIFY_WITH_TIMEOUT(host.time() > 1, longTime);
    const qreal before = host.time();
    QVERIFY(host.pin());
    qreal earliest = host.time();
    QVERIFY(QTest::qWaitFor(
        [&] {
            earliest = qMin(earliest, host.time());
            return host.time() > before + 0.5;
        },
        longTime));
    QVERIFY2(earliest >= before, qPrintable(QString::number(earliest)));
    QTRY_VERIFY_WITH_TIMEOUT(host.picture() > 10, longTime);
}

void tst_x11_pinned::clip_staysPaused_whenPinned()
{
    PinHost host;
    QVERIFY(host.showAndPlay());
    host.click(host.item("clip"));
    QTRY_VERIFY_WITH_TIMEOUT(host.standsStill(), longTime);
    const int seen = host.picture();
    QVERIFY(host.pin());
    QTRY_COMPARE_WITH_TIMEOUT(host.picture(), seen, longTime);
    QVERIFY(host.standsStill());
}

QTEST_MAIN(tst_x11_pinned)
#include "tst_x11_pinned.moc"
