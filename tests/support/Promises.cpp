// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/Promises.h"

#include <QtGlobal>

void require(bool kept, const char *promise)
{
    if (kept)
        return;
    qInstallMessageHandler(nullptr);
    qFatal("broken: %s", promise);
}

void dropMessages()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}
