// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "fuzz/FuzzTarget.h"
#include "gates/HRFileUse_p.h"
#include "index/HRIndex.h"
#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "manager/externalResource_p.h"
#include "support/Promises.h"
#include "support/TestPackage.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "video/captions_p.h"

#include <QFileInfo>

#include <memory>

using namespace Hintreels;

namespace {

/// A host with two packages, made once: a view takes its time.
struct Host
{
    Host()
    {
        packages.write("A.hintreels/Resources/a.png", "picture");
        packages.write("A.hintreels/ui/HintreelUI.qml", "");
        packages.write("B.hintreels/Resources/b.png", "picture");
        packages.writeControl("A", "a.xml", "<hintreel key='a'/>");
        packages.writeControl("B", "b.xml", "<hintreel key='b'/>");
        interface = std::make_unique<HRInterface>(context, QStringList{ packages.path() });
        view = std::make_unique<HRView>(interface->manager(), nullptr);
    }

    void keepToOwnFiles(bool keep)
    {
        ownFilesOnly = keep;
        interface->context().set(ownFilesOnlyKey, keep);
    }

    bool ownFilesOnly = false;
    TestPackages packages;
    HRContext context;
    std::unique_ptr<HRInterface> interface;
    std::unique_ptr<HRView> view;
};

bool liesInPackages(const Host &host, const QString &path)
{
    return QFileInfo(path).canonicalFilePath().startsWith(host.packages.path() + '/');
}

void requireOwn(const Host &host, const QString &path)
{
    if (QFileInfo::exists(path)
        && HRViewPrivate::of(*host.view).mayOpen("resources", path, HRFileUse::any))
        require(!host.ownFilesOnly || liesInPackages(host, path), "own files only");
}

void requireFound(const Host &host, const QString &found)
{
    const QString base = host.view->categoryPath("resources", "Resources", resourceDirectoryKey);
    const bool refused = host.ownFilesOnly && found.isEmpty();
    require(refused || found == base || QFileInfo::exists(found), "what is found exists");
    requireOwn(host, found);
}

void resolve(Host &host, const QString &path)
{
    requireFound(host, host.view->findResource(path));
    requireOwn(host, path);
    requireOwn(host, host.view->uiRootFilePath());
    host.view->resourceDirectoryPath();
    externalResourceType(path);
    captionFiles(path, { QLocale("de_DE") });
    host.interface->manager()->index()->packageNameForLocation(host.packages.path() + '/' + path);
}

void resolveInContent(Host &host, const QStringList &lines)
{
    HRXmlElement root;
    root.setAttribute("search", lines.value(1));
    auto *entry = new HRXmlElement(&root);
    entry->setAttribute("HRPackagName", lines.value(2, "A"));
    const QStringList names{ "resources", "ui", "resource" };
    for (int i = 0; i < names.size() && i + 3 < lines.size(); ++i)
        entry->setAttribute(names.at(i), lines.at(i + 3));

    const HRIndex &index = *host.interface->manager()->index();
    const int directories = index.componentPathsForElement(entry, QString()).size();
    require(index.componentPathsForElement(entry, lines.first()).size() == directories,
        "each directory gives one candidate");
    host.view->setContent(entry);
    resolve(host, lines.first());
    host.view->setContent(nullptr);
}

} // namespace

// Lines: the path, then the attributes "search", "HRPackagName", "resources", "ui" and "resource".
void fuzzPathAttributes(const QByteArray &input)
{
    static Host host;
    const QStringList lines = QString::fromUtf8(input.left(4000)).split('\n');
    for (const bool ownFilesOnly : { false, true }) {
        host.keepToOwnFiles(ownFilesOnly);
        resolveInContent(host, lines);
    }
}
