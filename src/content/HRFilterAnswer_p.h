// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// What a filter answers for an element, as HRXmlParser describes it; a sum of these.
enum HRFilterAnswer : int
{
    askForChildren = 1, ///< makes an object of the element, too
    takeAll = 2, ///< the element and all below it
    dropElement = 4,
    dropChildren = 8,
    dropAll = dropElement | dropChildren
};

} // namespace Hintreels
