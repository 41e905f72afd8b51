// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/MessageGuard.h"

#include <QtTest>

#include <mutex>

namespace {

std::mutex mutex; // which, unlike a QMutex, ThreadSanitizer sees
QStringList messages; // guarded by mutex

/// Qt looks for the window at a point by going down the X server's windows; a frame of the window
/// manager's that goes meanwhile, of a window that a test has closed, is no fault of anybody's.
bool isOfVanishedFrame(const QString &text)
{
    return text.contains("(BadWindow)") && text.contains("(TranslateCoords)");
}

void record(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (isOfVanishedFrame(text))
        return;
    const std::lock_guard<std::mutex> lock(mutex);
    messages.append(text);
}

} // namespace

MessageGuard::MessageGuard()
    : m_previous(qInstallMessageHandler(record))
{
    takeMessages();
}

MessageGuard::~MessageGuard()
{
    qInstallMessageHandler(m_previous);
    const QStringList left = takeMessages();
    if (!left.isEmpty())
        QTest::qFail(qPrintable("unannounced messages: " + left.join(" | ")), __FILE__, __LINE__);
}

QStringList MessageGuard::takeMessages()
{
    const std::lock_guard<std::mutex> lock(mutex);
    QStringList taken;
    taken.swap(messages);
    return taken;
}

bool MessageGuard::take(const QString &text)
{
    const std::lock_guard<std::mutex> lock(mutex);
    return messages.removeOne(text);
}
