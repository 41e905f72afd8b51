// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRViewClips_p.h"

#include "context/setting_p.h"
#include "gates/HRFileUse_p.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "video/HRVideoComponent.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QFileInfo>
#include <QQuickItem>

namespace Hintreels {

namespace {

/// All clips below an item, whatever made them.
QVector<HRVideoComponent *> clipsBelow(const QQuickItem *item)
{
    QVector<HRVideoComponent *> clips;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (auto *clip = qobject_cast<HRVideoComponent *>(child))
            clips.append(clip);
        clips += clipsBelow(child);
    }
    return clips;
}

} // namespace

HRViewClips::HRViewClips(HRView *view)
    : HRClipFinder(view)
    , m_view(view)
{
}

QString HRViewClips::findClip(const QString &source)
{
    const QString path = m_view->findResource(source);
    const bool isUsable = QFileInfo(path).isFile()
        && HRViewPrivate::of(*m_view).mayOpen(QStringLiteral("source"), path, HRFileUse::clip);
    return isUsable ? path : QString();
}

int HRViewClips::largestPicture() const
{
    return setting(HRViewPrivate::of(*m_view).settings(), largestPictureKey,
        int(HRVideoSourceFFMPEG::standardLargestPicture));
}

void HRViewClips::setDecodingPaused(bool paused)
{
    m_isDecodingPaused = paused;
    const QVector<HRVideoComponent *> clips = clipsBelow(m_view->contentItem());
    for (HRVideoComponent *clip : clips)
        clip->setDecodingPaused(paused);
}

} // namespace Hintreels
