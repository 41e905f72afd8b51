// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"

#include <QPointer>

namespace Hintreels {

/// Owns content: the entry that is shown, and the tree that it was read in.
///
/// In the end the root goes, and the tree with it; where no root is known, or the entry has left
/// it, the entry goes alone. Others may delete the entry before: then nothing else goes, since who
/// deletes an entry alone keeps its root. GUI thread only.
class HRContent
{
public:
    /// Nothing.
    HRContent() = default;

    /// @param root the entry's parent that was made for it; null for none
    HRContent(HRXmlElement *entry, QObject *root);

    /// Content that comes without a word on its root: that is a parent `hintreels` without other
    /// children. A parent of another kind stays with whoever made it.
    static HRContent of(HRXmlElement *entry);

    HRContent(HRContent &&other) noexcept;
    HRContent &operator=(HRContent &&other) noexcept;
    ~HRContent();

    /// Null for nothing, and once somebody has deleted it.
    HRXmlElement *entry() const { return m_entry; }

    /// Leaves the entry and its tree to the caller.
    HRXmlElement *release();

    /// Leaves both to the event loop, which frees them.
    void freeLater();

private:
    QObject *tree() const;

    QPointer<HRXmlElement> m_entry;
    QPointer<QObject> m_root;
};

} // namespace Hintreels
