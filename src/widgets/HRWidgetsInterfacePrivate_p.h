// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/HRKeyHints_p.h"
#include "widgets/HRLongPress_p.h"
#include "widgets/HRRestWatch_p.h"
#include "widgets/HRWidgetsInterface.h"
#include "widgets/parts/HRPart_p.h"

#include <optional>

namespace Hintreels {

/// Follows the application's events for an interface, in place of the manager.
///
/// The interface may be deleted while a piece is at work, so whoever calls the host back shares
/// this.
struct HRWidgetsInterfacePrivate : public QObject
{
    explicit HRWidgetsInterfacePrivate(HRWidgetsInterface *interface);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Makes an object of the interface's own, as the value of readerSettingsKey.
    QVariant makeReaderSettings();

    /// The shortcut of what an object, or the hovered part of it, does; empty where the key is not
    /// that of the part.
    QString shortcut(const QString &key, QObject *object) const;

private:
    using FindPart = std::function<HRPart(QWidget *widget)>;

    bool showToolTip(QWidget *widget, const QPoint &position);
    bool show(const HRPart &part, const QPoint &position);
    bool showWithoutPointer(const HRPart &part, const QPoint &position);
    bool showForFinger(QWidget *widget, const QPoint &position);
    std::optional<HRPart> partOf(QWidget *widget, const FindPart &find) const;
    bool isHostsOwn(const QString &key, QObject *object) const;

    bool showsOnHover() const;

    HRWidgetsInterface *q;
    HRRestWatch m_rest;
    std::optional<HRPart> m_hovered; // while its hint is looked for
    HRKeyHints m_keyHints;
    HRLongPress m_longPress;
};

} // namespace Hintreels
