// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/qmlTypes_p.h"

#include "content/HRXmlElement.h"
#include "ui/items/HRScrollBarComponent.h"
#include "ui/items/HRStyledRectangleComponent.h"
#include "video/HRClipStill_p.h"

#include <QtQml>

namespace Hintreels {

namespace {

template <typename T>
void registerType(const char *name, int minor = 0)
{
    qmlRegisterType<T>("com.zentora.hintreels.qml", 1, minor, name);
}

bool registerAllTypes()
{
    registerType<HRVideoComponent>("HRVideoComponent");
    registerType<HRXmlElement>("HRXmlElement");
    registerType<HRStyledRectangleComponent>("HRStyledRectangle");
    registerType<HRScrollBarComponent>("HRScrollBar");
    registerType<HRClipStill>("HRClipStill", 1);
    return true;
}

} // namespace

void registerQmlTypes()
{
    static const bool registered = registerAllTypes();
    Q_UNUSED(registered)
}

} // namespace Hintreels
