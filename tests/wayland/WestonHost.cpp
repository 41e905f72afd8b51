// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "wayland/WestonHost.h"

#include "x11/RealInput.h"

#include <QLoggingCategory>
#include <QScreen>
#include <QtTest>

namespace {

constexpr QSize markSize(8, 8);

} // namespace

WestonHost::WestonHost(const std::function<void(HRContext &)> &configure)
    : HintHost([&](HRContext &context) {
        // OpenGL is to be seen, too, and X servers of tests have none that is safe.
        context.set(Hintreels::forbidSoftwareRendererKey, true);
        if (configure)
            configure(context);
    })
{
    // Qt warns when it gives the focus to a widget whose window has not become active yet.
    QLoggingCategory::setFilterRules("qt.qpa.wayland.warning=false");
    m_mark->resize(markSize);
    m_mark->setAutoFillBackground(true);
    m_mark->show();
    if (!find())
        qFatal("the host's window does not appear");
}

bool WestonHost::find()
{
    // Another colour each time: what shows it stands where the window stands now.
    static int count = 0;
    const QColor color(255, ++count % 256, 254);
    m_mark->setPalette(color);
    QRect mark;
    const bool found = eventually([&] {
        const QRect before = mark;
        mark = RealInput::boundsOf(color);
        return mark.size() == markSize * outputScale() && mark == before;
    });
    RealInput::setPlace({ m_mark->mapToGlobal(QPoint(0, 0)), mark.topLeft(), outputScale() });
    m_output = outputOnScreen(1).contains(mark.topLeft()) ? 1 : 0;
    return found;
}

int WestonHost::output() const
{
    return m_output;
}

void WestonHost::moveMarkTo(QWidget &other)
{
    m_mark->setParent(&other);
    m_mark->show();
}

int outputScale()
{
    return qRound(QGuiApplication::primaryScreen()->devicePixelRatio());
}

QRect outputOnScreen(int output)
{
    const QSize size = QGuiApplication::primaryScreen()->size() * outputScale();
    return { QPoint(output * size.width(), 0), size };
}

void restPointerElsewhere(int output)
{
    RealInput::setPlace({});
    RealInput::movePointer(outputOnScreen(output).bottomLeft() + QPoint(1, -1));
}

bool eventually(const std::function<bool()> &holds)
{
    constexpr int patience = 60000; // ms
    return QTest::qWaitFor(holds, patience);
}
