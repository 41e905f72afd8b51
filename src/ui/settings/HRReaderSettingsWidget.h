// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"
#include "reader/HRReaderSettings.h"

#include <QGroupBox>

#include <memory>

namespace Hintreels {

struct HRReaderSettingsWidgetPrivate;

/// A group box for a host's preferences, in which readers decide about hints.
///
/// What they choose counts at once, and what is decided elsewhere is shown. It speaks the language
/// of its locale() as far as the standard UI does; every control has a mnemonic, and a label that
/// screen readers find. GUI thread only.
class HINTREELS_EXPORT HRReaderSettingsWidget : public QGroupBox
{
    Q_OBJECT

public:
    /// @param settings not owned; where it is null or goes, the box is disabled
    explicit HRReaderSettingsWidget(HRReaderSettings *settings, QWidget *parent = nullptr);
    ~HRReaderSettingsWidget() override;

protected:
    /// Follows the language.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<HRReaderSettingsWidgetPrivate> d;
};

} // namespace Hintreels
