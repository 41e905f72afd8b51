// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// What the command `hintreels` can do, each in a file of its name. A verb gets the arguments
/// behind its name, makes the application that it needs, reads its options with readOptions(), and
/// returns the command's exit status.
using Verb = int (*)(int argc, char *argv[]);

int check(int argc, char *argv[]);
int run(int argc, char *argv[]);

struct NamedVerb
{
    const char *name;
    const char *purpose; ///< one line, for --help
    Verb verb;
};

/// In the order of the help.
constexpr NamedVerb verbs[] = {
    { "check", "find what keeps hints from showing as they were written", check },
    { "run", "start a program of Qt Widgets with your hints in it", run },
};

} // namespace Hintreels
