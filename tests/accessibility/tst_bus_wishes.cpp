// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "accessibility/MockPortal.h"
#include "support/TestClip.h"
#include "support/TestReader.h"
#include "ui/PaintedContrast.h"

#include <QPalette>
#include <QRegularExpression>

using namespace Hintreels;

namespace {

const HRPortalSettings nothing;
const HRPortalSettings moreContrast{ { "org.freedesktop.appearance", { { "contrast", 1U } } } };
const HRPortalSettings lessMotion{ { "org.gnome.desktop.interface",
    { { "enable-animations", false } } } };

QPalette palette(const QColor &ground, const QColor &text)
{
    return QPalette(text, ground, ground, ground, ground, text, text, ground, ground);
}

/// What has to have a frame in high contrast: the popup, notes, and the caps of keys.
QList<QQuickItem *> framesBelow(QQuickItem *root)
{
    QList<QQuickItem *> frames{ root };
    for (QQuickItem *item : itemsBelow(root)) {
        if (QString(item->metaObject()->className())
                .contains(QRegularExpression("^(KeyCap|NoteBlock)_")))
            frames.append(item);
    }
    return frames;
}

/// Where an item begins between two pixels, its frame does.
qreal contrastOfEdge(const QImage &picture, const QColor &ground)
{
    qreal most = 1;
    for (int x = 0; x < 3; ++x)
        most = qMax(most, contrastRatio(picture.pixelColor(x, picture.height() / 2), ground));
    return most;
}

} // namespace

/// Hints on a desktop whose portal wishes something, while they show.
class tst_bus_wishes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void hint_shows_whileThePortalIsSilent();
    void contrast_isHigh_atOnce_data();
    void contrast_isHigh_atOnce();
    void clip_stops_atOnce();

private:
    MockPortal m_portal;
};

/// Where the wishes of one test end, those of the next begin.
void tst_bus_wishes::cleanup()
{
    m_portal.change(nothing);
    QTRY_VERIFY(!HRDesktopWishes::ofApplication().wishes().highContrast);
    QTRY_VERIFY(!HRDesktopWishes::ofApplication().wishes().reducedMotion);
}

/// First, while nothing was answered before.
void tst_bus_wishes::hint_shows_whileThePortalIsSilent()
{
    MockPortal &portal = m_portal;
    portal.becomeSilent();
    StandardUiFixture fixture(allKindsOfWords);
    fixture.show();
    portal.tellOfChange();
    QTRY_VERIFY(!portal.questions.isEmpty());
    fixture.makeAll();
    fixture.paint();
    QVERIFY(fixture.popup->isVisible());
    QCOMPARE(fixture.troubles(), QStringList());
}

void tst_bus_wishes::contrast_isHigh_atOnce_data()
{
    QTest::addColumn<QPalette>("colors");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("light") << palette("#efefef", "#333333") << QColor(Qt::white);
    QTest::newRow("dark") << palette("#2b2d30", "#cccccc") << QColor(Qt::black);
    QTest::newRow("middle grey") << palette("#808080", "#000000") << QColor(Qt::white);
}

void tst_bus_wishes::contrast_isHigh_atOnce()
{
    QFETCH(QPalette, colors);
    QFETCH(QColor, ground);
    const QPalette before = QGuiApplication::palette();
    QGuiApplication::setPalette(colors);
    m_portal.answerSettings(nothing);
    TestReader reader;
    reader.settings.setTextSize(200); // strokes cover pixels
    StandardUiFixture fixture(allKindsOfWords);
    fixture.context.set(readerSettingsKey, reader.asValue());
    fixture.show();
    fixture.makeAll();
    QCOMPARE(fixture.root()->property("color").value<QColor>(), colors.color(QPalette::Window));

    m_portal.change(moreContrast);

    QTRY_COMPARE(fixture.root()->property("color").value<QColor>(), ground);
    fixture.paint();
    QCOMPARE(colorsIn(fixture.view()->grabWindow()).ground, ground);
    const auto words = wordsBelow(fixture.root());
    for (QQuickItem *item : words) {
        const PaintedColors painted = colorsIn(pictureOf(fixture, *item));
        const QString text = item->property("text").toString();
        QVERIFY2(painted.contrast() >= 7, qPrintable(painted.described(text)));
    }
    QVERIFY(words.size() > 20);
    const auto frames = framesBelow(fixture.root());
    for (QQuickItem *item : frames) {
        const qreal contrast = contrastOfEdge(pictureOf(fixture, *item), ground);
        QVERIFY2(contrast >= 3, item->metaObject()->className());
    }
    QVERIFY(frames.size() > 6);
    QGuiApplication::setPalette(before);
}

void tst_bus_wishes::clip_stops_atOnce()
{
    m_portal.answerSettings(nothing);
    StandardUiFixture fixture(
        "<hintreel key='key' title='Pen'><video source='clip.mp4'/></hintreel>");
    TestClip().write(fixture.packages.path() + "/Test.hintreels/Resources/clip.mp4");
    fixture.show();
    QTRY_VERIFY(fixture.hasItem("clip"));
    QTRY_VERIFY(fixture.item("clip")->property("wanted").toBool());

    m_portal.change(lessMotion);

    QTRY_VERIFY(!fixture.item("clip")->property("wanted").toBool());
}

QTEST_MAIN(tst_bus_wishes)
#include "tst_bus_wishes.moc"
