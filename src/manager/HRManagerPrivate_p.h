// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"
#include "manager/HRBrokenFiles_p.h"
#include "manager/HRContentLookup_p.h"
#include "manager/HRHoverFilter_p.h"
#include "manager/HRManager.h"
#include "manager/HRPackageScanner_p.h"
#include "manager/HRPopupPresenter_p.h"
#include "manager/HRReservedPopups_p.h"
#include "manager/HRTranslation_p.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Hintreels {

class HRIndex;
class HRInterface;

/// What a manager is made of.
///
/// The manager may be deleted while a piece is at work, so what they tell it is guarded.
struct HRManagerPrivate
{
    /// @param hostIndex null for one in memory
    HRManagerPrivate(HRManager *manager, HRInterface *host, const HRContext &hostContext,
        const QStringList &paths, HRIndex *hostIndex);

    /// Whoever calls what may call the host back holds what this returns meanwhile.
    static std::shared_ptr<HRManagerPrivate> of(const HRManager &manager) { return manager.d; }

    /// Shows the hint of a hover; each of its keys is told.
    /// @return true while a popup for the hover is on screen
    bool show(const HRHover &hover);

    /// Makes a popup for hovers where there is none.
    void ensurePopup();

    /// Whether a visible popup takes an event of somebody, and nobody else may see it.
    bool popupTakes(QObject *watched, QEvent &event) const;

    HRManager *q;
    HRInterface *interface;
    QStringList dataPaths;
    HRContext context;
    HRIndex *index; // never deleted: reserved popups ask it for components
    HRPackageScanner scanner;
    HRBrokenFiles brokenFiles;
    HRContentLookup lookup;
    HRPopupPresenter presenter;
    HRHoverFilter hoverFilter;
    HRReservedPopups reservedPopups;
    HRTranslation translation;
    QMap<QString, QVariant> globalProperties;
    bool applicationFilterInstalled = false;
    bool toldWhyNothingShows = false;
    float scale = 1.0F;

private:
    void tellErrors(const HRControlErrors &errors);
    bool tellKeys(const QStringList &keys);
    bool mayShow() const;
    bool canRender();
};

} // namespace Hintreels
