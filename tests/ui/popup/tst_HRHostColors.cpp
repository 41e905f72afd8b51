// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRHostColors_p.h"
#include "ui/reader/readableColor_p.h"

#include <QPainter>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

const QColor dark("#202124");
const QColor light("#f0e8d8");

/// A window that counts how often it is painted, in a colour of its own where it has one.
class Window : public QWidget
{
public:
    QColor color;
    std::function<void()> painted;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        ++paints;
        if (painted)
            painted();
        if (color.isValid())
            QPainter(this).fillRect(rect(), color);
    }
};

struct Fixture
{
    Fixture()
    {
        window->setObjectName("window");
        window->setFixedSize(300, 200);
        QPalette palette(QColor("#efefef"));
        palette.setColor(QPalette::WindowText, QColor("#101010"));
        window->setPalette(palette);
        button->setGeometry(20, 20, 100, 30);
    }

    QVariantMap take()
    {
        window->show();
        return colors->colorsFor(*button);
    }
    QColor color(const QString &name) { return take().value(name).value<QColor>(); }

    std::unique_ptr<Window> window = std::make_unique<Window>();
    QPushButton *button = new QPushButton("button", window.get());
    std::unique_ptr<HRHostColors> colors = std::make_unique<HRHostColors>();
};

using Change = std::function<void(Fixture &)>;

QPalette darkPalette()
{
    QPalette palette(dark);
    palette.setColor(QPalette::WindowText, light);
    return palette;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_HRHostColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colors_areThoseOfTheHost_data();
    void colors_areThoseOfTheHost();
    void text_isReadable_onAnyBackground();
    void colors_areOfThePalette_whileWindowIsHidden();
    void window_isPaintedOnce_untilItChanges();
    void colors_surviveWindow();
    void colors_surviveHost_thatDeletesWhileItPaints();
};

void tst_HRHostColors::colors_areThoseOfTheHost_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("text");
    QTest::newRow("palette") << Change([](Fixture &) {}) << QColor("#efefef") << QColor("#101010");
    QTest::newRow("dark palette") << Change([](Fixture &f) { f.window->setPalette(darkPalette()); })
                                  << dark << light;
    QTest::newRow("style sheet for all") << Change([](Fixture &f) {
        f.window->setStyleSheet("* { background: #202124; color: #f0e8d8 }");
        f.window->setAttribute(Qt::WA_StyledBackground);
    }) << dark << light;
    QTest::newRow("style sheet for the window") << Change([](Fixture &f) {
        f.window->setStyleSheet("#window { background: #202124 }");
        f.window->setAttribute(Qt::WA_StyledBackground);
    }) << dark << QColor(Qt::white);
    QTest::newRow("a red button in a dark window") << Change([](Fixture &f) {
        f.window->setPalette(darkPalette());
        f.button->setStyleSheet("background: red");
    }) << dark << QColor(Qt::white);
    QTest::newRow("painted dark") << Change([](Fixture &f) { f.window->color = dark; }) << dark
                                  << QColor(Qt::white);
    QTest::newRow("painted light")
        << Change([](Fixture &f) { f.window->color = light; }) << light << QColor(Qt::black);
    QTest::newRow("painted almost as the palette says")
        << Change([](Fixture &f) { f.window->color = QColor("#eeeff0"); }) << QColor("#efefef")
        << QColor("#101010");
    QTest::newRow("painted in other green than the palette's")
        << Change([](Fixture &f) { f.window->color = QColor("#ef40ef"); }) << QColor("#ef40ef")
        << QColor(Qt::black);
    QTest::newRow("painted in other blue than the palette's")
        << Change([](Fixture &f) { f.window->color = QColor("#efef40"); }) << QColor("#efef40")
        << QColor(Qt::black);
    QTest::newRow("can be seen through")
        << Change([](Fixture &f) { f.window->setAttribute(Qt::WA_TranslucentBackground); })
        << QColor("#efefef") << QColor("#101010");
    QTest::newRow("disabled") << Change([](Fixture &f) { f.button->setEnabled(false); })
                              << QColor("#efefef") << QColor("#101010");
    QTest::newRow("named at the window")
        << Change([](Fixture &f) { f.window->setProperty("hintreelPalette", darkPalette()); })
        << dark << light;
    QTest::newRow("named at the application")
        << Change([](Fixture &) { qApp->setProperty("hintreelPalette", darkPalette()); }) << dark
        << light;
}

void tst_HRHostColors::colors_areThoseOfTheHost()
{
    QFETCH(Change, change);
    Fixture f;
    change(f);
    const QVariantMap colors = f.take();
    qApp->setProperty("hintreelPalette", QVariant());
    QTEST(colors.value("window").value<QColor>(), "window");
    QTEST(colors.value("windowText").value<QColor>(), "text");
    QCOMPARE(colors.size(), 5);
}

void tst_HRHostColors::text_isReadable_onAnyBackground()
{
    Fixture f;
    for (int grey = 0; grey < 256; grey += 5) {
        const QColor background(grey, grey, grey);
        f.window->color = background;
        f.window->setPalette(QPalette(background.darker())); // the window is painted anew
        QVERIFY(contrastRatio(f.color("windowText"), f.color("window")) >= 4.5);
        f.window->color = QColor();
        QPalette palette(background);
        palette.setColor(QPalette::WindowText, background);
        f.window->setPalette(palette);
        QVERIFY(contrastRatio(f.color("windowText"), f.color("window")) >= 4.5);
    }
}

void tst_HRHostColors::colors_areOfThePalette_whileWindowIsHidden()
{
    Fixture f;
    f.window->color = dark;
    const QVariantMap colors = f.colors->colorsFor(*f.button);
    QCOMPARE(colors.value("window").value<QColor>(), QColor("#efefef"));
    QCOMPARE(f.window->paints, 0);
    QCOMPARE(f.color("window"), dark);
}

void tst_HRHostColors::window_isPaintedOnce_untilItChanges()
{
    Fixture f;
    f.take();
    QCoreApplication::processEvents();
    const int paints = f.window->paints;
    f.take();
    QCOMPARE(f.window->paints, paints);
    f.window->color = dark;
    f.window->setPalette(QPalette(light));
    QCOMPARE(f.color("window"), dark);
    f.window->color = light;
    f.window->setStyleSheet("QLabel { color: red }");
    QCOMPARE(f.color("window"), light);
}

void tst_HRHostColors::colors_surviveWindow()
{
    Fixture f;
    f.take();
    f.window.reset();
    QWidget other;
    QCOMPARE(f.colors->colorsFor(other).size(), 5);
}

void tst_HRHostColors::colors_surviveHost_thatDeletesWhileItPaints()
{
    Fixture f;
    f.window->painted = [&f] { f.colors.reset(); };
    QCOMPARE(f.take().size(), 5);
    QVERIFY(!f.colors);
}

QTEST_MAIN(tst_HRHostColors)
#include "tst_HRHostColors.moc"
