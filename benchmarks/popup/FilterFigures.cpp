// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/FilterFigures.h"

#include "FigureRuns.h"
#include "Measuring.h"
#include "context/HRContext.h"
#include "manager/HRManager.h"
#include "widgets/HRWidgetsInterfacePrivate_p.h"

#include <QMouseEvent>

using namespace Hintreels;

namespace {

constexpr int Moves = 200'000; // of one measurement, since one move is too short for a clock

/// A host without hints, over which the pointer moves.
struct MovingHost
{
    double move(QObject &through)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(5, 5), QPointF(50, 50), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        return seconds([&] {
            for (int i = 0; i < Moves; ++i)
                through.eventFilter(&target, &event);
        });
    }

    HRContext context;
    HRWidgetsInterface interface {
        context, { }
    };
    HRWidgetsInterfacePrivate filter{ &interface };
    QWidget target;
};

} // namespace

void addFilterFigures(FigureRuns &runs)
{
    runs.add({ "a mouse move through the filter of HRWidgetsInterface, against the manager's", 0,
        Bar::atMost(1.5),
        [] {
            MovingHost host;
            return host.move(*host.interface.manager());
        },
        [] {
            MovingHost host;
            return host.move(host.filter);
        } });
}
