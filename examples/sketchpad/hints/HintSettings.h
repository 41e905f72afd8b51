// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Hintreels/HRReaderSettings>

#include <QDialog>

namespace Sketchpad {

/// The preferences: what the reader wants of hints, and a button whose hint shows it.
class HintSettings : public QDialog
{
    Q_OBJECT

public:
    /// @param locale whose language the hints speak
    HintSettings(
        Hintreels::HRReaderSettings *settings, const QString &locale, QWidget *parent = nullptr);
};

} // namespace Sketchpad
