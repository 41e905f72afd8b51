// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

class HRXmlElement;

/// Deletes content that nobody shows any more, with the `hintreels` root that was read for it.
///
/// A parent of another kind, or with other children, stays. Null does nothing.
void deleteContentTree(HRXmlElement *content);

} // namespace Hintreels
