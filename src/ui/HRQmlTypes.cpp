// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRQmlTypes_p.h"

#include "content/HRXmlElement.h"
#include "ui/HRScrollBarComponent.h"
#include "ui/HRStyledRectangleComponent.h"
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
