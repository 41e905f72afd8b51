// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Measuring.h"

#include "PackageTree.h"
#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRIndex.h"
#include "manager/HRPackageScanner_p.h"

#include <QLocale>

using namespace Hintreels;

void expect(bool answer, bool expected)
{
    if (answer != expected)
        qFatal("the index answers wrongly");
}

bool find(HRIndex &index, const QString &key, const QString &locale)
{
    QString directory;
    int depth = 0;
    HRXmlElement *root = nullptr;
    if (!index.retrieve(key, QLocale(locale), directory, depth, root))
        return false;
    delete root;
    return true;
}

void scan(HRIndex &index, const PackageTree &tree)
{
    static const HRContext context;
    HRPackageScanner(context, index, [](const QString &) {}).scanDataPaths({ tree.path() });
}
