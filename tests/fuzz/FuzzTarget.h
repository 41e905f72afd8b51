// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <vector>

/// One entry into the library for bytes that nobody vouches for.
///
/// It ends the program where the library breaks a promise; else it returns, whatever the bytes.
struct FuzzTarget
{
    const char *name; ///< that of its directory in tests/corpus
    void (*run)(const QByteArray &input);
};

/// All of them, in the order of docs/testing.md.
const std::vector<FuzzTarget> &fuzzTargets();

void fuzzCaptions(const QByteArray &input);
void fuzzClip(const QByteArray &input);
void fuzzControlFile(const QByteArray &input);
void fuzzDatabase(const QByteArray &input);
void fuzzElementBuilder(const QByteArray &input);
void fuzzInterpolation(const QByteArray &input);
void fuzzKeyData(const QByteArray &input);
void fuzzPathAttributes(const QByteArray &input);
void fuzzTextStyle(const QByteArray &input);
void fuzzTranslation(const QByteArray &input);
