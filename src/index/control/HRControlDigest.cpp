// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlDigest_p.h"

#include "content/HRFilterAnswer_p.h"
#include "content/HRXmlElement.h"
#include "index/control/HRControlTree_p.h"

#include <QXmlAttributes>

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>

namespace Hintreels {

namespace {

/// What the filter notes while a file is parsed.
struct Notes
{
    HRControlDigest digest;
    bool isInRoot = false;
};

void noteRoot(Notes &notes, const QXmlAttributes &attributes)
{
    // A root in the root may make a file that yields it for any key.
    notes.digest.mayHoldAnything |= notes.isInRoot;
    notes.isInRoot = true;
    // Qt's reader lets an attribute stand twice; loading keeps the last one.
    const QByteArray locale
        = HRXmlElement(nullptr, attributes).attribute(QStringLiteral("locale")).toUtf8();
    notes.digest.locale = HRControlLocale::named({ locale.constData(), size_t(locale.size()) });
}

void noteEntry(Notes &notes, const QXmlAttributes &attributes)
{
    notes.digest.mayHoldAnything |= !notes.isInRoot;
    for (int i = 0; i < attributes.length(); ++i) {
        if (attributes.qName(i) == QLatin1String("key"))
            notes.digest.keys.push_back(keyNumber(attributes.value(i)));
    }
}

/// Answers as the filter for loading does for a key that no entry has, and notes what it is asked.
int noteElement(const QString &tag, const QXmlAttributes &attributes, void *data)
{
    Notes &notes = *static_cast<Notes *>(data);
    if (tag == QLatin1String("hintreels")) {
        noteRoot(notes, attributes);
        return askForChildren;
    }
    if (tag == QLatin1String("hintreel"))
        noteEntry(notes, attributes);
    return dropAll;
}

} // namespace

quint32 keyNumber(const char *utf8, int length)
{
    quint32 number = 2166136261u;
    for (int i = 0; i < length; ++i)
        number = (number ^ uchar(utf8[i])) * 16777619u;
    return number;
}

quint32 keyNumber(const QString &key)
{
    const QByteArray utf8 = key.toUtf8();
    return keyNumber(utf8.constData(), utf8.size());
}

const HRControlLocale *HRControlLocale::named(std::string_view name)
{
    static std::unordered_map<std::string_view, std::unique_ptr<HRControlLocale>> known;
    if (name.empty())
        return nullptr;
    const auto found = known.find(name);
    if (found != known.end())
        return found->second.get();
    const QString text = QString::fromUtf8(name.data(), int(name.size()));
    auto made = std::make_unique<HRControlLocale>();
    made->name = QByteArray(name.data(), int(name.size()));
    made->locale = QLocale(text);
    const std::string_view ownName(made->name.constData(), name.size());
    return known.emplace(ownName, std::move(made)).first->second.get();
}

bool HRControlDigest::mayServe(quint32 key, const QLocale &wanted) const
{
    if (mayHoldAnything)
        return true;
    return std::binary_search(keys.begin(), keys.end(), key)
        && (!locale || locale->locale == wanted);
}

HRControlDigest digestByParsing(const QString &filePath, HRControlErrors &errors)
{
    Notes notes;
    const HRControlTree tree(filePath, noteElement, &notes, errors);
    std::sort(notes.digest.keys.begin(), notes.digest.keys.end());
    return notes.digest;
}

} // namespace Hintreels
