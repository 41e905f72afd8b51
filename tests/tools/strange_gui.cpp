// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <QGuiApplication>
#include <QTimer>

#include <cstdio>

/// A program without widgets, which ends once its event loop has run.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QTimer::singleShot(0, &application, [] { QCoreApplication::exit(7); });
    const int status = application.exec();
    std::puts("done");
    return status;
}
