// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// What this process holds on to, as counted at one moment on the GUI thread.
struct Footprint
{
    qint64 heap; ///< bytes that were allocated and not freed
    qint64 resident; ///< bytes of memory
    int descriptors;
    int threads;
    int objects; ///< those of Qt
    int timers; ///< of Qt's objects on this thread
    int connections; ///< from signals of Qt's objects on this thread

    static Footprint now();
};

/// Counts Qt's objects from now on. To be called once, before the application is made.
void watchObjects();
