// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

/// A style of tooltips without the usual patience, for QApplication::setStyle().
class QuickToolTips : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *result) const override
    {
        constexpr int wakeUpDelay = 100; // ms
        return hint == SH_ToolTip_WakeUpDelay
            ? wakeUpDelay
            : QProxyStyle::styleHint(hint, option, widget, result);
    }
};
