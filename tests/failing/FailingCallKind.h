// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

/// What can be made to fail.
enum FailingCallKind
{
    failingOpen, ///< of files and directories
    failingRead, ///< of files and directories
    failingStat,
    failingWrite,
    failingMap, ///< of files and memory
    failingAllocation ///< above 64 kB
};
