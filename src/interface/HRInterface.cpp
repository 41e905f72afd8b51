// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "interface/HRInterface.h"

#include "interface/standardPackages_p.h"
#include "manager/HRManager.h"

#include <QDebug>
#include <QDesktopServices>
#include <QUrl>

namespace Hintreels {

struct HRInterfacePrivate
{
    std::unique_ptr<HRManager> manager;
};

namespace {

QString messageLabel(HRMessageType type)
{
    switch (type) {
    case messageError:
        return QStringLiteral("ERROR");
    case messageWarning:
        return QStringLiteral("Warning");
    case messageInformation:
        return QStringLiteral("Information");
    case messageDebug:
        return QStringLiteral("DEBUG");
    }
    return QString::number(type);
}

} // namespace

HRInterface::HRInterface(HRContext &context, const QStringList &dataPaths, HRIndex *index)
    : d(std::make_unique<HRInterfacePrivate>())
{
    d->manager = std::make_unique<HRManager>(this, context, dataPaths, index);
}

HRInterface::~HRInterface() = default;

QString HRInterface::standardPackages()
{
    return packagesOf(libraryFile());
}

QWidget *HRInterface::createWindow(HRWindowType)
{
    return nullptr;
}

QString HRInterface::keyForObject(QObject *object)
{
    return object ? object->objectName() : QString();
}

bool HRInterface::openExternalResource(HRExternalResourceType type, const QString &resource)
{
    return type == resourceUrl && QDesktopServices::openUrl(QUrl(resource));
}

void HRInterface::handleMessage(HRMessageType type, const QString &message)
{
    qDebug().noquote() << messageLabel(type) + u':' + message;
}

QString HRInterface::translateString(const QString &text, const QString &context)
{
    return d->manager->translateString(text, context);
}

QString HRInterface::shortCutForObject(const QString &, QObject *, const QString &shortcut)
{
    return shortcut;
}

bool HRInterface::show(const QString &key, const QPoint &globalPos, QObject *object)
{
    return d->manager->show(key, globalPos, object);
}

QStringList HRInterface::keys()
{
    return d->manager->keys();
}

HRContext &HRInterface::context()
{
    return d->manager->context();
}

const HRContext &HRInterface::context() const
{
    return d->manager->context();
}

QString HRInterface::hintreelAttribute(
    const QString &key, const QString &attribute, const QString &defaultValue)
{
    return d->manager->hintreelAttribute(key, attribute, defaultValue);
}

void HRInterface::setGlobalProperty(const QString &name, const QVariant &value)
{
    d->manager->setGlobalProperty(name, value);
}

bool HRInterface::mouseMoveEventFilter(QObject *watched, QMouseEvent *event)
{
    return d->manager->mouseMoveEventFilter(watched, event);
}

bool HRInterface::mouseButtonEventFilter(QObject *watched, QMouseEvent *event)
{
    return d->manager->mouseButtonEventFilter(watched, event);
}

HRManager *HRInterface::manager() const
{
    return d->manager.get();
}

} // namespace Hintreels
