// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtTest>

/// Counts a signal in the test's thread, whatever thread sends it.
///
/// A QSignalSpy records in the sender's thread, and so cannot be read while that thread runs.
class SignalCounter : public QObject
{
    Q_OBJECT

public:
    template <typename Sender, typename Signal>
    SignalCounter(const Sender *sender, Signal signal)
    {
        connect(sender, signal, this, [this] { ++m_count; });
    }

    int count() const { return m_count; }
    void clear() { m_count = 0; }

    /// Waits for the next one; false where none comes in time.
    bool wait(int milliseconds)
    {
        const int before = m_count;
        return QTest::qWaitFor([this, before] { return m_count > before; }, milliseconds);
    }

private:
    int m_count = 0;
};
