// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "commandLine.h"
#include "verbs.h"

#include <QByteArray>

#include <algorithm>
#include <cstdio>
#include <iterator>

using namespace Hintreels;

namespace {

int printHelp()
{
    std::puts("usage: hintreels VERB [OPTIONS] ...\n"
              "\n"
              "Helps to write hint reels: rich tooltips from packages of XML, pictures and clips.\n"
              "\n"
              "verbs:");
    for (const NamedVerb &verb : verbs)
        std::printf("  %-10s %s\n", verb.name, verb.purpose);
    std::puts("\n`hintreels VERB --help` tells more of a verb, with an example.\n"
              "`hintreels --version` prints the version.");
    return 0;
}

int refuse(const char *problem, const QByteArray &name)
{
    std::fprintf(stderr, "hintreels: %s%s; see hintreels --help\n", problem, name.constData());
    return couldNotRun;
}

} // namespace

int main(int argc, char *argv[])
{
    const QByteArray name(argc > 1 ? argv[1] : "");
    if (name == "--help" || name == "-h")
        return printHelp();
    if (name == "--version")
        return std::puts(HINTREELS_VERSION) < 0;
    if (name.isEmpty())
        return refuse("names no verb", {});
    const auto *verb = std::find_if(std::begin(verbs), std::end(verbs),
        [&](const NamedVerb &candidate) { return name == candidate.name; });
    if (verb == std::end(verbs))
        return refuse("knows no verb ", name);
    // As Qt names a command in its usage.
    QByteArray command = "hintreels " + name;
    argv[1] = command.data();
    return verb->verb(argc - 1, argv + 1);
}
