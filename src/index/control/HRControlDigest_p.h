// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/control/HRControlError_p.h"

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace Hintreels {

/// Stands for a key in readings, in memory and in databases alike: 32-bit FNV-1a over UTF-8.
quint32 keyNumber(const char *utf8, int length);
quint32 keyNumber(const QString &key);

/// The locale of control files, made once for each name: making one is slow, and few names occur.
struct HRControlLocale
{
    QByteArray name; // as the files spell it, in UTF-8
    QLocale locale;

    /// The one with this name, as long as the program runs; null for an empty name.
    static const HRControlLocale *named(std::string_view name);
};

/// What is remembered of a control file: enough to pass the file over for most keys and locales.
///
/// A digest never denies what loading would find. It may promise too much: two keys may share a
/// number, and a key may stand in a comment or twice.
struct HRControlDigest
{
    bool mayHoldAnything = false; // the rest then says nothing
    const HRControlLocale *locale = nullptr; // none where the file serves all
    std::vector<quint32> keys; // numbers in ascending order

    bool mayServe(quint32 key, const QLocale &wanted) const;
};

/// Finds keys and locale by searching a file's bytes, many times faster than by parsing.
///
/// Nothing where the bytes hold anything but plain tags in UTF-8 around the keys: a document type,
/// entities, other encodings, nested roots. Such files are left to digestByParsing().
std::optional<HRControlDigest> digestBySearching(const QByteArray &bytes);

/// Finds keys and locale by parsing a file. An empty digest where it cannot be read.
HRControlDigest digestByParsing(const QString &filePath, HRControlErrors &errors);

} // namespace Hintreels
