// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "wayland/WestonHost.h"

#include "x11/RealInput.h"

#include <QScreen>
#include <QtTest>

namespace {

constexpr QSize markSize(8, 8);
const QColor markColor(255, 0, 254);

} // namespace

WestonHost::WestonHost(const std::function<void(HRContext &)> &configure)
    : HintHost(configure)
{
    m_mark.resize(markSize);
    m_mark.setAutoFillBackground(true);
    m_mark.setPalette(markColor);
    m_mark.show();
    if (!find())
        qFatal("the host's window does not appear");
}

bool WestonHost::find()
{
    QRect mark;
    const bool found = eventually([&] {
        const QRect before = mark;
        mark = RealInput::boundsOf(markColor);
        return mark.size() == markSize * outputScale() && mark == before;
    });
    RealInput::setPlace({ window.mapToGlobal(QPoint(0, 0)), mark.topLeft(), outputScale() });
    return found;
}

int outputScale()
{
    return qRound(QGuiApplication::primaryScreen()->devicePixelRatio());
}

void restPointerElsewhere()
{
    RealInput::setPlace({});
    const QSize output = QGuiApplication::primaryScreen()->size() * outputScale();
    RealInput::movePointer(QPoint(1, output.height() - 2));
}

bool eventually(const std::function<bool()> &holds)
{
    constexpr int patience = 60000; // ms
    return QTest::qWaitFor(holds, patience);
}
