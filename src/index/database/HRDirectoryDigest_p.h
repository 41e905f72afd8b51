// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"
#include "index/control/HRControlDigest_p.h"

#include <QByteArray>

#include <deque>
#include <optional>
#include <string_view>
#include <vector>

namespace Hintreels {

/// What is kept of one file across runs.
struct HRStoredFile
{
    HRFileStamp stamp; // without the device, whose number may differ in another run
    bool isControlFile = false; // the digest says nothing where it is not
    HRControlDigest digest;
};

/// The files of one directory as bytes that a database keeps: names as the operating system spells
/// them, numbers in little-endian order, a checksum over all.
class HRDirectoryDigest
{
public:
    HRDirectoryDigest() = default;
    HRDirectoryDigest(HRDirectoryDigest &&) = default;
    HRDirectoryDigest &operator=(HRDirectoryDigest &&) = default;

    /// Nothing where the bytes are corrupt. Bytes of another format are an empty digest.
    static std::optional<HRDirectoryDigest> decoded(const QByteArray &bytes);

    QByteArray encoded() const;

    /// The file as it is kept, if its stamp is still this one; the device is not compared. Quick
    /// where files are asked for in the order in which they are kept.
    bool find(std::string_view name, const HRFileStamp &stamp, HRStoredFile &file);

    /// Keeps a file from now on, or another state of it.
    void put(std::string_view name, const HRStoredFile &file);

    void remove(std::string_view name);

    /// The names that neither find() nor put() was called with.
    std::vector<QByteArray> untouched() const;

private:
    struct Slot
    {
        std::string_view bytes; // in m_loaded or in m_added
        bool isTouched;

        std::string_view name() const;
    };

    bool split();
    Slot *slot(std::string_view name);

    QByteArray m_loaded;
    std::deque<QByteArray> m_added;
    std::vector<Slot> m_slots;
    size_t m_next = 0; // where the next file is likely to be
};

} // namespace Hintreels
