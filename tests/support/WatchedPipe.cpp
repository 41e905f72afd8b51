// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/WatchedPipe.h"

#include "support/Pauses.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

WatchedPipe::WatchedPipe(const QString &path)
    : m_path(QFile::encodeName(path))
{
    if (mkfifo(m_path.constData(), 0600) != 0)
        qFatal("cannot make the pipe %s", m_path.constData());
    m_watcher = std::thread(&WatchedPipe::watch, this);
}

WatchedPipe::~WatchedPipe()
{
    m_done = true;
    m_watcher.join();
}

void WatchedPipe::watch()
{
    const auto look = [this] {
        // Succeeds only while somebody has it open for reading, or waits for that.
        const int writer = open(m_path.constData(), O_WRONLY | O_NONBLOCK);
        m_opened = m_opened || writer >= 0;
        if (writer >= 0)
            close(writer);
        return bool(m_done);
    };
    lookUntil(look, QDeadlineTimer(QDeadlineTimer::Forever));
}
