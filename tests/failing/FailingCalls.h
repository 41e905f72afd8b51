// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "failing/FailingCallKind.h"

#include <QtGlobal>

/// Lets one call of the library, FFmpeg or SQLite fail, in whatever thread, while it lives.
///
/// The program must have been started with the library failing_calls preloaded.
class FailingCalls
{
public:
    /// @param number of the call to fail, from 1 on; 0 lets all through
    FailingCalls(FailingCallKind kind, long number);
    ~FailingCalls();
    Q_DISABLE_COPY(FailingCalls)

    /// How many calls of the kind have come until now, or until it was ended. Ends it.
    long end();

private:
    long m_seen = -1; // while it lasts
};
