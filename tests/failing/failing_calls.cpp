// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT
//
// A library to be preloaded: it stands before the C library and lets one call fail. Only calls that
// come straight from the program itself, FFmpeg or SQLite count; those of Qt, of the C library and
// of all others go through, since what they make of a failure is not ours.

#include "FailingCallKind.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr size_t largeAllocation = 64 * 1024; // bytes
constexpr int notArmed = -1;

struct Range
{
    uintptr_t begin;
    uintptr_t end;
};

// Written while nothing is armed.
Range ranges[64];
int rangeCount = 0;
long failing = 0;

std::atomic<int> armed{ notArmed };
std::atomic<long> seen{ 0 };

bool isWatched(const char *path)
{
    for (const char *part : { "/libav", "/libsw", "/libsqlite3" }) {
        if (std::strstr(path, part))
            return true;
    }
    return path[0] == '\0'; // the program itself
}

int addRanges(dl_phdr_info *module, size_t, void *)
{
    if (!isWatched(module->dlpi_name))
        return 0;
    for (int i = 0; i < module->dlpi_phnum && rangeCount < 64; ++i) {
        const ElfW(Phdr) &segment = module->dlpi_phdr[i];
        if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) == 0)
            continue;
        const uintptr_t begin = module->dlpi_addr + segment.p_vaddr;
        ranges[rangeCount++] = { begin, begin + segment.p_memsz };
    }
    return 0;
}

bool comesFromWatched(const void *caller)
{
    const auto address = reinterpret_cast<uintptr_t>(caller);
    for (int i = 0; i < rangeCount; ++i) {
        if (address >= ranges[i].begin && address < ranges[i].end)
            return true;
    }
    return false;
}

bool fails(FailingCallKind kind, const void *caller, int error)
{
    if (armed != kind || !comesFromWatched(caller) || ++seen != failing)
        return false;
    errno = error;
    return true;
}

bool allocationFails(size_t size, const void *caller)
{
    return size > largeAllocation && fails(failingAllocation, caller, ENOMEM);
}

/// The function of this name in the C library.
template <typename Function>
Function next(Function, const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

#define CALLER __builtin_return_address(0)

// A function that fails with `error`, returning `failure`, or does what the next one does.
#define FAILING(kind, error, failure, type, name, parameters, arguments)                           \
    extern "C" type name parameters                                                                \
    {                                                                                              \
        static const auto real = next(&name, #name);                                               \
        return fails(kind, CALLER, error) ? failure : real arguments;                              \
    }

// The same for those that take a mode where they may make a file.
#define FAILING_OPEN(name, parameters, arguments)                                                  \
    extern "C" int name parameters                                                                 \
    {                                                                                              \
        static const auto real = next(&name, #name);                                               \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(list, mode_t) : 0;       \
        va_end(list);                                                                              \
        return fails(failingOpen, CALLER, ENFILE) ? -1 : real arguments;                           \
    }

extern "C" void failing_calls_arm(int kind, long number)
{
    rangeCount = 0;
    dl_iterate_phdr(addRanges, nullptr);
    seen = 0;
    failing = number;
    armed = kind;
}

extern "C" long failing_calls_disarm()
{
    armed = notArmed;
    return seen;
}

FAILING_OPEN(open, (const char *path, int flags, ...), (path, flags, mode))
FAILING_OPEN(open64, (const char *path, int flags, ...), (path, flags, mode))
FAILING_OPEN(
    openat, (int directory, const char *path, int flags, ...), (directory, path, flags, mode))
FAILING_OPEN(
    openat64, (int directory, const char *path, int flags, ...), (directory, path, flags, mode))
FAILING(
    failingOpen, ENFILE, nullptr, FILE *, fopen, (const char *path, const char *mode), (path, mode))
FAILING(failingOpen, ENFILE, nullptr, FILE *, fopen64, (const char *path, const char *mode),
    (path, mode))
FAILING(failingOpen, ENFILE, nullptr, DIR *, opendir, (const char *path), (path))

FAILING(
    failingRead, EIO, -1, ssize_t, read, (int file, void *bytes, size_t size), (file, bytes, size))
FAILING(failingRead, EIO, -1, ssize_t, pread, (int file, void *bytes, size_t size, off_t offset),
    (file, bytes, size, offset))
FAILING(failingRead, EIO, -1, ssize_t, pread64,
    (int file, void *bytes, size_t size, off64_t offset), (file, bytes, size, offset))
FAILING(failingRead, EIO, nullptr, dirent *, readdir, (DIR * directory), (directory))
FAILING(failingRead, EIO, nullptr, dirent64 *, readdir64, (DIR * directory), (directory))

FAILING(failingStat, EIO, -1, int, stat, (const char *path, struct stat *status), (path, status))
FAILING(
    failingStat, EIO, -1, int, stat64, (const char *path, struct stat64 *status), (path, status))
FAILING(failingStat, EIO, -1, int, lstat, (const char *path, struct stat *status), (path, status))
FAILING(
    failingStat, EIO, -1, int, lstat64, (const char *path, struct stat64 *status), (path, status))
FAILING(failingStat, EIO, -1, int, fstat, (int file, struct stat *status), (file, status))
FAILING(failingStat, EIO, -1, int, fstat64, (int file, struct stat64 *status), (file, status))
FAILING(failingStat, EIO, -1, int, fstatat,
    (int directory, const char *path, struct stat *status, int flags),
    (directory, path, status, flags))
FAILING(failingStat, EIO, -1, int, fstatat64,
    (int directory, const char *path, struct stat64 *status, int flags),
    (directory, path, status, flags))

FAILING(failingWrite, ENOSPC, -1, ssize_t, write, (int file, const void *bytes, size_t size),
    (file, bytes, size))
FAILING(failingWrite, ENOSPC, -1, ssize_t, pwrite,
    (int file, const void *bytes, size_t size, off_t offset), (file, bytes, size, offset))
FAILING(failingWrite, ENOSPC, -1, ssize_t, pwrite64,
    (int file, const void *bytes, size_t size, off64_t offset), (file, bytes, size, offset))

FAILING(failingMap, ENOMEM, MAP_FAILED, void *, mmap,
    (void *at, size_t size, int protection, int flags, int file, off_t offset),
    (at, size, protection, flags, file, offset))
FAILING(failingMap, ENOMEM, MAP_FAILED, void *, mmap64,
    (void *at, size_t size, int protection, int flags, int file, off64_t offset),
    (at, size, protection, flags, file, offset))

// Allocation goes by the C library's own names: looking a name up allocates.
extern "C" {

void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);

void *malloc(size_t size)
{
    return allocationFails(size, CALLER) ? nullptr : __libc_malloc(size);
}

void *calloc(size_t count, size_t size)
{
    const bool fits = size == 0 || count <= SIZE_MAX / size;
    return fits && allocationFails(count * size, CALLER) ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *memory, size_t size)
{
    return allocationFails(size, CALLER) ? nullptr : __libc_realloc(memory, size);
}

void *memalign(size_t alignment, size_t size)
{
    return allocationFails(size, CALLER) ? nullptr : __libc_memalign(alignment, size);
}

void *aligned_alloc(size_t alignment, size_t size)
{
    return allocationFails(size, CALLER) ? nullptr : __libc_memalign(alignment, size);
}

int posix_memalign(void **memory, size_t alignment, size_t size)
{
    void *made = allocationFails(size, CALLER) ? nullptr : __libc_memalign(alignment, size);
    if (!made)
        return ENOMEM;
    *memory = made;
    return 0;
}

} // extern "C"
