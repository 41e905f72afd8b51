// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "reader/HRReaderSettings.h"

#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

/// A reader who has decided nothing yet, and whose decisions go into a folder of their own.
struct TestReader
{
    /// As the value of readerSettingsKey.
    QVariant asValue()
    {
        return QVariant::fromValue(QPointer<Hintreels::HRReaderSettings>(&settings));
    }

    std::unique_ptr<QSettings> store() const
    {
        return std::make_unique<QSettings>(directory.filePath("host.ini"), QSettings::IniFormat);
    }

    QTemporaryDir directory;
    Hintreels::HRReaderSettings settings{ store() };
};
