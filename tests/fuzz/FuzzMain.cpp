// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "support/Promises.h"

#include <QApplication>

#include <algorithm>

namespace {

/// The one that HINTREELS_FUZZ_TARGET names. libFuzzer has all arguments to itself.
const FuzzTarget *chosenTarget()
{
    const QByteArray name = qgetenv("HINTREELS_FUZZ_TARGET");
    const std::vector<FuzzTarget> &targets = fuzzTargets();
    const auto found = std::find_if(
        targets.begin(), targets.end(), [&](const FuzzTarget &t) { return name == t.name; });
    if (found == targets.end())
        qFatal("HINTREELS_FUZZ_TARGET names no target: \"%s\"", name.constData());
    return &*found;
}

const FuzzTarget *target = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    target = chosenTarget();
    // Never deleted: libFuzzer ends the program without returning.
    static auto *application = new QApplication(*argc, *argv);
    Q_UNUSED(application)
    dropMessages();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // A copy of its own length, so that AddressSanitizer sees a step behind it.
    target->run(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}
