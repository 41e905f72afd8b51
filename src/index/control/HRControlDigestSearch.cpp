// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlDigest_p.h"

#include <QString>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace Hintreels {

namespace {

using Bytes = std::string_view;

constexpr Bytes rootTag = "<hintreels";
constexpr Bytes entryTag = "<hintreel";
constexpr Bytes whiteSpace = " \t\r\n";
constexpr Bytes afterName = " \t\r\n/>";

// Real tags are shorter; a limit keeps a file of endless tags from costing more than parsing it.
constexpr size_t longestTag = 4096;

bool startsWith(Bytes text, Bytes start)
{
    return text.substr(0, start.size()) == start;
}

void skipWhite(Bytes &text)
{
    text.remove_prefix(std::min(text.find_first_not_of(whiteSpace), text.size()));
}

/// Removes what comes up to the end of @p mark; false where the mark is missing.
bool skipPast(Bytes &text, Bytes mark)
{
    const size_t found = text.find(mark);
    if (found == Bytes::npos)
        return false;
    text.remove_prefix(found + mark.size());
    return true;
}

/// Whether a declaration `<?xml ... ?>` leaves the encoding at UTF-8.
bool declaresUtf8(Bytes declaration)
{
    if (!skipPast(declaration, "encoding"))
        return true;
    QByteArray encoding(declaration.data(), int(declaration.size()));
    encoding = encoding.simplified().replace(' ', "").replace('\'', '"').toUpper();
    return encoding.startsWith("=\"UTF-8\"");
}

/// Removes a byte-order mark, the declaration and comments up to the first element.
bool skipProlog(Bytes &text)
{
    if (startsWith(text, "\xEF\xBB\xBF"))
        text.remove_prefix(3);
    if (startsWith(text, "<?xml")) {
        const Bytes declaration = text.substr(0, text.find("?>"));
        if (!declaresUtf8(declaration) || !skipPast(text, "?>"))
            return false;
    }
    skipWhite(text);
    while (startsWith(text, "<!--")) {
        if (!skipPast(text, "-->"))
            return false;
        skipWhite(text);
    }
    return true;
}

/// Takes the next attribute off a tag's text; false at the end of the tag and where it is unusual.
bool takeAttribute(Bytes &tag, Bytes &name, Bytes &value)
{
    skipWhite(tag);
    const size_t nameEnd = tag.find_first_of(" \t\r\n=/>");
    if (nameEnd == 0 || nameEnd == Bytes::npos)
        return false;
    name = tag.substr(0, nameEnd);
    tag.remove_prefix(nameEnd);
    skipWhite(tag);
    if (!startsWith(tag, "="))
        return false;
    tag.remove_prefix(1);
    skipWhite(tag);
    if (tag.empty() || (tag.front() != '"' && tag.front() != '\''))
        return false;
    const size_t end = tag.find(tag.front(), 1);
    if (end == Bytes::npos)
        return false;
    value = tag.substr(1, end - 1);
    tag.remove_prefix(end + 1);
    return true;
}

bool isAtTagEnd(Bytes tag)
{
    return startsWith(tag, ">") || startsWith(tag, "/>");
}

/// Whether the parser would hand out these bytes unchanged as UTF-8.
bool isPlain(Bytes value)
{
    bool isAscii = true;
    for (const char c : value) {
        if (c == '&' || c == '<' || (uchar(c) < 0x20))
            return false;
        isAscii = isAscii && uchar(c) < 0x80;
    }
    if (isAscii)
        return true;
    const QByteArray utf8(value.data(), int(value.size()));
    return QString::fromUtf8(utf8).toUtf8() == utf8;
}

/// Reads the attributes of a tag that starts after its name; false where anything is unusual.
template <typename Note>
bool readTag(Bytes text, Note note)
{
    Bytes tag = text.substr(0, longestTag);
    Bytes name;
    Bytes value;
    while (takeAttribute(tag, name, value)) {
        if (!isPlain(value) || !note(name, value))
            return false;
    }
    return isAtTagEnd(tag);
}

bool readRoot(Bytes text, HRControlDigest &digest)
{
    bool hasLocale = false;
    return readTag(text, [&](Bytes name, Bytes value) {
        if (name != "locale")
            return true;
        if (hasLocale)
            return false;
        hasLocale = true;
        digest.locale = HRControlLocale::named(value);
        return true;
    });
}

/// Notes the keys of everything that looks like an entry, be it in a comment.
bool readEntries(Bytes text, HRControlDigest &digest)
{
    const auto noteKey = [&](Bytes name, Bytes value) {
        if (name == "key")
            digest.keys.push_back(keyNumber(value.data(), int(value.size())));
        return true;
    };
    const char *const end = text.data() + text.size();
    const char *at = text.data();
    while ((at = static_cast<const char *>(std::memchr(at, '<', size_t(end - at))))) {
        const Bytes tag(at, size_t(end - at));
        ++at;
        if (!startsWith(tag, entryTag))
            continue;
        if (startsWith(tag, rootTag))
            return false;
        const Bytes rest = tag.substr(entryTag.size());
        if (!rest.empty() && afterName.find(rest.front()) != Bytes::npos && !readTag(rest, noteKey))
            return false;
    }
    return true;
}

/// U+FFFE is a control value of Qt's reader, which drops it wherever it stands, in tags as well.
bool holdsDroppedCharacters(Bytes text)
{
    const char *const end = text.data() + text.size();
    const char *at = text.data();
    while ((at = static_cast<const char *>(std::memchr(at, 0xEF, size_t(end - at))))) {
        if (startsWith(Bytes(at, size_t(end - at)), "\xEF\xBF\xBE"))
            return true;
        ++at;
    }
    return false;
}

} // namespace

std::optional<HRControlDigest> digestBySearching(const QByteArray &bytes)
{
    Bytes text(bytes.constData(), size_t(bytes.size()));
    if (holdsDroppedCharacters(text) || !skipProlog(text) || !startsWith(text, rootTag))
        return std::nullopt;
    text.remove_prefix(rootTag.size());
    if (text.empty() || afterName.find(text.front()) == Bytes::npos)
        return std::nullopt;
    HRControlDigest digest;
    if (!readRoot(text, digest) || !readEntries(text, digest))
        return std::nullopt;
    std::sort(digest.keys.begin(), digest.keys.end());
    digest.keys.shrink_to_fit();
    return digest;
}

} // namespace Hintreels
