// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "fuzz/FuzzTarget.h"
#include "index/HRIndex.h"
#include "interface/HRInterface.h"
#include "manager/HRExternalResource_p.h"
#include "manager/HRManager.h"
#include "support/Promises.h"
#include "support/TestPackage.h"
#include "ui/HRView.h"
#include "video/HRCaptions_p.h"

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

    TestPackages packages;
    HRContext context;
    std::unique_ptr<HRInterface> interface;
    std::unique_ptr<HRView> view;
};

void resolve(Host &host, const QString &path)
{
    const QString found = host.view->findResource(path);
    const QString base = host.view->categoryPath("resources", "Resources", resourceDirectoryKey);
    require(found == base || QFileInfo::exists(found), "what is found exists");
    host.view->uiRootFilePath();
    host.view->resourceDirectoryPath();
    externalResourceType(path);
    captionFiles(path, { QLocale("de_DE") });
    host.interface->manager()->index()->packageNameForLocation(host.packages.path() + '/' + path);
}

} // namespace

// Lines: the path, then the attributes "search", "HRPackagName", "resources", "ui" and "resource".
void fuzzPathAttributes(const QByteArray &input)
{
    static Host host;
    const QStringList lines = QString::fromUtf8(input.left(4000)).split('\n');
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
