// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "popup/BareView.h"
#include "popup/Painting.h"
#include "popup/PopupHost.h"
#include "ui/popup/HRView.h"

/// The library's popup, and the two that it is held against, each shown and painted once.
///
/// Every operation brings new content and tells the seconds from the request until it is painted.
/// Only one of the three is on the screen at a time.
class Popups
{
public:
    /// What is on the screen before the new content comes.
    enum class Before
    {
        nothing,
        otherContent
    };

    Popups();

    double hover(Before before);
    double bareView(Before before);
    double toolTip(Before before);

private:
    void hideAll();
    double hoverNext();
    double showBareView();
    double showToolTip();

    PopupHost m_host;
    Hintreels::HRView m_services{ nullptr, nullptr };
    BareView m_bareView{ m_services };
    int m_number = 0;
};

/// How long the first popup of a program takes; there can be only one in each.
double firstHover();
double firstBareView();
