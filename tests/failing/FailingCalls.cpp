// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "failing/FailingCalls.h"

#include <dlfcn.h>

namespace {

template <typename Function>
Function preloaded(const char *name)
{
    void *const found = dlsym(RTLD_DEFAULT, name);
    if (!found)
        qFatal("the library failing_calls is not preloaded");
    return reinterpret_cast<Function>(found);
}

} // namespace

FailingCalls::FailingCalls(FailingCallKind kind, long number)
{
    preloaded<void (*)(int, long)>("failing_calls_arm")(kind, number);
}

FailingCalls::~FailingCalls()
{
    end();
}

long FailingCalls::end()
{
    if (m_seen < 0)
        m_seen = preloaded<long (*)()>("failing_calls_disarm")();
    return m_seen;
}
