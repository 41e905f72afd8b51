// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Retires a source that hears nothing until the application is gone, and says when it has ended.

#include "support/FakeSource.h"
#include "video/retiredSources_p.h"

#include <QCoreApplication>
#include <QSemaphore>

#include <cstdio>

namespace {

class LastingSource : public FakeSource
{
public:
    explicit LastingSource(QSemaphore *end)
        : m_end(end)
    {
        start();
    }
    ~LastingSource() override { quit(); }

protected:
    void run() override
    {
        m_end->acquire();
        std::puts("ended");
    }

private:
    QSemaphore *m_end;
};

} // namespace

int main(int argc, char **argv)
{
    static QSemaphore end;
    const QCoreApplication application(argc, argv);
    Hintreels::retireSource(std::make_unique<LastingSource>(&end));
    QObject::connect(&application, &QObject::destroyed, [] { end.release(); });
    return 0;
}
