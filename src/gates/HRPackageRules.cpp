// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRPackageRules_p.h"

#include "context/setting_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

// Those parts of QtQml and QtQuick that neither write, nor reach the network, nor list files.
const QStringList singleModules{
    QStringLiteral("QtQml"),
    QStringLiteral("QtQml.Models"),
    QStringLiteral("QtQml.WorkerScript"),
    QStringLiteral("QtQuick"),
};

// With the modules inside them, such as the styles of the controls.
const QStringList wholeModules{
    QStringLiteral("QtQuick.Window"),
    QStringLiteral("QtQuick.Layouts"),
    QStringLiteral("QtQuick.Templates"),
    QStringLiteral("QtQuick.Shapes"),
    QStringLiteral("QtGraphicalEffects"),
    QStringLiteral("Qt5Compat.GraphicalEffects"),
    QStringLiteral("com.zentora.hintreels.qml"),
};

bool isWithin(const QString &module, const QString &whole)
{
    return module == whole || module.startsWith(whole + u'.');
}

bool isWithinAny(const QString &module, const QStringList &wholes)
{
    return std::any_of(wholes.begin(), wholes.end(),
        [&module](const QString &whole) { return isWithin(module, whole); });
}

// The first version of the controls opens files and dialogs. Without a version it is the second one
// in Qt 6, which has no other, and in Qt 5 the directory of the first.
bool isControls(const QString &module, int major)
{
    constexpr bool needsNoVersion = QT_VERSION_MAJOR >= 6;
    const bool isSecond = major >= 2 || (needsNoVersion && major == 0);
    return isSecond && isWithin(module, QStringLiteral("QtQuick.Controls"));
}

} // namespace

HRPackageRules packageRules(const HRContext &context)
{
    HRPackageRules rules;
    rules.fromStrangers = setting(context, strangersKey, false);
    rules.ownFilesOnly = rules.fromStrangers || setting(context, ownFilesOnlyKey, false);
    rules.network = !rules.fromStrangers && setting(context, allowNetworkKey, false);
    rules.modules = setting(context, qmlModulesKey, QStringList());
    return rules;
}

bool isModuleAllowed(const QString &module, int major, const QStringList &furtherModules)
{
    return isControls(module, major) || singleModules.contains(module)
        || isWithinAny(module, wholeModules) || isWithinAny(module, furtherModules);
}

} // namespace Hintreels
