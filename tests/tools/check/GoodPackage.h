// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestPackage.h"

#include <QByteArray>
#include <QString>

/// A data path with the package `Painter`, in which no rule finds anything: each test makes another
/// mistake in it. Its English file has the lines of goodControlFile().
class GoodPackage
{
public:
    GoodPackage();

    QString path() const { return m_packages.path(); }
    QString package() const { return path() + "/Painter.hintreels"; }
    QString english() const { return package() + "/Control/en_US.xml"; }

    /// Writes a file, by its path below the package.
    void write(const QString &path, const QByteArray &content) const;

    /// Mends the English file; fails the test program where the text is not in there once.
    void replace(const QByteArray &text, const QByteArray &by) const;

private:
    TestPackages m_packages;
};

QByteArray goodControlFile();
