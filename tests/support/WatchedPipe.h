// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <atomic>
#include <thread>

/// A named pipe that tells whether anybody has opened it for reading.
///
/// Whoever does would wait for ever for a writer: it is let go with the end of the file instead.
class WatchedPipe
{
public:
    explicit WatchedPipe(const QString &path);
    ~WatchedPipe();
    Q_DISABLE_COPY(WatchedPipe)

    bool wasOpened() const { return m_opened; }

private:
    void watch();

    QByteArray m_path;
    std::atomic_bool m_opened{ false };
    std::atomic_bool m_done{ false };
    std::thread m_watcher;
};
