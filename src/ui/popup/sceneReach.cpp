// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/sceneReach_p.h"

#include "content/HRXmlElement.h"
#include "context/setting_p.h"
#include "index/HRIndex.h"
#include "ui/reader/standardUiResource_p.h"

#include <QDir>
#include <QFileInfo>
#include <QQmlEngine>

namespace Hintreels {

namespace {

constexpr int usualScriptLimit = 2000; // ms

/// The package that a file lies in, or its directory where it lies in none.
QString directoryAround(const QString &file, const QString &suffix)
{
    const QFileInfo info(QFileInfo(file).canonicalFilePath());
    for (QDir directory = info.dir(); !directory.isRoot();
         directory = QFileInfo(directory.path()).dir()) {
        if (QFileInfo(directory.path()).suffix() == suffix)
            return directory.path();
    }
    return info.path();
}

/// The QML files that the host itself has named by their whole path.
QStringList filesNamedByHost(const HRContext &context)
{
    QStringList files;
    for (const contextKey key : { uiFileKey, simpleUiFileKey }) {
        const QString file = setting(context, key, QString());
        if (QFileInfo(file).isAbsolute())
            files.append(file);
    }
    return files;
}

} // namespace

HRReach reachOfScene(const HRContext &context, const HRIndex &index, const HRXmlElement *content,
    const QString &qmlFile, const QQmlEngine &engine)
{
    HRReach reach;
    reach.rules = packageRules(context);
    if (!reach.rules.ownFilesOnly)
        return reach;
    if (content)
        reach.packages = index.componentPathsForElement(content, QString());
    const QString suffix = setting(context, packageSuffixKey, QStringLiteral("hintreels"));
    QStringList qmlFiles = filesNamedByHost(context);
    if (!qmlFile.isEmpty())
        qmlFiles.append(qmlFile);
    for (const QString &file : qAsConst(qmlFiles))
        reach.packages += directoryAround(file, suffix);
    reach.importPaths = engine.importPathList();
    return reach;
}

bool mayBecomeScene(const QUrl &source, const HRReach &reach)
{
    if (!reach.rules.ownFilesOnly || source.isEmpty())
        return true;
    if (reach.rules.fromStrangers)
        return source.toString().startsWith(
            QLatin1String("qrc") + standardUiResource(QStringLiteral("ui/")));
    return source.scheme() == QLatin1String("qrc")
        || isInside(source.toLocalFile(), reach.packages);
}

QString builtInUi(bool simple)
{
    return standardUiResource(
        simple ? QStringLiteral("ui/SimpleTooltip.qml") : QStringLiteral("ui/HintreelUI.qml"));
}

QUrl urlOfFile(const QString &path)
{
    return path.startsWith(QLatin1String(":/")) ? QUrl(QStringLiteral("qrc") + path)
                                                : QUrl::fromLocalFile(path);
}

int scriptLimit(const HRContext *settings)
{
    return settings ? setting(*settings, scriptLimitKey, usualScriptLimit) : usualScriptLimit;
}

} // namespace Hintreels
