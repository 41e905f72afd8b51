// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"

#include "gates/HRSceneGates_p.h"
#include "gates/HRScriptWatch_p.h"
#include "index/HRIndex.h"
#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "ui/popup/HROverrideCursors_p.h"
#include "ui/popup/HRSceneLoader_p.h"
#include "ui/popup/HRViewClips_p.h"
#include "ui/popup/contentTree_p.h"
#include "ui/popup/cursorShape_p.h"
#include "ui/popup/quickRenderer_p.h"
#include "ui/popup/sceneReach_p.h"
#include "ui/popup/serviceTypes_p.h"

#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>
#include <QQuickItem>

namespace Hintreels {

namespace {

/// The value of an attribute in the element, else in its parent element; no further up.
QString attributeNearby(const HRXmlElement *element, const QString &name)
{
    if (element->hasAttribute(name))
        return element->attribute(name);
    const auto *parent = qobject_cast<const HRXmlElement *>(element->parent());
    return parent ? parent->attribute(name) : QString();
}

void report(HRManager *manager, const QString &message)
{
    if (manager)
        manager->handleMessage(messageDebug, message);
}

void reportErrors(HRManager *manager, const QString &pattern, const QList<QQmlError> &errors)
{
    for (const QQmlError &error : errors)
        report(manager, pattern.arg(error.line()).arg(error.column()).arg(error.description()));
}

QString packageName(const HRXmlElement *content)
{
    return content ? content->attribute(QStringLiteral("HRPackagName")) : QString();
}

void reportRefusal(
    HRManager *manager, const HRXmlElement *content, const QString &kind, const QString &path)
{
    if (manager)
        manager->handleMessage(messageWarning,
            QStringLiteral("Package \"%1\" may not use %2 \"%3\"")
                .arg(packageName(content), kind, path));
}

/// Null for the defaults.
const HRContext *settingsOf(const HRManager *manager)
{
    return manager ? &manager->context() : nullptr;
}

HRReach reachOf(const HRManager *manager, const HRXmlElement *content, const QString &qmlFile,
    const QQmlEngine &engine)
{
    return manager ? reachOfScene(manager->context(), *manager->index(), content, qmlFile, engine)
                   : HRReach();
}

QVariant managerSetting(HRManager *manager, HRContextKey key, const QVariant &defaultValue)
{
    return manager ? manager->context().get(key, defaultValue) : defaultValue;
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
    , m_manager(manager)
    , m_cursors(std::make_unique<HROverrideCursors>())
    , m_loader(std::make_unique<HRSceneLoader>(
          this, engine(), [this](const QUrl &source) { take(source); }))
    , m_gates(std::make_unique<HRSceneGates>(engine(), contentItem(),
          [this](const QString &kind, const QString &path) {
              reportRefusal(m_manager, m_content, kind, path);
          }))
    , m_watch(std::make_shared<HRScriptWatch>(engine()))
    , m_clips(new HRViewClips(this))
{
    connect(m_watch.get(), &HRScriptWatch::stopped, this, &HRView::scriptStopped);
    connect(engine(), &QQmlEngine::warnings, this, &HRView::handleWarnings);
    connect(this, &QQuickView::statusChanged, this, &HRView::statusHasChanged);
    // A renderer that fails ends the application unless somebody listens.
    connect(this, &QQuickWindow::sceneGraphError, this,
        [this](SceneGraphError, const QString &message) {
            if (m_manager)
                m_manager->handleMessage(messageError, message);
        });
    if (manager)
        connect(&manager->context(), &HRContext::settingDidChange, this,
            &HRView::managerContextSettingDidChange);
    setFlags(Qt::FramelessWindowHint);
    setResizeMode(SizeViewToRootObject);
    registerServiceTypes();
}

HRView::~HRView()
{
    m_cursors->release();
    // The scene first: its bindings should not see the content go.
    endScene();
    deleteContentTree(m_content);
}

HRManager *HRView::manager() const
{
    return m_manager;
}

QUrl HRView::source() const
{
    return m_loader->waiting().value_or(QQuickView::source());
}

void HRView::setSource(const QUrl &source)
{
    load(source);
}

HRSceneLoader *HRView::sceneLoader() const
{
    return m_loader.get();
}

const std::shared_ptr<HRScriptWatch> &HRView::scriptWatch() const
{
    return m_watch;
}

bool HRView::mayOpen(const QString &attribute, const QString &path, HRFileUse use) const
{
    followRules();
    return m_gates->admits(attribute, path, use);
}

bool HRView::stayOpen() const
{
    return m_stayOpen;
}

void HRView::setStayOpen(bool stayOpen)
{
    const HRScriptWatch::HostCall call(m_watch);
    m_stayOpen = stayOpen;
    Q_EMIT stayOpenChanged();
}

bool HRView::reserved() const
{
    return m_reserved;
}

void HRView::setReserved(bool reserved)
{
    if (m_reserved == reserved)
        return;
    const HRScriptWatch::HostCall call(m_watch);
    m_reserved = reserved;
    Q_EMIT reservedChanged();
}

HRXmlElement *HRView::content() const
{
    return m_content;
}

void HRView::setContent(HRXmlElement *content)
{
    if (m_content != content)
        m_gates->forgetRefusals();
    m_content = content;
    followRules();
}

void HRView::discard(QObject *contentTree)
{
    if (contentTree && m_loader->isSceneAtWork())
        contentTree->deleteLater();
    else
        delete contentTree;
}

bool HRView::documentationAvailable() const
{
    return managerSetting(m_manager, allowNamedResourcesKey, {}).toBool();
}

QString HRView::resourceDirectoryPath() const
{
    // "resource" here and "resources" in findResource() are two attributes, and both are meant.
    return categoryPath(
        QStringLiteral("resource"), QStringLiteral("Resources"), resourceDirectoryKey);
}

QDir HRView::packageRoot() const
{
    return QDir(m_packageRoot);
}

void HRView::setPackageRoot(const QDir &directory)
{
    m_packageRoot = directory.absolutePath();
}

void HRView::setViewPos(int x, int y)
{
    setPosition(x, y);
}

QString HRView::uiRootFilePath() const
{
    const bool simple = managerSetting(m_manager, simpleTooltipKey, false).toBool();
    followRules();
    if (m_gates->rules().fromStrangers)
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
    const QString chosen = m_content ? attributeNearby(m_content, attributeName) : QString();
    return chosen.isEmpty() ? managerSetting(m_manager, key, defaultValue).toString() : chosen;
}

QString HRView::findComponent(const QString &attributeName, HRContextKey key,
    const QString &defaultValue, const QString &relativePath) const
{
    QString base = categoryPath(attributeName, defaultValue, key);
    if (!m_content || !m_manager)
        return base;
    followRules();
    const QStringList candidates = m_manager->index()->componentPathsForElement(m_content, base);
    for (const QString &candidate : candidates) {
        const QString file
            = relativePath.isEmpty() ? candidate : QDir(candidate).absoluteFilePath(relativePath);
        if (QFile::exists(file))
            return m_gates->admits(attributeName, file, HRFileUse::any)
                ? QFileInfo(file).absoluteFilePath()
                : QString();
    }
    // Such a name would be looked for in the working directory.
    return m_gates->rules().ownFilesOnly && !relativePath.isEmpty() ? QString() : base;
}

void HRView::releaseOverrideCursors()
{
    m_cursors->release();
}

void HRView::setDecodingPaused(bool paused)
{
    m_clips->setDecodingPaused(paused);
}

bool HRView::isDecodingPaused() const
{
    return m_clips->isDecodingPaused();
}

void HRView::handleWarnings(const QList<QQmlError> &warnings)
{
    // Qt tells of a script's error when the script has left the stack, and the scene is at work
    // yet.
    const HRSceneLoader::Work work(m_loader.get());
    const HRScriptWatch::HostCall call(m_watch);
    reportErrors(m_manager, QStringLiteral("QML Warning %1:%2:%3"), warnings);
}

void HRView::statusHasChanged(QQuickView::Status s)
{
    if (s == QQuickView::Error)
        reportErrors(m_manager, QStringLiteral("Error %1:%2:%3"), errors());
}

void HRView::loadQML(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        report(m_manager, QStringLiteral("Can't find :%1").arg(path));
        return;
    }
    // The same scene stays loaded: it follows the context property that holds the content.
    const QUrl url = urlOfFile(file.absoluteFilePath());
    if (QQuickView::source() == url)
        m_loader->forget();
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
    followRules();
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
    const HRScriptWatch::HostCall call(m_watch);
    report(m_manager, msg);
}

void HRView::openExternalResource(const QString &resourceLocator)
{
    const HRScriptWatch::HostCall call(m_watch);
    // A link may come out of a property for URLs, which are refused where they would be loaded.
    if (m_manager)
        m_manager->openExternalResource(withoutRefusal(resourceLocator));
}

QString HRView::interpolate(const QString &string)
{
    return m_manager ? m_manager->interpolate(string) : string;
}

void HRView::setOverrideCursor(const QString &shape)
{
    m_cursors->push(cursorShapeNamed(shape));
}

void HRView::restoreOverrideCursor()
{
    m_cursors->restore();
}

QString HRView::translate(const QString &string, const QString &context)
{
    if (!m_manager || !m_manager->interface())
        return string;
    const HRScriptWatch::HostCall call(m_watch);
    return m_manager->interface()->translateString(string, context);
}

QString HRView::findResource(const QString &relativePath)
{
    return findComponent(QStringLiteral("resources"), resourceDirectoryKey,
        QStringLiteral("Resources"), relativePath);
}

int HRView::getScaledSize(int size)
{
    return m_manager ? m_manager->getScaledSize(size) : size;
}

void HRView::load(const QUrl &source)
{
    m_loader->load(source);
}

bool HRView::event(QEvent *event)
{
    if (m_loader->holdsBack(*event))
        return true;
    const HRSceneLoader::Work work(m_loader.get());
    const HRScriptWatch::Entry entry(m_watch);
    return QQuickView::event(event);
}

void HRView::take(const QUrl &source)
{
    followRules();
    if (!mayBecomeScene(source, reachOf(m_manager, m_content, m_qmlFile, *engine()))) {
        m_gates->refuse(QStringLiteral("ui"), source.toLocalFile());
        return;
    }
    m_qmlFile = source.toLocalFile();
    followRules();
    if (source.isEmpty()) {
        endScene();
        return;
    }
    m_watch->start(scriptLimit(settingsOf(m_manager)));
    const HRScriptWatch::Entry entry(m_watch);
    QQuickView::setSource(source);
    m_gates->tellRefusals();
}

/// Watched to the end, since a scene may have scripts for that, too.
void HRView::endScene()
{
    {
        const HRScriptWatch::Entry entry(m_watch);
        QQuickView::setSource(QUrl());
    }
    m_watch->start(0);
}

void HRView::followRules() const
{
    m_gates->setReach(reachOf(m_manager, m_content, m_qmlFile, *engine()));
}

void HRView::scriptStopped(int limit)
{
    setSource(QUrl());
    if (m_manager)
        m_manager->handleMessage(messageWarning,
            QStringLiteral("A script of package \"%1\" ran for more than %2 ms and was stopped")
                .arg(packageName(m_content), QString::number(limit)));
}

void HRView::resizeEvent(QResizeEvent *)
{
    update();
    Q_EMIT contentSizeChanged();
}

void HRView::focusInEvent(QFocusEvent *)
{
    // When the focus comes from a Qt::Tool window around the view, Qt says that a popup has
    // closed, and then no item becomes active.
    QFocusEvent event(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QQuickView::focusInEvent(&event);
}

} // namespace Hintreels
