// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manager/HRContentLookup_p.h"
#include "ui/popup/HRWidget.h"

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>

class HRContext;

namespace Hintreels {

class HRInterface;

/// What the pointer rests on.
struct HRHover
{
    /// Whether content found for one of the keys is a hint for this hover.
    ///
    /// It is asked of content that a popup shows already, too, and may touch nothing else.
    using Accepts = std::function<bool(const QString &key, const HRXmlElement &content)>;

    /// Adds to content that is about to be shown for one of the keys, and touches nothing else.
    using Completes = std::function<void(const QString &key, HRXmlElement &content)>;

    QStringList keys; ///< from special to general: the first that has content counts
    QPoint globalPos; ///< global coordinates
    QPointer<QObject> object; ///< may be null
    QRect area = {}; ///< of the part that the hint belongs to, in global coordinates; null for the
                     ///< whole of its object
    Accepts accepts = {}; ///< null for any content
    Completes completes = {}; ///< null for nothing to add
};

/// The content that a popup shows, if it is that of a key; else null.
HRXmlElement *shownContent(const HRWidget *popup, const QString &key);

/// Decides for each hover whether the popup shows new content, stays as it is or goes.
///
/// What it borrows must outlive it, but for the interface and the popup: the host may delete either
/// whenever it is called back, and may show something else meanwhile. GUI thread only.
class HRPopupPresenter
{
public:
    HRPopupPresenter(
        const HRContext &context, HRInterface *interface, const HRContentLookup &lookup);

    /// The popup for hovers; null before the first is set.
    HRWidget *popup() const { return qobject_cast<HRWidget *>(m_popup.data()); }
    void setPopup(HRWidget *popup) { m_popup = popup; }
    bool isPopupVisible() const { return popup() && popup()->isVisible(); }

    /// Shows the content for a hover; needs a popup.
    /// @return true while a popup for the hover is on screen
    bool show(const HRHover &hover);

    /// Where the popup's top left corner goes for a pointer position, both global.
    QPoint position(const QPoint &globalPos) const;

private:
    bool showFallback(const HRHover &hover);
    bool take(const HRHover &hover, const QString &key, HRFoundContent found);
    bool keepsShowing(const QString &key, const HRHover::Accepts &accepts = {});
    bool keepOrHide(const HRHover &hover);
    std::optional<HRFoundContent> find(const HRHover &hover, const QString &key) const;
    bool canPresent() const;
    bool present(const HRHover &hover, const QString &key, HRFoundContent found);
    void nameShortcut(const HRHover &hover, const QString &key, HRXmlElement *element);

    const HRContext &m_context;
    QPointer<HRInterface> m_interface;
    const HRContentLookup &m_lookup;
    // A popup that is being destroyed still sends events, when it is no HRWidget any more.
    QPointer<QObject> m_popup;
};

} // namespace Hintreels
