// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/qmlTypes_p.h"

#include "content/HRXmlElement.h"
#include "ui/items/HRScrollBarComponent.h"
#include "ui/items/HRStyledRectangleComponent.h"
#include "video/HRVideoComponent.h"

#include <QtQml>

namespace Hintreels {

namespace {

template <typename T>
void registerType(const char *name)
{
    qmlRegisterType<T>("com.zentora.hintreels.qml", 1, 0, name);
}

bool registerAllTypes()
{
    registerType<HRVideoComponent>("HRVideoComponent");
    registerType<HRXmlElement>("HRXmlElement");
    registerType<HRStyledRectangleComponent>("HRStyledRectangle");
    registerType<HRScrollBarComponent>("HRScrollBar");
    return true;
}

} // namespace

void registerQmlTypes()
{
    static const bool registered = registerAllTypes();
    Q_UNUSED(registered)
}

} // namespace Hintreels
