// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryFile.h"
#include "index/HRIndex.h"
#include "support/Promises.h"

using namespace Hintreels;

void fuzzKeyData(const QByteArray &input)
{
    const MemoryFile file(input);
    HRContext context;
    context.set(keyDataFileKey, file.path());
    HRIndex index(&context, {});
    for (const char *key : { "", "a", "pen" }) {
        HRXmlElement entry;
        entry.setAttribute("name", "its own");
        index.loadKeyData(key, QString(), &entry);
        require(entry.attribute("name") == "its own", "key data leaves the name alone");
    }
}
