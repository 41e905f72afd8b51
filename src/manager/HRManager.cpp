// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"

#include "content/HRXmlElement.h"
#include "context/printable_p.h"
#include "context/setting_p.h"
#include "gates/HRPackageRules_p.h"
#include "index/HRIndex.h"
#include "interface/HRInterface.h"
#include "manager/HRManagerPrivate_p.h"
#include "manager/externalResource_p.h"
#include "manager/interpolation_p.h"
#include "manager/scaledSize_p.h"
#include "ui/items/qmlTypes_p.h"
#include "ui/popup/HRView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

namespace Hintreels {

namespace {

void setAlwaysShowToolTips(bool on)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets)
        widget->setAttribute(Qt::WA_AlwaysShowToolTips, on);
}

} // namespace

HRManager::HRManager(
    HRInterface *interface, HRContext &context, const QStringList &dataPaths, HRIndex *index)
    : d(std::make_shared<HRManagerPrivate>(this, interface, context, dataPaths, index))
{
    d->index->open();
    if (setting(d->context, alwaysShowToolTipsKey, false))
        setAlwaysShowToolTips(true);

    QElapsedTimer timer;
    timer.start();
    loadDataPath(dataPaths);
    handleMessage(messageInformation,
        QStringLiteral("Indexed packages in %1 seconds").arg(double(timer.elapsed()) / 1000.0));

    registerQmlTypes();
    if (qApp && setting(d->context, applicationFilterKey, false)) {
        qApp->installEventFilter(this);
        d->applicationFilterInstalled = true;
    }
    d->scale = float(setting(d->context, scaleKey, 1.0));
}

HRManager::~HRManager()
{
    // A host may keep its interface for longer than its application.
    if (d->applicationFilterInstalled && qApp)
        qApp->removeEventFilter(this);
    setAlwaysShowToolTips(false);
    if (d->presenter.popup())
        d->presenter.popup()->deleteLater();
}

HRContext &HRManager::context()
{
    return d->context;
}

const HRContext &HRManager::context() const
{
    return d->context;
}

HRIndex *HRManager::index() const
{
    return d->index;
}

HRInterface *HRManager::interface() const
{
    return d->interface;
}

HRWidget *HRManager::widget() const
{
    return d->presenter.popup();
}

QStringList HRManager::searchPaths() const
{
    return d->dataPaths;
}

void HRManager::loadDataPath(const QStringList &paths)
{
    const std::shared_ptr<HRManagerPrivate> work = d;
    work->scanner.scanDataPaths(paths);
}

void HRManager::loadPackage(const QFileInfo &package)
{
    const std::shared_ptr<HRManagerPrivate> work = d;
    work->scanner.scanPackage(package);
}

void HRManager::indexControFile(const QString &controlFile, const QString &package)
{
    d->index->indexControlFile(controlFile, package);
}

void HRManager::handleMessage(HRMessageType type, const QString &message)
{
    if (setting(d->context, messageLevelKey, int(messageWarning)) >= int(type))
        d->interface->handleMessage(type, printable(message));
}

QLocale HRManager::currentLocale() const
{
    for (const contextKey key : { localeKey, fallbackLocaleKey }) {
        const QString name = setting(d->context, key, QString());
        if (!name.isEmpty())
            return QLocale(name);
    }
    return QLocale::system();
}

QString HRManager::translateString(const QString &text, const QString &context)
{
    if (!widget() || !widget()->view())
        return text;
    const std::shared_ptr<HRManagerPrivate> work
        = d; // the host may be told of a file that is refused
    const QString baseName
        = setting(d->context, translationBaseNameKey, QStringLiteral("Hintreels"));
    const QString fileName = QStringLiteral("%1_%2.qm").arg(baseName, currentLocale().name());
    const QString path = widget()->view()->findComponent(
        QStringLiteral("l10n_name"), translationDirectoryKey, QStringLiteral("l10n"), fileName);
    return path.isEmpty() ? text : work->translation.translate(path, text, context);
}

HRXmlElement *HRManager::retrieve(
    const QString &key, QString &path, int &depth, HRXmlElement *&root)
{
    const std::shared_ptr<HRManagerPrivate> work = d;
    return work->lookup.retrieve(key, path, depth, root);
}

bool HRManager::show(const QString &key, const QPoint &globalPos, QObject *object)
{
    const std::shared_ptr<HRManagerPrivate> work = d;
    return work->show({ { key }, globalPos, object });
}

QString HRManager::keyForObject(QObject *object)
{
    return d->interface->keyForObject(object);
}

QStringList HRManager::keys()
{
    return d->index->keys();
}

QPoint HRManager::tooltipPosition(const QPoint &globalPos, QWidget *) const
{
    return d->presenter.position(globalPos);
}

void HRManager::initializeTooltipWindow()
{
    d->ensurePopup();
}

bool HRManager::reserve(HRWidget *widget, QWidget *&window)
{
    if (!widget || widget != d->presenter.popup())
        return false;
    const QPointer<HRManager> guarded = this;
    const QPointer<HRWidget> popup = widget;
    window = d->interface->createWindow(reservedPopupWindow);
    if (!guarded || !popup || !popup->view() || popup != d->presenter.popup())
        return false;
    d->reservedPopups.append(widget);
    d->presenter.setPopup(nullptr);
    initializeTooltipWindow();
    return true;
}

void HRManager::raise()
{
    d->reservedPopups.raise();
}

void HRManager::setStayOnTop(bool on)
{
    d->reservedPopups.setStayOnTop(on);
}

bool HRManager::openExternalResource(const QString &resource)
{
    const HRExternalResourceType type = externalResourceType(resource);
    const contextKey permission
        = type == resourceName ? allowNamedResourcesKey : allowUrlResourcesKey;
    if (packageRules(d->context).fromStrangers && !mayStrangersOpen(resource)) {
        handleMessage(messageWarning, QStringLiteral("May not open link \"%1\"").arg(resource));
        return false;
    }
    return setting(d->context, permission, true)
        && d->interface->openExternalResource(type, resource);
}

bool HRManager::eventFilter(QObject *watched, QEvent *event)
{
    const std::shared_ptr<HRManagerPrivate> work = d;
    return work->popupTakes(watched, *event) || work->hoverFilter.filter(watched, *event);
}

bool HRManager::mouseMoveEventFilter(QObject *, QMouseEvent *event)
{
    d->hoverFilter.followPointer(event->globalPos());
    return false;
}

bool HRManager::mouseButtonEventFilter(QObject *watched, QMouseEvent *)
{
    d->hoverFilter.followButton(watched);
    return false;
}

QString HRManager::interpolate(const QString &text, const QMap<QString, QVariant> &values) const
{
    return interpolated(text, values);
}

QString HRManager::interpolate(const QString &text) const
{
    return interpolated(text, d->globalProperties);
}

void HRManager::setGlobalProperty(const QString &name, const QVariant &value)
{
    d->globalProperties.insert(name, value);
}

QString HRManager::hintreelAttribute(
    const QString &key, const QString &attribute, const QString &defaultValue)
{
    const auto valueOf = [&](const HRXmlElement &element) {
        return element.hasAttribute(attribute) ? element.attribute(attribute) : defaultValue;
    };
    if (const HRXmlElement *shown = shownContent(widget(), key))
        return valueOf(*shown);
    if (const HRXmlElement *reserved = d->reservedPopups.content(key))
        return valueOf(*reserved);
    const std::shared_ptr<HRManagerPrivate> work = d;
    const std::optional<HRFoundContent> found = work->lookup.find(key);
    return found ? valueOf(*found->content.entry()) : defaultValue;
}

int HRManager::getScaledSize(int size) const
{
    return scaledSize(size, d->scale);
}

float HRManager::realScaleValue() const
{
    return d->scale;
}

} // namespace Hintreels
