// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "report/FigureChart.h"
#include "report/FigureSpread.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QSysInfo>
#include <QThread>

#include <cstdio>

namespace {

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(text.toUtf8()) >= 0;
}

QString processor()
{
    for (const QByteArray &line : read("/proc/cpuinfo").split('\n')) {
        if (line.startsWith("model name"))
            return line.mid(line.indexOf(':') + 1).trimmed();
    }
    return QSysInfo::currentCpuArchitecture();
}

QString page(const FigureSpreads &spreads, int runs, const QString &commit)
{
    return QStringLiteral("# Figures\n\n"
                          "Written by `scripts/bench --publish`; [performance.md](performance.md) "
                          "tells what they mean. Each row shows the median of %1 runs and their "
                          "spread.\n\n"
                          "%2, commit %3, on %4 with %5 processors, %6, Linux %7, Qt %8.\n\n"
                          "![How much of its bar each figure takes](images/figures.svg)\n\n%9")
        .arg(runs)
        .arg(QDate::currentDate().toString(Qt::ISODate), commit, processor())
        .arg(QThread::idealThreadCount())
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), qVersion(),
            markdown(spreads));
}

} // namespace

/// Writes the page and the chart of the figures that several runs have measured.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({ "page", "Where the page goes, in Markdown.", "file" });
    parser.addOption({ "chart", "Where the chart goes, as SVG.", "file" });
    parser.addOption({ "commit", "What was measured.", "commit" });
    parser.addPositionalArgument("runs", "What the runs have written, as JSON.");
    parser.addHelpOption();
    parser.process(application);
    QVector<FigureTable> runs;
    for (const QString &path : parser.positionalArguments())
        runs.append(FigureTable::fromJson(read(path)));
    const FigureSpreads spreads = spreadsOf(runs);
    const bool isWritten = !spreads.isEmpty()
        && write(parser.value("page"), page(spreads, runs.size(), parser.value("commit")))
        && write(parser.value("chart"), chart(spreads));
    if (!isWritten)
        std::fputs("nothing was measured, or the page cannot be written\n", stderr);
    return isWritten ? 0 : 1;
}
