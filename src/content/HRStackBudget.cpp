// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRStackBudget_p.h"

#include <pthread.h>

namespace Hintreels {

namespace {

// For stacks that the system knows nothing of, such as those of coroutines: about 200 elements.
constexpr quintptr unknownStackBytes = quintptr(64) * 1024;

struct Stack
{
    quintptr lowest = 0;
    quintptr size = 0; // 0 where it could not be found out

    /// How many bytes there are below a position; 0 for positions on other stacks.
    quintptr below(quintptr position) const
    {
        const quintptr bytes = position - lowest; // wraps around below the stack
        return bytes < size ? bytes : 0;
    }
};

Stack stackOfThread()
{
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return {};
    void *lowest = nullptr;
    size_t size = 0;
    const bool isKnown = pthread_attr_getstack(&attributes, &lowest, &size) == 0;
    pthread_attr_destroy(&attributes);
    return isKnown ? Stack{ reinterpret_cast<quintptr>(lowest), size } : Stack();
}

} // namespace

HRStackBudget::HRStackBudget()
{
    // For the main thread the answer is read from a file.
    static thread_local const Stack stack = stackOfThread();
    const quintptr here = position();
    const quintptr left = stack.below(here);
    m_end = here - (left > 0 ? left / 2 : unknownStackBytes);
}

} // namespace Hintreels
