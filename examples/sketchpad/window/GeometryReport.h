// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace Sketchpad {

/// Keeps a file up to date that says where the named widgets of the open windows are on the screen,
/// so that a script can move the pointer to them.
///
/// Each line holds an object name, the x and y of the upper left corner in global coordinates, the
/// width and the height, with blanks between. A tool button goes by the name of its action, the
/// entry of an open menu by that name behind `menu/`.
class GeometryReport : public QObject
{
    Q_OBJECT

public:
    explicit GeometryReport(const QString &path);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void write() const;

    const QString m_path;
    QTimer m_settled;
};

} // namespace Sketchpad
