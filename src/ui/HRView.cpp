// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRView.h"

#include "index/HRIndex.h"
#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "ui/HRContentTree_p.h"
#include "ui/HRCursorShape_p.h"
#include "ui/HROverrideCursors_p.h"
#include "ui/HRQuickRenderer_p.h"

#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>

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

QVariant managerSetting(HRManager *manager, HRContextKey key, const QVariant &defaultValue)
{
    return manager ? manager->context().get(key, defaultValue) : defaultValue;
}

} // namespace

HRView::HRView(HRManager *manager, QWindow *parent)
    : QQuickView((chooseQuickRenderer(), parent))
    , m_manager(manager)
    , m_cursors(std::make_unique<HROverrideCursors>())
{
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
}

HRView::~HRView()
{
    m_cursors->release();
    // The scene first: its bindings should not see the content go.
    setSource(QUrl());
    deleteContentTree(m_content);
}

HRManager *HRView::manager() const
{
    return m_manager;
}

bool HRView::stayOpen() const
{
    return m_stayOpen;
}

void HRView::setStayOpen(bool stayOpen)
{
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
    m_reserved = reserved;
    Q_EMIT reservedChanged();
}

HRXmlElement *HRView::content() const
{
    return m_content;
}

void HRView::setContent(HRXmlElement *content)
{
    m_content = content;
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
    if (managerSetting(m_manager, simpleTooltipKey, false).toBool())
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
    const QString base = categoryPath(attributeName, defaultValue, key);
    if (!m_content || !m_manager)
        return base;
    const QStringList candidates = m_manager->index()->componentPathsForElement(m_content, base);
    for (const QString &candidate : candidates) {
        const QString file
            = relativePath.isEmpty() ? candidate : QDir(candidate).absoluteFilePath(relativePath);
        if (QFile::exists(file))
            return QFileInfo(file).absoluteFilePath();
    }
    return base;
}

void HRView::releaseOverrideCursors()
{
    m_cursors->release();
}

void HRView::handleWarnings(const QList<QQmlError> &warnings)
{
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
    const QUrl url = QUrl::fromLocalFile(file.absoluteFilePath());
    if (source() != url)
        setSource(url);
}

void HRView::resetState()
{
    if (QQuickItem *root = rootObject())
        root->setProperty("state", QString());
}

void HRView::managerContextSettingDidChange(const HRContextKey &key)
{
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
    report(m_manager, msg);
}

void HRView::openExternalResource(const QString &resourceLocator)
{
    if (m_manager)
        m_manager->openExternalResource(resourceLocator);
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
