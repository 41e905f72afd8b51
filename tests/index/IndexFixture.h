// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRIndex.h"
#include "support/TestPackage.h"

#include <QLocale>
#include <QString>

#include <memory>

/// An index over packages in a temporary directory.
struct IndexFixture
{
    TestPackages packages;
    HRContext context;
    Hintreels::HRIndex index{ &context, {} };
    QString directory;
    int depth = -1;
    Hintreels::HRXmlElement *root = nullptr;

    QString add(const QString &package, const QString &name, const QByteArray &entries,
        const QByteArray &rootAttributes = {})
    {
        const QString file = packages.writeControl(package, name, entries, rootAttributes);
        index.indexControlFile(file, packagePath(package));
        return file;
    }

    QString packagePath(const QString &package) const
    {
        return packages.path() + '/' + package + ".hintreels";
    }

    /// The root of the found entry, which owns it.
    std::unique_ptr<Hintreels::HRXmlElement> find(
        const QString &key, const QString &locale = "en_US")
    {
        Hintreels::HRXmlElement *entry
            = index.retrieve(key, QLocale(locale), directory, depth, root);
        return std::unique_ptr<Hintreels::HRXmlElement>(entry ? root : nullptr);
    }

    /// Attribute "n" of the found entry, by which tests tell entries apart.
    QString found(const QString &key, const QString &locale = "en_US")
    {
        const auto tree = find(key, locale);
        return tree ? tree->childElement("hintreel")->attribute("n") : QString();
    }
};
