// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryFile.h"
#include "index/HRIndex.h"
#include "index/control/HRControlDigest_p.h"
#include "index/control/HRControlFileProbe_p.h"
#include "index/control/HRControlTree_p.h"
#include "support/Promises.h"

#include <QBuffer>

#include <memory>

using namespace Hintreels;

namespace {

constexpr int mostKeys = 8;

std::unique_ptr<HRXmlElement> load(
    HRIndex &index, const QString &key, const QString &path, const QLocale &locale)
{
    HRXmlElement *root = nullptr;
    const HRXmlElement *entry = index.load(key, path, locale, root);
    require(!entry || entry->parent() == root, "what is loaded belongs to its root");
    return std::unique_ptr<HRXmlElement>(entry ? root : nullptr);
}

void probe(QByteArray input)
{
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    HRControlFileProbe().isControlFile(
        [&buffer](char *bytes, qint64 size) { return buffer.read(bytes, size); });
}

} // namespace

void fuzzControlFile(const QByteArray &input)
{
    probe(input);
    const MemoryFile file(input);
    const std::optional<HRControlDigest> found = digestBySearching(input);
    HRControlErrors errors;
    const HRControlDigest parsed = digestByParsing(file.path(), errors);
    HRContext context;
    HRIndex index(&context, {});
    const QStringList keys = keysOfControlFile(file.path()).mid(0, mostKeys) + QStringList("a");
    for (const QString &key : keys) {
        for (const QLocale &locale : { QLocale("en_US"), QLocale("de_DE"), QLocale::c() }) {
            if (!load(index, key, file.path(), locale))
                continue;
            require(parsed.mayServe(keyNumber(key), locale), "parsing denies nothing that loads");
            require(!found || found->mayServe(keyNumber(key), locale),
                "searching denies nothing that loads");
        }
    }
}
