// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/translationCheck_p.h"

#include <QtEndian>

#include <vector>

namespace Hintreels {

namespace {

const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

enum SectionTag : uchar
{
    contextsSection = 0x2f,
    hashesSection = 0x42,
    messagesSection = 0x69,
    dependenciesSection = 0x96
};

enum MessageTag : uchar
{
    endTag = 1,
    translationTag = 3,
    obsoleteTag = 5,
    sourceTextTag = 6,
    contextTag = 7,
    commentTag = 8
};

// A part of the file that never reads outside itself: numbers behind its end are zero.
class Section
{
public:
    Section() = default;
    Section(const char *data, quint32 size)
        : m_data(data)
        , m_size(size)
    {
    }

    quint32 size() const { return m_size; }
    bool has(quint64 position, quint64 count) const { return position + count <= m_size; }
    uchar byte(quint64 position) const { return number<uchar>(position); }

    template <typename T>
    T number(quint64 position) const
    {
        return has(position, sizeof(T)) ? qFromBigEndian<T>(m_data + position) : T(0);
    }

private:
    const char *m_data = nullptr;
    quint32 m_size = 0;
};

// The hash table of contexts: a count of slots, their offsets in units of two bytes, and the
// chains that they name, each a run of length-prefixed names that a zero length ends.
bool isSafeContextTable(const Section &contexts)
{
    if (contexts.size() == 0)
        return true;
    const quint64 slotCount = contexts.number<quint16>(0);
    const quint64 chains = 2 + 2 * slotCount;
    if (slotCount == 0 || !contexts.has(0, chains))
        return false;
    std::vector<bool> checked(contexts.size());
    for (quint64 slot = 0; slot < slotCount; ++slot) {
        const quint64 offset = contexts.number<quint16>(2 + 2 * slot);
        quint64 position = chains + 2 * offset;
        while (offset != 0) {
            if (!contexts.has(position, 1))
                return false;
            const uchar length = contexts.byte(position);
            if (length == 0 || checked[position])
                break;
            checked[position] = true;
            position += 1 + length;
        }
    }
    return true;
}

// One message is a run of tagged fields that an end tag, or one that Qt does not know, ends. That
// tag has to be there: Qt looks at the byte behind the length of a comment, even of an empty one.
bool isSafeMessage(const Section &messages, quint64 position, std::vector<bool> &checked)
{
    while (messages.has(position, 1) && !checked[position]) {
        checked[position] = true;
        const uchar tag = messages.byte(position);
        ++position;
        if (tag == obsoleteTag) {
            position += sizeof(quint32);
        } else if (tag == translationTag || tag == sourceTextTag || tag == contextTag
            || tag == commentTag) {
            const quint64 length = messages.number<quint32>(position);
            position += sizeof(quint32) + length;
            if (tag == translationTag && length % 2 != 0)
                return false;
        } else {
            return true;
        }
        if (position >= messages.size())
            return false;
    }
    return true;
}

// The hashes are pairs of a hash and the offset of its message.
bool areSafeMessages(const Section &hashes, const Section &messages)
{
    if (hashes.size() % 8 != 0)
        return false;
    std::vector<bool> checked(messages.size());
    for (quint64 position = 4; position < hashes.size(); position += 8) {
        const quint64 offset = hashes.number<quint32>(position);
        if (offset > messages.size() || !isSafeMessage(messages, offset, checked))
            return false;
    }
    return true;
}

} // namespace

bool isSafeTranslation(const QByteArray &file)
{
    if (!file.startsWith(magic))
        return false;

    constexpr quint32 headerSize = 5; // a tag of one byte and a length of four
    const Section whole(file.constData(), quint32(file.size()));
    Section contexts;
    Section hashes;
    Section messages;
    quint64 position = quint64(magic.size());
    while (position + headerSize < whole.size()) {
        const uchar tag = whole.byte(position);
        const quint32 length = whole.number<quint32>(position + 1);
        position += headerSize;
        if (tag == 0 || length == 0)
            break;
        if (!whole.has(position, length) || tag == dependenciesSection)
            return false;
        const Section section(file.constData() + position, length);
        if (tag == contextsSection)
            contexts = section;
        else if (tag == hashesSection)
            hashes = section;
        else if (tag == messagesSection)
            messages = section;
        position += length;
    }
    return isSafeContextTable(contexts) && areSafeMessages(hashes, messages);
}

} // namespace Hintreels
