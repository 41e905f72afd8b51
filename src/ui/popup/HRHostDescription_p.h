// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

namespace Hintreels {

/// Lends a widget of the host's an accessible description for a while.
///
/// What the host itself sets meanwhile stays. GUI thread only.
class HRHostDescription
{
public:
    HRHostDescription() = default;
    ~HRHostDescription() { restore(); }

    /// Describes a widget, and none that was described before. Null describes none.
    void describe(QWidget *widget, const QString &description);

    /// Gives the widget its own description back.
    void restore();

private:
    Q_DISABLE_COPY(HRHostDescription)

    QPointer<QWidget> m_widget;
    QString m_own;
    QString m_lent;
};

} // namespace Hintreels
