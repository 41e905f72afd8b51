// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRContentTree_p.h"

#include "content/HRXmlElement.h"

namespace Hintreels {

namespace {

bool isRootOfOne(const HRXmlElement *element)
{
    return element && element->getTagName() == QLatin1String("hintreels")
        && element->children().size() == 1;
}

} // namespace

void deleteContentTree(HRXmlElement *content)
{
    if (!content)
        return;
    auto *root = qobject_cast<HRXmlElement *>(content->parent());
    delete (isRootOfOne(root) ? root : content);
}

} // namespace Hintreels
