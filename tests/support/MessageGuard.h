// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// Records what is written to Qt's message output while it lives, instead of printing it.
///
/// A test announces each message by taking it; what was not taken when the guard dies fails the
/// test. One guard at a time, on the thread of the test; messages of other threads are recorded.
class MessageGuard
{
public:
    MessageGuard();
    ~MessageGuard();
    Q_DISABLE_COPY(MessageGuard)

    /// All messages since the last call, oldest first.
    QStringList takeMessages();

    /// Removes the first message equal to @p text; false where there is none.
    bool take(const QString &text);

private:
    QtMessageHandler m_previous;
};
