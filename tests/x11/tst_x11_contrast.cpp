// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "support/TestReader.h"
#include "ui/PaintedContrast.h"
#include "ui/popup/HRPopupKeyboard_p.h"

#include <QPalette>

using namespace Hintreels;

namespace {

constexpr qreal leastOfText = 4.5; // WCAG 1.4.3
constexpr qreal leastOfControls = 3.0; // WCAG 1.4.11
constexpr qreal leastOfHighContrast = 7.0; // WCAG 1.4.6

QPalette palette(const QColor &ground, const QColor &text, const QColor &field)
{
    QPalette colors(text, ground, ground, ground, ground, text, text, field, ground);
    colors.setColor(QPalette::Highlight, QColor("#308cc6"));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    return colors;
}

/// A host in some colours, and a hint whose letters are so large that strokes cover pixels.
struct ColorFixture : StandardUiFixture
{
    explicit ColorFixture(const QByteArray &entry)
        : StandardUiFixture(entry)
        , paletteBefore(QGuiApplication::palette())
    {
        TestClip().write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
        context.set(readerSettingsKey, reader.asValue());
        context.set(reducedMotionKey, true);
        context.set(hostColorsKey, true);
        reader.settings.setTextSize(200);
        QFETCH(QPalette, colors);
        QFETCH(QString, styleSheet);
        QGuiApplication::setPalette(colors);
        window.setStyleSheet(styleSheet);
        window.setAttribute(Qt::WA_StyledBackground);
        window.resize(200, 100);
    }

    ~ColorFixture()
    {
        keyboard.leave();
        QGuiApplication::setPalette(paletteBefore);
    }

    void showOfWindow()
    {
        window.show();
        start();
        QVERIFY(host->show("key", window.mapToGlobal(QPoint(10, 10)), &window));
        popup = host->manager()->widget();
        makeAll();
        paint();
    }

    TestReader reader;
    QPalette paletteBefore;
    QWidget window;
    HRPopupKeyboard keyboard;
};

void addColors(qreal usual, qreal high)
{
    QTest::addColumn<QPalette>("colors");
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<qreal>("least");
    const QPalette light = palette("#efefef", "#000000", "#ffffff");
    QTest::newRow("light") << light << "" << usual;
    QTest::newRow("dark") << palette("#2b2d30", "#d0d0d0", "#202124") << "" << usual;
    QTest::newRow("middle grey") << palette("#808080", "#000000", "#909090") << "" << usual;
    QTest::newRow("high contrast, light") << palette("#ffffff", "#000000", "#ffffff") << "" << high;
    QTest::newRow("high contrast, dark") << palette("#000000", "#ffffff", "#000000") << "" << high;
    QTest::newRow("a dark style sheet")
        << light << "* { background: #202124; color: #9aa0a6 }" << usual;
    QTest::newRow("a bright style sheet")
        << light << "* { background: #ffd600; color: #806000 }" << usual;
}

} // namespace

/// The contrasts that a reader sees, read from what the popup paints.
class tst_x11_contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_contrasts_data() { addColors(leastOfText, leastOfHighContrast); }
    void text_contrasts();
    void control_contrasts_data() { addColors(leastOfControls, leastOfControls); }
    void control_contrasts();
    void focus_contrasts_data() { addColors(leastOfControls, leastOfControls); }
    void focus_contrasts();
    void selection_contrasts_data() { addColors(leastOfText, leastOfHighContrast); }
    void selection_contrasts();
};

void tst_x11_contrast::text_contrasts()
{
    ColorFixture f(allKindsOfWords);
    f.showOfWindow();
    QFETCH(qreal, least);
    const auto words = wordsBelow(f.root());
    for (QQuickItem *item : words) {
        const PaintedColors painted = colorsIn(pictureOf(f, *item));
        const QString text = item->property("text").toString();
        QVERIFY2(painted.contrast() >= least, qPrintable(painted.described(text)));
    }
    QVERIFY(words.size() > 20);
}

/// The line of a clip is told from what is left of it, whatever the clip shows.
void tst_x11_contrast::control_contrasts()
{
    ColorFixture f("<hintreel key='key' title='Pen'><video source='clip.mp4'/>"
        + QByteArray("<text>A text</text>").repeated(30) + "</hintreel>");
    f.showOfWindow();
    QFETCH(qreal, least);
    QTRY_VERIFY(f.hasItem("clipButton"));
    f.paint();
    for (const char *name : { "pin", "scrollBar", "clipButton" }) {
        QVERIFY2(f.item(name)->isVisible(), name);
        const PaintedColors painted = colorsIn(f.view()->grabWindow().copy(placeOf(*f.item(name))));
        QVERIFY2(painted.contrast() >= least, qPrintable(painted.described(name)));
    }
    QMetaObject::invokeMethod(f.item("progressLine"), "step", Q_ARG(QVariant, 0.5));
    const QRect line = placeOf(*f.item("progressLine"));
    const QRect straight(line.left() + 30, line.bottom() - 1, line.width() - 60, 1);
    QTRY_VERIFY(colorsIn(f.view()->grabWindow().copy(straight)).contrast() >= least);
}

/// Around the pin, and around the popup, while the page has the keyboard.
void tst_x11_contrast::focus_contrasts()
{
    ColorFixture f(allKindsOfWords);
    f.showOfWindow();
    QFETCH(qreal, least);
    const QColor ground = colorsIn(f.view()->grabWindow()).ground;
    const auto contrastAt = [&](const QPoint &place) {
        return contrastRatio(f.view()->grabWindow().pixelColor(place), ground);
    };

    f.keyboard.enter(*f.popup);
    f.paint();
    QVERIFY(contrastAt(QPoint(1, f.view()->height() / 2)) >= least);

    f.keyboard.type(QKeyEvent(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier));
    f.paint();
    const QRect pin = placeOf(*f.item("pin"));
    QVERIFY(contrastAt(QPoint(pin.left() - 1, pin.center().y())) >= least
        || contrastAt(QPoint(pin.left(), pin.center().y())) >= least);
}

void tst_x11_contrast::selection_contrasts()
{
    ColorFixture f("<hintreel key='key' title='Pen'><text>A text</text></hintreel>");
    f.showOfWindow();
    QFETCH(qreal, least);
    f.keyboard.enter(*f.popup);
    for (QQuickItem *item : wordsBelow(f.root())) {
        if (!item->inherits("QQuickTextEdit"))
            continue;
        QMetaObject::invokeMethod(item, "selectAll");
        const PaintedColors painted = colorsIn(
            pictureOf(f, *item).copy(0, 0, int(item->property("contentWidth").toReal()), 20));
        QVERIFY2(painted.contrast() >= least, qPrintable(painted.described("selection")));
    }
}

QTEST_MAIN(tst_x11_contrast)
#include "tst_x11_contrast.moc"
