// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

struct HRViewPrivate;

/// Loads the user interface that a view's content names. With the setting requireUiKey it tells
/// where there is none, or a broken one, and the content is not shown.
///
/// Any message may make the host delete the view. GUI thread only.
class HRRequiredUi
{
public:
    /// @param view must outlive this
    explicit HRRequiredUi(HRViewPrivate &view);

    /// @return false where the content cannot be shown
    bool load();

    /// Whether the scene's file turned out to be broken, so that nothing can be shown.
    bool isBroken() const;

    /// To be called for a scene whose file is broken, before its errors are told.
    void tellBroken(const QString &path);

private:
    bool isRequired() const;
    void tellMissing(const QString &name);
    void tell(const QString &message);
    bool hasScene(const QString &path) const;

    HRViewPrivate &m_view;
    QString m_told; // the last message; the same is not told twice before another UI was loaded
};

} // namespace Hintreels
