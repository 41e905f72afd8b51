// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/heapTrim_p.h"

#include <QSemaphore>

#ifdef __GLIBC__
#include <array>

#include <malloc.h>
#include <pthread.h>
#endif

namespace Hintreels {

#ifdef __GLIBC__

namespace {

constexpr int mostHeaps = 4; // those of two clips, which have two threads each

// Freeing as much makes glibc shrink a heap at its end; more would not lie in one.
constexpr size_t largePiece = 96UL * 1024;

/// Of threads that are there at the same time, so that each has a heap of its own.
struct Meeting
{
    QSemaphore arrived;
    QSemaphore over;
};

void *visitHeap(void *data)
{
    auto *meeting = static_cast<Meeting *>(data);
    void *volatile piece = ::malloc(largePiece);
    ::free(piece);
    meeting->arrived.release();
    meeting->over.acquire();
    return nullptr;
}

/// A new thread takes over the heap of one that has ended. Nobody else can shrink it: trimming
/// empties what is free between things that stay, and leaves the end of all heaps but the first.
void shrinkHeapsOfEndedThreads()
{
    Meeting meeting;
    std::array<pthread_t, mostHeaps> threads{};
    int started = 0;
    while (started < mostHeaps
        && ::pthread_create(&threads.at(size_t(started)), nullptr, &visitHeap, &meeting) == 0)
        ++started;
    meeting.arrived.acquire(started);
    meeting.over.release(started);
    for (int i = 0; i < started; ++i)
        ::pthread_join(threads.at(size_t(i)), nullptr);
}

} // namespace

void trimHeap()
{
    ::malloc_trim(0); // also joins small pieces, which would hold up the shrinking
    shrinkHeapsOfEndedThreads();
}

#else

void trimHeap() { }

#endif

} // namespace Hintreels
