// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QToolButton>

namespace Sketchpad {

/// Shows a colour, and lets the user choose another one.
class ColorButton : public QToolButton
{
    Q_OBJECT

public:
    /// @param title of the dialog
    ColorButton(const QString &title, const QColor &color, QWidget *parent = nullptr);

    void setColor(const QColor &color);

Q_SIGNALS:
    void colorChanged(const QColor &color);

private:
    void choose();

    const QString m_title;
    QColor m_color;
};

} // namespace Sketchpad
