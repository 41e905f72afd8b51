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
    // The first version of the controls opens files and dialogs.
    const bool isControls = major >= 2 && isWithin(module, QStringLiteral("QtQuick.Controls"));
    return isControls || singleModules.contains(module) || isWithinAny(module, wholeModules)
        || isWithinAny(module, furtherModules);
}

} // namespace Hintreels
