// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>

#include <memory>

namespace Hintreels {

struct HRStyledRectangleComponentPrivate;

/// A QML item filled with the platform's window or tool-tip colour: `HRStyledRectangle`.
class HINTREELS_EXPORT HRStyledRectangleComponent : public QQuickPaintedItem
{
    Q_OBJECT
    ///@{
    /// What QML reads and writes; the operations behind it say more.
    Q_PROPERTY(QString element READ element WRITE setElement NOTIFY elementChanged)
    Q_PROPERTY(QColor textColor READ textColor NOTIFY textColorChanged)
    Q_PROPERTY(bool toolTipStyle READ toolTipStyle WRITE setToolTipStyle NOTIFY toolTipStyleChanged)
    ///@}

public:
    /// Makes a rectangle in the colour of windows.
    explicit HRStyledRectangleComponent(QQuickPaintedItem *parent = nullptr);
    ~HRStyledRectangleComponent() override;

    /// Name of the style's primitive, "PE_Widget" or "PE_Frame". It does not change what is
    /// painted.
    QString element() const;

    /// Other names than the two are ignored.
    void setElement(const QString &element);

    /// What text on the rectangle should be painted with.
    QColor textColor() const;

    /// Whether the rectangle has the colour of tool tips instead of that of windows.
    bool toolTipStyle() const;

    /// Emits toolTipStyleChanged() and textColorChanged(), also for the same value.
    void setToolTipStyle(bool toolTipStyle);

    /// Fills the item.
    void paint(QPainter *painter) override;

Q_SIGNALS:
    ///@{
    /// The property of its name was set, or has changed.
    void elementChanged();
    void textColorChanged();
    void toolTipStyleChanged();
    ///@}

private:
    void followPalette();

    std::unique_ptr<HRStyledRectangleComponentPrivate> d;
};

} // namespace Hintreels
