// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/StandardUiFixture.h"
#include "ui/reader/readableColor_p.h"
#include "x11/RealInput.h"

#include <QLabel>

using namespace Hintreels;

namespace {

const QPoint farAway(1200, 750);
const QColor dark("#202124");

/// A host that a style sheet makes dark, with a hint of text.
struct DarkHost : StandardUiFixture
{
    explicit DarkHost(bool followsHost)
        : StandardUiFixture("<hintreel key=\"key\" title=\"Pen\"><summary>Draws.</summary>"
                            "<keys keys=\"P\">Pen</keys><note kind=\"tip\">Tip</note>"
                            "<text>Some *text*, and `code`.</text></hintreel>")
    {
        context.set(applicationFilterKey, true);
        context.set(hostColorsKey, followsHost);
        window.setStyleSheet("* { background: #202124; color: #e8eaed }");
        window.setAttribute(Qt::WA_StyledBackground);
        label.setObjectName("key");
        label.setGeometry(20, 20, 100, 30);
        window.setGeometry(100, 100, 300, 200);
    }

    /// Rests the pointer on the label until its hint is there.
    bool hover()
    {
        start();
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        RealInput::movePointer(label.mapToGlobal(QPoint(10, 10)));
        return QTest::qWaitFor([this] {
            popup = host->manager()->widget();
            return popup && popup->isVisible();
        });
    }

    /// What the screen shows of the popup's margin.
    bool isPainted(const QColor &color) const
    {
        return RealInput::shows(QRect(popup->mapToGlobal(QPoint(3, 3)), QSize(4, 4)), color);
    }

    QWidget window;
    QLabel label{ "draw", &window };
};

} // namespace

/// The standard UI in the colours of its host, on a real X server.
class tst_x11_colors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { RealInput::movePointer(farAway); }
    void hint_isDark_inADarkHost();
    void hint_hasDesktopsColors_withoutTheSetting();
};

void tst_x11_colors::hint_isDark_inADarkHost()
{
    DarkHost host(true);
    QVERIFY(host.hover());
    QTRY_VERIFY(host.isPainted(dark));
    int texts = 0;
    for (const QQuickItem *item : itemsBelow(host.root())) {
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        if (!isText || item->property("text").toString().isEmpty())
            continue;
        QVERIFY(contrastRatio(item->property("color").value<QColor>(), dark) >= 4.5);
        ++texts;
    }
    QVERIFY(texts > 1);
}

void tst_x11_colors::hint_hasDesktopsColors_withoutTheSetting()
{
    DarkHost host(false);
    QVERIFY(host.hover());
    QTRY_VERIFY(host.isPainted(QGuiApplication::palette().color(QPalette::Window)));
}

QTEST_MAIN(tst_x11_colors)
#include "tst_x11_colors.moc"
