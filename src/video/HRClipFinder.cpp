// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipFinder_p.h"

#include <QQuickWindow>

namespace Hintreels {

HRClipFinder::HRClipFinder(QQuickWindow *window)
    : QObject(window)
{
}

HRClipFinder *HRClipFinder::of(const QQuickWindow *window)
{
    return window ? window->findChild<HRClipFinder *>(QString(), Qt::FindDirectChildrenOnly)
                  : nullptr;
}

} // namespace Hintreels
