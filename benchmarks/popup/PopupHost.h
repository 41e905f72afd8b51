// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "interface/HRInterface.h"
#include "popup/PopupContent.h"

#include <QTemporaryDir>
#include <QWidget>

#include <memory>
#include <vector>

namespace Hintreels {
class HRWidget;
}

/// A host application: a window with a tool under the pointer, and the library with content for it.
///
/// The tool changes its key with each hover, so that the pointer need not move.
class PopupHost
{
public:
    static constexpr int contentCount = 20;

    PopupHost();

    /// Moves the pointer onto the tool.
    void takePointer() const;

    /// Tells the tool that the pointer has come to rest on it.
    void hoverNext();

    const PopupContent &current() const;
    Hintreels::HRWidget *popup() const;

private:
    void writePackage() const;

    QTemporaryDir m_dataPath;
    QWidget m_window;
    std::vector<PopupContent> m_contents;
    QWidget m_tool;
    std::unique_ptr<Hintreels::HRInterface> m_interface;
    int m_current = -1;
};
