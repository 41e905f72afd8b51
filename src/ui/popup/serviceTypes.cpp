// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/serviceTypes_p.h"

#include "ui/popup/HRView.h"
#include "ui/reader/HRContentReader_p.h"

#include <QtQml>

namespace Hintreels {

namespace {

template <typename T>
void registerService(const char *name)
{
    qmlRegisterUncreatableType<T>("com.zentora.hintreels.qml", 1, 1, name,
        QStringLiteral("The popup around the scene brings it along."));
}

bool registerAllServices()
{
    registerService<HRView>("HRView");
    registerService<HRContentReader>("HRContentReader");
    return true;
}

} // namespace

void registerServiceTypes()
{
    static const bool registered = registerAllServices();
    Q_UNUSED(registered)
}

} // namespace Hintreels
