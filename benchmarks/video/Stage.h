// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/popup/HRView.h"
#include "video/HRVideoComponent.h"

#include <QElapsedTimer>

/// An item that notes when it painted which picture.
class WatchedItem : public Hintreels::HRVideoComponent
{
    Q_OBJECT

public:
    struct Painting
    {
        double picture; // its own time, in seconds
        double time; // seconds, since the watch was started
    };

    using HRVideoComponent::HRVideoComponent;

    void startWatch();
    void paint(QPainter *painter) override;

    QVector<Painting> paintings; ///< one entry a picture
    bool hasPicture() const { return implicitWidth() > 0; }

private:
    QElapsedTimer m_watch;
};

/// A shown view with one item, whose every source is one file.
class Stage
{
public:
    explicit Stage(const QString &file);

    Hintreels::HRView view;
    WatchedItem *item;

    void setSource();
    /// Handles events until @p done says so; ends the program after a minute.
    void runUntil(const std::function<bool()> &done);
    /// The clip is decoded whole, and its first picture is on the screen.
    void load();
};
