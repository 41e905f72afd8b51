// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

QT_BEGIN_NAMESPACE
class QQuickWindow;
QT_END_NAMESPACE

namespace Hintreels {

/// What the clips in a window ask whoever made the window.
///
/// A window has one at most. GUI thread only.
class HRClipFinder : public QObject
{
    Q_OBJECT

public:
    /// @param window owns the finder
    explicit HRClipFinder(QQuickWindow *window);

    /// That of a window, which may be null; null where it has none.
    static HRClipFinder *of(const QQuickWindow *window);

    /// The absolute path of the file that a clip's source names; empty where there is none, or none
    /// that may be used.
    virtual QString findClip(const QString &source) = 0;

    /// The most that a picture of a clip may have, in megapixels.
    virtual int largestPicture() const = 0;

    /// Whether clips that enter the window decode nothing for now.
    virtual bool isDecodingPaused() const = 0;
};

} // namespace Hintreels
