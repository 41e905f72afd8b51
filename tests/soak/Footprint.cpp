// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "soak/Footprint.h"

#include <QAbstractEventDispatcher>
#include <QFile>
#include <QMetaMethod>
#include <QSet>
#include <QThread>

#include <mutex>

#include <dirent.h>
#include <malloc.h>
#include <unistd.h>

// Where debuggers hook in: Qt calls these for each object that it makes and deletes, in its thread.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

constexpr int addHook = 3; // places in qtHookData
constexpr int removeHook = 4;

// Never destroyed: Qt deletes objects of its own to the very last.
std::mutex &mutex = *new std::mutex;
QSet<QObject *> &objects = *new QSet<QObject *>; // guarded by mutex

void added(QObject *object)
{
    const std::lock_guard<std::mutex> lock(mutex);
    objects.insert(object);
}

void removed(QObject *object)
{
    const std::lock_guard<std::mutex> lock(mutex);
    objects.remove(object);
}

QSet<QObject *> objectsNow()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return objects;
}

/// Reaches what counts the receivers of a signal.
struct Receivers : QObject
{
    static constexpr auto count = &Receivers::receivers;
};

int connectionsFrom(const QObject *object)
{
    int count = 0;
    const QMetaObject *meta = object->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            count += (object->*Receivers::count)(qPrintable('2' + method.methodSignature()));
    }
    return count;
}

int entriesIn(const char *path)
{
    int count = 0;
    DIR *directory = ::opendir(path);
    while (const dirent *entry = ::readdir(directory))
        count += entry->d_name[0] == '.' ? 0 : 1;
    ::closedir(directory);
    return count;
}

qint64 residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read /proc/self/statm");
    return file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

} // namespace

void watchObjects()
{
    qtHookData[addHook] = reinterpret_cast<quintptr>(&added);
    qtHookData[removeHook] = reinterpret_cast<quintptr>(&removed);
}

Footprint Footprint::now()
{
    // Free pages that stay with the allocator are no growth.
    ::malloc_trim(0);
    const struct mallinfo2 memory = ::mallinfo2();
    Footprint footprint{ qint64(memory.uordblks + memory.hblkhd), residentBytes(),
        entriesIn("/proc/self/fd"), entriesIn("/proc/self/task"), 0, 0, 0 };
    const QSet<QObject *> living = objectsNow();
    footprint.objects = living.size();
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    for (QObject *object : living) {
        if (object->thread() != QThread::currentThread())
            continue;
        footprint.timers += dispatcher->registeredTimers(object).size();
        footprint.connections += connectionsFrom(object);
    }
    return footprint;
}
