// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"
#include "interface/HRInterface.h"
#include "reader/HRReaderSettings.h"
#include "widgets/HRCoverage.h"

#include <memory>

namespace Hintreels {

struct HRWidgetsInterfacePrivate;

/// The interface for hosts with Qt Widgets: hints for what windows are made of, without a line of
/// the host's own.
///
/// The part under the pointer is found by the event's position: the entry of a menu, the action of
/// a tool button, a tab, a header's section, a cell, an item of a QGraphicsView, a standard button,
/// a title, or a widget. It goes by its object name, or by that of its action, page or buddy; with
/// the dynamic property `hintreelKey` of any of these it goes by that. Names that Qt gives, such as
/// `qt_spinbox_lineedit`, are none: such a part belongs to what it lies in.
///
/// Content is looked for from special to general, with the names of the window and of the page that
/// the part lies in: `PreferencesDialog/fontTab/size`, `fontTab/size`, `size`. The first that has
/// content counts. What has none shows nothing, unless the content of its page or window says
/// `covers="inside"`. Content that only repeats what the part says itself is not shown, and content
/// without a title has that of the action or the widget. docs/embedding.md has the whole list.
///
/// These settings are on where the host has not set them: applicationFilterKey, ownFilesOnlyKey,
/// placementKey (placementBeside), popupPressesKey, nativeDismissalKey, hostToolTipsKey,
/// hostColorsKey, reportBrokenFilesKey, requireUiKey, hintShortcutKey (Shift+F1) and
/// dismissalByEscapeKey; readerSettingsKey has readerSettings(). docs/accessibility.md tells what
/// the keyboard does.
///
/// All virtual operations may be overridden. GUI thread only; widgets, actions and the interface
/// itself may be deleted at any time.
class HINTREELS_EXPORT HRWidgetsInterface : public HRInterface
{
    Q_OBJECT

public:
    /// The role under which the items and headers of a model, and the data of a QGraphicsItem,
    /// carry a key.
    static const int keyRole;

    /// Starts the library, and follows the application's tooltip events unless the host has set
    /// applicationFilterKey to false. The parameters are those of HRInterface.
    HRWidgetsInterface(HRContext &context, const QStringList &dataPaths, HRIndex *index = nullptr);
    ~HRWidgetsInterface() override;

    /// The most special name of an object as a whole; empty where it has none.
    ///
    /// Where an override answers anything but this and the object's own name, that is the key for
    /// all of the object, and its parts are not asked.
    QString keyForObject(QObject *object) override;

    /// For a hint that its reader pins: a window with the hint's title, as large as its content,
    /// that Escape and Ctrl+W close. It belongs to the window of the part and is deleted when
    /// closed. The window of the part shows tooltips while the pinned one is active, too
    /// (`Qt::WA_AlwaysShowToolTips`).
    QWidget *createWindow(HRWindowType type) override;

    /// The shortcut of the action that the part or the object stands for, as it is now; else the
    /// content's.
    QString shortCutForObject(
        const QString &key, QObject *object, const QString &shortcut) override;

    /// What the reader decides: the host's, which it has set under readerSettingsKey, else an
    /// object of the interface's own with the host's QSettings. Null where the host has set null.
    HRReaderSettings *readerSettings();

    /// Goes through the open windows, with their menus and all of their pages, and tells what has
    /// no hint, shares one or cannot have one, and which content nobody asks for.
    ///
    /// It shows nothing and sends no message. All control files are read; content in any language
    /// counts. It knows nothing of keys that an override of keyForObject() gives. Models are asked
    /// for names; where one deletes the interface meanwhile, nothing is told.
    HRCoverage coverage();

private:
    friend struct HRWidgetsInterfacePrivate;

    std::shared_ptr<HRWidgetsInterfacePrivate> d; // shared with what is at work
};

} // namespace Hintreels
