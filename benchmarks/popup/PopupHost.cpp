// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/PopupHost.h"

#include "Measuring.h"
#include "context/HRContext.h"
#include "manager/HRManager.h"
#include "ui/popup/HRWidget.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QHelpEvent>

using namespace Hintreels;

PopupHost::PopupHost()
    : m_tool(&m_window)
{
    m_window.setGeometry(20, 20, 200, 200);
    m_tool.setGeometry(0, 0, 100, 100);
    for (int number = 0; number < contentCount; ++number)
        m_contents.emplace_back(number);
    writePackage();
    HRContext context;
    context.set(applicationFilterKey, true);
    context.set(hideAnimationDurationKey, 0);
    m_interface = std::make_unique<HRInterface>(
        context, QStringList{ HINTREELS_PACKAGES, m_dataPath.path() });
    m_window.show();
}

void PopupHost::takePointer() const
{
    QCursor::setPos(m_tool.mapToGlobal(m_tool.rect().center()));
}

void PopupHost::hoverNext()
{
    m_current = (m_current + 1) % contentCount;
    m_tool.setObjectName(m_contents[size_t(m_current)].key());
    const QPoint middle = m_tool.rect().center();
    QHelpEvent hover(QEvent::ToolTip, middle, m_tool.mapToGlobal(middle));
    QCoreApplication::sendEvent(&m_tool, &hover);
}

const PopupContent &PopupHost::current() const
{
    return m_contents[size_t(m_current)];
}

HRWidget *PopupHost::popup() const
{
    return m_interface->manager()->widget();
}

void PopupHost::writePackage() const
{
    QDir(m_dataPath.path()).mkpath("Tools.hintreels/Control");
    QFile file(m_dataPath.filePath("Tools.hintreels/Control/en_US.xml"));
    if (!file.open(QIODevice::WriteOnly))
        cannotMeasure("cannot write the package");
    file.write("<hintreels locale='en_US' search='Standard'>\n");
    for (const PopupContent &content : m_contents)
        file.write(content.xml());
    file.write("</hintreels>\n");
}
