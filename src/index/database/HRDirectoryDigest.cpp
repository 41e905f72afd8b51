// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRDirectoryDigest_p.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace Hintreels {

namespace {

// A digest is the format's number, the checksum of all that follows, and the entries.
constexpr quint32 format = 1;
constexpr int headSize = sizeof(quint32) + sizeof(quint64);

constexpr quint32 noFlag = 0;
constexpr quint32 isControlFileFlag = 1;
constexpr quint32 mayHoldAnythingFlag = 2;

/// The fixed part of an entry; its name, its locale and its keys follow.
struct EntryHead
{
    quint32_le length; // of the entry, this head included
    quint32_le flags;
    quint64_le inode;
    qint64_le size;
    qint64_le modified;
    qint64_le changed;
    quint16_le nameLength;
    quint16_le localeLength;
    quint32_le keyCount;
};

EntryHead headOf(std::string_view entry)
{
    EntryHead head;
    std::memcpy(&head, entry.data(), sizeof head);
    return head;
}

/// Whether bytes begin with an entry whose parts fill it exactly.
bool beginsWithEntry(std::string_view bytes)
{
    if (bytes.size() < sizeof(EntryHead))
        return false;
    const EntryHead head = headOf(bytes);
    const quint64 length = sizeof(EntryHead) + head.nameLength + head.localeLength
        + quint64(head.keyCount) * sizeof(quint32);
    return head.length == length && length <= bytes.size();
}

/// Multiplies and mixes eight bytes at a time; tells damage, and nothing about intent.
quint64 checksum(std::string_view bytes)
{
    const auto mixed = [](quint64 sum, const char *word) {
        sum = (sum ^ qFromLittleEndian<quint64>(word)) * 0xff51afd7ed558ccdu;
        return sum ^ sum >> 32;
    };
    quint64 sum = 0x9e3779b97f4a7c15u ^ bytes.size();
    for (; bytes.size() >= sizeof(quint64); bytes.remove_prefix(sizeof(quint64)))
        sum = mixed(sum, bytes.data());
    if (bytes.empty())
        return sum;
    char rest[sizeof(quint64)] = {};
    std::memcpy(rest, bytes.data(), bytes.size());
    return mixed(sum, rest);
}

HRFileStamp stampOf(const EntryHead &head)
{
    HRFileStamp stamp;
    stamp.inode = head.inode;
    stamp.size = head.size;
    stamp.modified = head.modified;
    stamp.changed = head.changed;
    return stamp;
}

HRFileStamp withoutDevice(HRFileStamp stamp)
{
    stamp.device = 0;
    return stamp;
}

// Qt's conversions want memory even for no numbers, and a file without keys has none.

void decodeKeys(std::string_view bytes, std::vector<quint32> &keys)
{
    keys.resize(bytes.size() / sizeof(quint32));
    if (!keys.empty())
        qFromLittleEndian<quint32>(bytes.data(), qsizetype(keys.size()), keys.data());
}

QByteArray encodeKeys(const std::vector<quint32> &keys)
{
    QByteArray bytes(int(keys.size() * sizeof(quint32)), Qt::Uninitialized);
    if (!keys.empty())
        qToLittleEndian<quint32>(keys.data(), qsizetype(keys.size()), bytes.data());
    return bytes;
}

void decodeFile(std::string_view entry, HRStoredFile &file)
{
    const EntryHead head = headOf(entry);
    const std::string_view locale = entry.substr(sizeof head + head.nameLength, head.localeLength);
    file.stamp = stampOf(head);
    file.isControlFile = head.flags & isControlFileFlag;
    file.digest.mayHoldAnything = head.flags & mayHoldAnythingFlag;
    file.digest.locale = HRControlLocale::named(locale);
    decodeKeys(entry.substr(sizeof head + head.nameLength + head.localeLength), file.digest.keys);
}

QByteArray encodeFile(std::string_view name, const HRStoredFile &file)
{
    const HRControlDigest &digest = file.digest;
    const QByteArray keys = encodeKeys(digest.keys);
    const QByteArray locale = digest.locale ? digest.locale->name : QByteArray();
    EntryHead head;
    head.length = quint32(sizeof head + name.size() + size_t(locale.size()) + size_t(keys.size()));
    head.flags = (file.isControlFile ? isControlFileFlag : noFlag)
        | (digest.mayHoldAnything ? mayHoldAnythingFlag : noFlag);
    head.inode = file.stamp.inode;
    head.size = file.stamp.size;
    head.modified = file.stamp.modified;
    head.changed = file.stamp.changed;
    head.nameLength = quint16(name.size());
    head.localeLength = quint16(locale.size());
    head.keyCount = quint32(digest.keys.size());
    return QByteArray(reinterpret_cast<const char *>(&head), sizeof head)
        + QByteArray(name.data(), int(name.size())) + locale + keys;
}

} // namespace

std::string_view HRDirectoryDigest::Slot::name() const
{
    return bytes.substr(sizeof(EntryHead), headOf(bytes).nameLength);
}

std::optional<HRDirectoryDigest> HRDirectoryDigest::decoded(const QByteArray &bytes)
{
    HRDirectoryDigest digest;
    if (bytes.size() < headSize)
        return std::nullopt;
    if (qFromLittleEndian<quint32>(bytes.constData()) != format)
        return digest;
    digest.m_loaded = bytes;
    if (!digest.split())
        return std::nullopt;
    return digest;
}

QByteArray HRDirectoryDigest::encoded() const
{
    QByteArray bytes(headSize, Qt::Uninitialized);
    for (const Slot &slot : m_slots)
        bytes.append(slot.bytes.data(), int(slot.bytes.size()));
    const std::string_view entries(bytes.constData() + headSize, size_t(bytes.size() - headSize));
    qToLittleEndian(format, bytes.data());
    qToLittleEndian(checksum(entries), bytes.data() + sizeof format);
    return bytes;
}

bool HRDirectoryDigest::find(std::string_view name, const HRFileStamp &stamp, HRStoredFile &file)
{
    Slot *found = slot(name);
    if (!found)
        return false;
    found->isTouched = true;
    if (stampOf(headOf(found->bytes)) != withoutDevice(stamp))
        return false;
    decodeFile(found->bytes, file);
    return true;
}

void HRDirectoryDigest::put(std::string_view name, const HRStoredFile &file)
{
    m_added.push_back(encodeFile(name, file));
    const QByteArray &entry = m_added.back();
    const Slot added{ { entry.constData(), size_t(entry.size()) }, true };
    if (Slot *known = slot(name))
        *known = added;
    else
        m_slots.push_back(added);
}

void HRDirectoryDigest::remove(std::string_view name)
{
    if (Slot *known = slot(name))
        m_slots.erase(m_slots.begin() + (known - m_slots.data()));
    m_next = 0;
}

std::vector<QByteArray> HRDirectoryDigest::untouched() const
{
    std::vector<QByteArray> names;
    for (const Slot &slot : m_slots) {
        if (!slot.isTouched)
            names.emplace_back(slot.name().data(), int(slot.name().size()));
    }
    return names;
}

/// Cuts the loaded bytes into entries; false where they are corrupt.
bool HRDirectoryDigest::split()
{
    std::string_view rest(m_loaded.constData(), size_t(m_loaded.size()));
    const auto sum = qFromLittleEndian<quint64>(rest.data() + sizeof format);
    rest.remove_prefix(headSize);
    if (checksum(rest) != sum)
        return false;
    while (!rest.empty()) {
        if (!beginsWithEntry(rest))
            return false;
        const size_t length = headOf(rest).length;
        m_slots.push_back({ rest.substr(0, length), false });
        rest.remove_prefix(length);
    }
    return true;
}

HRDirectoryDigest::Slot *HRDirectoryDigest::slot(std::string_view name)
{
    if (m_next >= m_slots.size() || m_slots[m_next].name() != name) {
        const auto found = std::find_if(m_slots.begin(), m_slots.end(),
            [name](const Slot &slot) { return slot.name() == name; });
        if (found == m_slots.end())
            return nullptr;
        m_next = size_t(found - m_slots.begin());
    }
    return &m_slots[m_next++];
}

} // namespace Hintreels
