// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"

#include "context/setting_p.h"
#include "index/HRIndex.h"
#include "interface/HRInterface.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/componentSearch_p.h"
#include "ui/popup/cursorShape_p.h"
#include "ui/popup/quickRenderer_p.h"
#include "ui/popup/sceneReach_p.h"
#include "ui/popup/serviceTypes_p.h"

#include <QFileInfo>
#include <QQmlEngine>
#include <QQuickItem>

namespace Hintreels {

namespace {

const HRContext *settingsOf(const HRManager *manager)
{
    return manager ? &manager->context() : nullptr;
}

} // namespace

int HRSceneWindow::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    static const int slot = QQuickView::staticMetaObject.indexOfMethod("setSource(QUrl)");
    if (call != QMetaObject::InvokeMetaMethod || id != slot)
        return QQuickView::qt_metacall(call, id, arguments);
    load(*static_cast<const QUrl *>(arguments[1]));
    return -1;
}

HRView::HRView(HRManager *manager, QWindow *parent)
    : HRSceneWindow((chooseQuickRenderer(settingsOf(manager)), parent))
{
    // Empty until here, since the view hears of the children that its pieces make.
    d = std::make_unique<HRViewPrivate>(this, manager);
    connect(
        d->watch.get(), &HRScriptWatch::stopped, this, [this](int limit) { d->stopScript(limit); });
    connect(engine(), &QQmlEngine::warnings, this, &HRView::handleWarnings);
    connect(this, &QQuickView::statusChanged, this, &HRView::statusHasChanged);
    // A renderer that fails ends the application unless somebody listens.
    connect(this, &QQuickWindow::sceneGraphError, this,
        [this](SceneGraphError, const QString &message) { d->report(messageError, message); });
    if (manager)
        connect(&manager->context(), &HRContext::settingDidChange, this,
            &HRView::managerContextSettingDidChange);
    setFlags(Qt::FramelessWindowHint);
    setResizeMode(SizeViewToRootObject);
    registerServiceTypes();
}

HRView::~HRView()
{
    d->cursors.release();
    // The scene first: its bindings should not see the content go.
    d->endScene();
    d->content = HRContent();
}

HRManager *HRView::manager() const
{
    return d->manager;
}

QUrl HRView::source() const
{
    return d->loader.waiting().value_or(QQuickView::source());
}

void HRView::setSource(const QUrl &source)
{
    load(source);
}

bool HRView::stayOpen() const
{
    return d->stayOpen;
}

void HRView::setStayOpen(bool stayOpen)
{
    const HRScriptWatch::HostCall call(d->watch);
    d->stayOpen = stayOpen;
    Q_EMIT stayOpenChanged();
}

bool HRView::reserved() const
{
    return d->reserved;
}

void HRView::setReserved(bool reserved)
{
    if (d->reserved == reserved)
        return;
    const HRScriptWatch::HostCall call(d->watch);
    d->reserved = reserved;
    Q_EMIT reservedChanged();
}

HRXmlElement *HRView::content() const
{
    return d->content.entry();
}

void HRView::setContent(HRXmlElement *content)
{
    if (content != d->content.entry())
        d->exchangeContent(HRContent::of(content)).release();
    else
        d->followRules();
}

bool HRView::documentationAvailable() const
{
    return setting(d->settings(), allowNamedResourcesKey, false);
}

QString HRView::resourceDirectoryPath() const
{
    // "resource" here and "resources" in findResource() are two attributes, and both are meant.
    return categoryPath(
        QStringLiteral("resource"), QStringLiteral("Resources"), resourceDirectoryKey);
}

QDir HRView::packageRoot() const
{
    return QDir(d->packageRoot);
}

void HRView::setPackageRoot(const QDir &directory)
{
    d->packageRoot = directory.absolutePath();
}

void HRView::setViewPos(int x, int y)
{
    setPosition(x, y);
}

QString HRView::uiRootFilePath() const
{
    const bool simple = setting(d->settings(), simpleTooltipKey, false);
    d->followRules();
    if (d->gates.rules().fromStrangers)
        return builtInUi(simple);
    if (simple)
        return findComponent(QStringLiteral("simple"), simpleUiFileKey,
            QStringLiteral("ui/SimpleTooltip.qml"), QString());
    return findComponent(
        QStringLiteral("ui"), uiFileKey, QStringLiteral("ui/HintreelUI.qml"), QString());
}

QString HRView::categoryPath(
    const QString &attributeName, const QString &defaultValue, HRContextKey key) const
{
    const QString chosen = chosenByContent(d->content.entry(), attributeName);
    return chosen.isEmpty() ? setting(d->settings(), contextKey(key), defaultValue) : chosen;
}

QString HRView::findComponent(const QString &attributeName, HRContextKey key,
    const QString &defaultValue, const QString &relativePath) const
{
    QString base = categoryPath(attributeName, defaultValue, key);
    const HRXmlElement *content = d->content.entry();
    if (!content || !d->manager)
        return base;
    d->followRules();
    const QString file
        = firstExisting(d->manager->index()->componentPathsForElement(content, base), relativePath);
    if (!file.isNull())
        return d->gates.admits(attributeName, file, HRFileUse::any)
            ? QFileInfo(file).absoluteFilePath()
            : QString();
    // Such a name would be looked for in the working directory.
    return d->gates.rules().ownFilesOnly && !relativePath.isEmpty() ? QString() : base;
}

void HRView::releaseOverrideCursors()
{
    d->cursors.release();
}

void HRView::setDecodingPaused(bool paused)
{
    d->clips->setDecodingPaused(paused);
}

bool HRView::isDecodingPaused() const
{
    return d->clips->isDecodingPaused();
}

void HRView::handleWarnings(const QList<QQmlError> &warnings)
{
    // Qt tells of a script's error when the script has left the stack, and the scene is at work
    // yet.
    const HRSceneLoader::Work work(&d->loader);
    const HRScriptWatch::HostCall call(d->watch);
    d->reportErrors(QStringLiteral("QML Warning %1:%2:%3"), warnings);
}

void HRView::statusHasChanged(QQuickView::Status s)
{
    if (s != QQuickView::Error)
        return;
    const QPointer<HRView> guarded = this;
    d->ui.tellBroken(QQuickView::source().toLocalFile());
    if (guarded)
        d->reportErrors(QStringLiteral("Error %1:%2:%3"), errors());
}

void HRView::loadQML(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        d->report(messageDebug, QStringLiteral("Can't find :%1").arg(path));
        return;
    }
    // The same scene stays loaded: it follows the context property that holds the content.
    const QUrl url = urlOfFile(file.absoluteFilePath());
    if (QQuickView::source() == url)
        d->loader.forget();
    else if (source() != url)
        setSource(url);
}

void HRView::resetState()
{
    if (QQuickItem *root = rootObject())
        root->setProperty("state", QString());
}

void HRView::managerContextSettingDidChange(const HRContextKey &key)
{
    d->followRules();
    if (key == allowNamedResourcesKey)
        Q_EMIT documentationAvailableChanged();
}

void HRView::setItemCursor(QQuickPaintedItem *object, const QString &shape, const QString &)
{
    if (!object)
        return;
    if (shape.isEmpty())
        object->unsetCursor();
    else
        object->setCursor(cursorShapeNamed(shape));
}

void HRView::debugLog(const QString &msg)
{
    const HRScriptWatch::HostCall call(d->watch);
    d->report(messageDebug, msg);
}

void HRView::openExternalResource(const QString &resourceLocator)
{
    const HRScriptWatch::HostCall call(d->watch);
    // A link may come out of a property for URLs, which are refused where they would be loaded.
    if (d->manager)
        d->manager->openExternalResource(withoutRefusal(resourceLocator));
}

QString HRView::interpolate(const QString &string)
{
    return d->manager ? d->manager->interpolate(string) : string;
}

void HRView::setOverrideCursor(const QString &shape)
{
    d->cursors.push(cursorShapeNamed(shape));
}

void HRView::restoreOverrideCursor()
{
    d->cursors.restore();
}

QString HRView::translate(const QString &string, const QString &context)
{
    if (!d->manager || !d->manager->interface())
        return string;
    const HRScriptWatch::HostCall call(d->watch);
    return d->manager->interface()->translateString(string, context);
}

QString HRView::findResource(const QString &relativePath)
{
    return findComponent(QStringLiteral("resources"), resourceDirectoryKey,
        QStringLiteral("Resources"), relativePath);
}

int HRView::getScaledSize(int size)
{
    return d->manager ? d->manager->getScaledSize(size) : size;
}

void HRView::load(const QUrl &source)
{
    d->loader.load(source);
}

bool HRView::event(QEvent *event)
{
    if (!d)
        return QQuickView::event(event);
    if (d->loader.holdsBack(*event))
        return true;
    const HRSceneLoader::Work work(&d->loader);
    const HRScriptWatch::Entry entry(d->watch);
    return QQuickView::event(event);
}

void HRView::resizeEvent(QResizeEvent *)
{
    update();
    Q_EMIT contentSizeChanged();
}

void HRView::focusInEvent(QFocusEvent *)
{
    // When the focus comes from a Qt::Tool window around the view, Qt says that a popup has closed,
    // and then no item becomes active.
    QFocusEvent event(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QQuickView::focusInEvent(&event);
}

} // namespace Hintreels
