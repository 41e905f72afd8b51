// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/contentTree_p.h"

#include "content/HRXmlElement.h"

namespace Hintreels {

namespace {

bool isRootOfOne(const HRXmlElement *element)
{
    return element && element->getTagName() == QLatin1String("hintreels")
        && element->children().size() == 1;
}

} // namespace

QObject *contentTreeOf(HRXmlElement *content)
{
    auto *root = content ? qobject_cast<HRXmlElement *>(content->parent()) : nullptr;
    return isRootOfOne(root) ? root : content;
}

void deleteContentTree(HRXmlElement *content)
{
    delete contentTreeOf(content);
}

} // namespace Hintreels
