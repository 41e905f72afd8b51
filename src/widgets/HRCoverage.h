// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

namespace Hintreels {

/// A part of an open window, as HRCoverage tells of it.
struct HRCoveredPart
{
    QPointer<QWidget> widget; ///< that it is, or is a part of
    QRect area; ///< in global coordinates; null for the whole widget, and for what is not open
    QString text; ///< what the host calls it; may be empty
    QStringList keys; ///< under which its content is looked for, from special to general
};

/// What of the open windows has hints, for whoever writes them.
struct HRCoverage
{
    QVector<HRCoveredPart> withoutHint; ///< what can be used, has a key and no content of its own
    QVector<HRCoveredPart> nameless; ///< what can be used and has no name that could be a key
    QMap<QString, QVector<HRCoveredPart>> shared; ///< keys whose content several parts show; those
                                                  ///< of one action count as one
    QStringList unusedKeys; ///< keys with content that nothing in the open windows would show
};

} // namespace Hintreels
