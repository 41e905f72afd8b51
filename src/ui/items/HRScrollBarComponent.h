// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QQuickPaintedItem>

#include <memory>

struct HRScrollBarComponentPrivate;

/// A QML item that drives a native scroll bar: `HRScrollBar`.
///
/// Range and position are fractions, kept by the bar as whole hundredths: 0.999 becomes 0.99. The
/// bar is a window of its own, which the item neither moves nor deletes; it lives until the
/// application ends. A UI that wants a bar inside the popup draws one in QML.
///
/// A new bar has the range 0 to 0.99 and, like every QScrollBar, keeps its position inside it.
class HINTREELS_EXPORT HRScrollBarComponent : public QQuickPaintedItem
{
    Q_OBJECT
    ///@{
    /// What QML reads and writes; the operations behind it say more.
    Q_PROPERTY(float start READ start WRITE setStart NOTIFY startChanged)
    Q_PROPERTY(float end READ end WRITE setEnd NOTIFY endChanged)
    Q_PROPERTY(float position READ position WRITE setPosition NOTIFY positionChanged)
    Q_PROPERTY(bool orientHorizontal READ orientHorizontal WRITE setOrientHorizontal NOTIFY
            orientHorizontalChanged)
    Q_PROPERTY(float scrollBarWidth READ scrollBarWidth NOTIFY scrollBarWidthChanged)
    ///@}

public:
    /// Makes the bar as well, hidden.
    explicit HRScrollBarComponent(QQuickPaintedItem *parent = nullptr);
    ~HRScrollBarComponent() override;

    ///@{
    /// Where the bar's range begins.
    float start() const;
    void setStart(float start);
    ///@}

    ///@{
    /// Where the bar's range ends.
    float end() const;
    void setEnd(float end);
    ///@}

    ///@{
    /// Where the bar stands.
    float position() const;
    void setPosition(float position);
    ///@}

    ///@{
    /// Whether the bar lies; a new one stands.
    bool orientHorizontal() const;
    void setOrientHorizontal(bool horizontal);
    ///@}

    /// The bar's thickness in pixels.
    float scrollBarWidth() const;

    /// Paints nothing: the bar is no part of the item.
    void paint(QPainter *painter) override;

Q_SIGNALS:
    ///@{
    /// The property of its name was set, or has changed.
    void startChanged();
    void endChanged();
    void positionChanged();
    void orientHorizontalChanged();
    void scrollBarWidthChanged();
    ///@}

public Q_SLOTS:
    /// Takes over where the bar was moved to, in hundredths.
    void scrollBarPositionChanged(int value);

public:
    /// Gives the bar the item's size.
    Q_INVOKABLE void updateDimensions();

    /// Moves the bar; positionChanged() follows later, and only where the position changed.
    Q_INVOKABLE void setPositionExternal(float value);

protected:
    /// Shows, hides and fades the bar with the item.
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    std::unique_ptr<HRScrollBarComponentPrivate> d;
};
