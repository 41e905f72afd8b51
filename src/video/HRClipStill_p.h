// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRVideoComponent.h"

#include <QPointer>

namespace Hintreels {

/// The QML item that shows one picture of a clip, scaled to the item's size.
///
/// It decodes nothing and keeps no picture: another item plays the clip, and gives the picture each
/// time that this one is painted. It paints nothing before all of the clip is decoded. GUI thread
/// only.
class HRClipStill : public QQuickPaintedItem
{
    Q_OBJECT
    ///@{
    /// What QML reads and writes; the operations behind it say more.
    Q_PROPERTY(Hintreels::HRVideoComponent *source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(double time READ time WRITE setTime NOTIFY timeChanged)
    ///@}

public:
    explicit HRClipStill(QQuickItem *parent = nullptr);

    /// Whose picture is shown; not owned, null once it is gone.
    HRVideoComponent *source() const { return m_source; }
    void setSource(HRVideoComponent *source);

    /// Which picture: that of the clip at this time, in seconds.
    double time() const { return m_time; }
    void setTime(double seconds);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void sourceChanged();
    void timeChanged();

private:
    QPointer<HRVideoComponent> m_source;
    double m_time = 0.0;
};

} // namespace Hintreels
