// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestClip.h"
#include "video/HRSchedule_p.h"
#include "video/HRVideoSource.h"

#include <atomic>

/// A source without media: the test pushes its pictures and, unless it starts the thread, carries
/// out what was asked for by itself.
class FakeSource : public Hintreels::HRVideoSource
{
    Q_OBJECT

public:
    ~FakeSource() override { quit(); }

    bool isOpen() override { return false; }
    double getTime() override { return 0.0; }
    void changeSetPosition(size_t) override { }
    double duration() override { return 0.0; }
    double timeBase() override { return 0.0; }
    double frameRate() override { return rate; }
    double frameWidth() const override { return 40.0; }
    double frameHeight() const override { return 30.0; }

    using HRVideoSource::loadSource;
    using HRVideoSource::processActionQueue;
    using HRVideoSource::rest;

    /// Takes @p url, starts its cache and pushes pictures that tell their numbers.
    void load(const QUrl &url, int pictures)
    {
        changeSetSource(url);
        setupSource();
        push(pictures);
    }

    void push(int pictures)
    {
        for (int i = 0; i < pictures; ++i) {
            const int number = int(totalFrameCount());
            pushFrame(Hintreels::HRVideoFrame(TestClip::numbered(QSize(40, 30), number), 0));
        }
    }

    std::atomic<double> rate{ 50.0 };

protected:
    void run() override
    {
        const Hintreels::HRSchedule::Work work(this);
        while (!shouldQuit()) {
            processActionQueue();
            rest();
        }
    }
};
