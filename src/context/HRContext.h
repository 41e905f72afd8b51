// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QVariant>

namespace Hintreels {

/// The settings that the library reads, by the number under which HRContext stores them.
///
/// Each line names the type, the default that applies when the setting is absent, and the meaning.
/// The numbers 0, 1, 7, 14 and 15, those from 40 to 9999 and all negative ones are the host's own
/// for good. New settings are numbered from 10000 up; they are ignored where the stored value is
/// of another type than the one named here.
enum contextKey : int
{
    hideDelayKey
        = 2, ///< number, ms, 3000: time until the popup hides by itself; 0 or less is never
    embeddedPopupKey = 3, ///< bool, false: leave the popup a plain widget, not a tool-tip window
    organizationNameKey = 4, ///< string, "Zentora": first part of the index database's file name
    applicationNameKey = 5, ///< string, empty: second part of the index database's file name
    persistentDirectoryKey = 6, ///< string, empty: directory for the index database
    indexFileNameKey = 8, ///< string, empty: file name that replaces the composed one
    indexConnectionKey = 9, ///< string, "__Hintreels_Index__": SQL connection name
    packageSuffixKey = 10, ///< string, "hintreels": packages are directories with this suffix
    componentDirectoryKey = 11, ///< string, empty: searched for components of every package
    uiFileKey = 12, ///< string, "ui/HintreelUI.qml": QML root file of the full UI
    simpleUiFileKey = 13, ///< string, "ui/SimpleTooltip.qml": QML root file of the simple UI
    resourceDirectoryKey = 16, ///< string, "Resources": resource directory of a package
    applicationFilterKey = 17, ///< bool, false: the manager filters the application's events itself
    safeMarginKey
        = 18, ///< QSize, 20 x 20 px: margin around the popup in which the pointer keeps it
    tooltipOffsetKey = 19, ///< QSize, 35 x 30 px: from the pointer to the popup's top left corner
    simpleTooltipKey = 20, ///< bool, false: show the simple UI
    allowNamedResourcesKey = 21, ///< bool: named resources may be opened (absent: true), and the UI
                                 ///< offers documentation (absent: false)
    allowUrlResourcesKey = 22, ///< bool, true: URLs and paths may be opened
    fallbackKeyKey = 23, ///< string, null: key shown when the requested key has no content
    fallbackLocaleKey = 24, ///< string, "en_US" for lookup, else empty: locale tried second
    localeKey = 25, ///< string, "en_US" for lookup, else empty: locale tried first
    disabledKey = 26, ///< bool, false: show no popup at all
    clearIndexKey = 27, ///< bool, true: clear the index when it is set up
    removeIndexOnCloseKey = 28, ///< bool, true: delete the database file when the index closes
    alwaysShowToolTipsKey = 29, ///< bool, false: tooltips in inactive windows too; read at start
    keyDataFileKey = 30, ///< string, empty: path of the key-data file
    modifierKey = 31, ///< int, 0: keyboard modifiers that must be held, exactly; 0 requires none
    controlDirectoryKey = 32, ///< string, "Control": a package's directory of control files
    translationDirectoryKey = 33, ///< string, "l10n": a package's directory of translation files
    showAnimationDurationKey = 34, ///< int, ms, 0: fade-in; 0 shows at once
    hideAnimationDurationKey = 35, ///< int, ms, 300: fade-out; 0 hides at once
    messageLevelKey = 36, ///< int, 200: highest HRMessageType that reaches the host
    translationBaseNameKey = 37, ///< string, "Hintreels": base name of translation files
    scaleKey = 38, ///< double, 1.0: factor for sizes in the UI; read at start
    reducedMotionKey
        = 39, ///< bool: nothing moves unless the reader asks (absent: as the desktop does)
    ownFilesOnlyKey = 10000, ///< bool, false: packages open nothing but files of packages, and QML
                             ///< imports no module but the usual ones and those of qmlModulesKey
    strangersKey
        = 10001, ///< bool, false: packages come from strangers: own files only, no network,
                 ///< no QML but the standard UI, few formats, limited control files
    allowNetworkKey = 10002, ///< bool, false: QML may reach the network
    forbidSoftwareRendererKey = 10003, ///< bool, false: without OpenGL show no hints, rather than
                                       ///< choose the software renderer for the whole process
    largestPictureKey = 10004, ///< int, megapixels, 64: no clip with a larger picture is played
    scriptLimitKey = 10005, ///< int, ms, 2000: a script that runs for longer is stopped, and its
                            ///< hint goes away; 0 or less is never
    qmlModulesKey = 10006, ///< string list, empty: further modules that QML may import with
                           ///< ownFilesOnlyKey, with those inside them
    placementKey = 10007, ///< int, placementAtPointer: where the popup goes, an HRPlacement
    popupPressesKey = 10008, ///< bool, false: what the pointer does inside the popup is the popup's
                             ///< while a menu or the list of a combo box is open, too
    nativeDismissalKey = 10009, ///< bool, false: what takes native tool tips away takes the popup
                                ///< away
    hostToolTipsKey = 10010, ///< bool, false: while the popup shows, Qt's tool tip for the same
                             ///< part does not, and one for another part takes the popup away
    hostColorsKey = 10011, ///< bool, false: the standard UI takes the colours of the widget that
                           ///< its hint belongs to, and of its window
    reportBrokenFilesKey = 10012, ///< bool, false: tell of each control file that is not XML, with
                                  ///< the line, when a look-up reads it
    requireUiKey = 10013, ///< bool, false: a hint whose QML root file is missing or broken is no
                          ///< hint
    hintShortcutKey = 10014, ///< string, empty: with HRWidgetsInterface, the keys ("Shift+F1") that
                             ///< show the hint of what has the keyboard focus, enter it and leave
                             ///< it; empty for none
    hintOnFocusKey = 10015, ///< bool, false: with HRWidgetsInterface, the focus alone shows a hint
                            ///< after a second
    dismissalByCtrlKey = 10016, ///< bool, false: with HRWidgetsInterface, Ctrl pressed and released
                                ///< alone takes the popup away
    dismissalByEscapeKey = 10017, ///< bool, false: with HRWidgetsInterface, Escape takes a painted
                                  ///< popup away, and nobody else gets that Escape
    announceHoverKey = 10020, ///< bool, false: assistive technology is told of each hint that
                              ///< spokenHintsKey lets it find, not only of those shown by a key
    spokenHintsKey = 10021, ///< bool, false: while assistive technology is at work, the popup is
                            ///< named and described by its hint, and so is the widget that the hint
                            ///< belongs to
    readerSettingsKey = 10030 ///< QPointer<HRReaderSettings>, null: what the reader decides is
                              ///< followed, in popups that are made from then on
};

/// Values of placementKey.
enum HRPlacement : int
{
    placementAtPointer = 0, ///< tooltipOffsetKey away from the pointer, pushed inside the screen
    placementBeside = 1 ///< beside the part that the hint belongs to, never over it
};

} // namespace Hintreels

/// The type of a setting's key.
using HRContextKey = int;

/// The settings store that host and library share: a map from a number to a value.
///
/// The store knows nothing of what its keys mean; Hintreels::contextKey does. The manager works on
/// a copy of the context that the host constructs it with, so a later change goes through
/// HRInterface::context(). GUI thread only.
class HINTREELS_EXPORT HRContext : public QObject
{
    Q_OBJECT

public:
    /// Makes an empty store.
    explicit HRContext(QObject *parent = nullptr);
    /// Copies the settings only: the copy has no parent and none of the connections.
    HRContext(const HRContext &other);
    /// Replaces the settings without emitting anything.
    HRContext &operator=(const HRContext &other);
    ~HRContext() override;

    /// The stored value, even an invalid one, or @p defaultValue where the key is absent.
    QVariant get(const int &key, const QVariant &defaultValue) const;

    /// Stores a value between the two signals, which are sent also when it equals the old one.
    void set(const int &key, const QVariant &value);

    /// Whether a value is stored under a key, even an invalid one.
    bool contains(const int &key);

    /// All keys in ascending order.
    QList<int> keys();

Q_SIGNALS:
    /// A value is about to be stored: get() still returns the old one.
    void settingWillChange(const HRContextKey &key);
    /// A value has been stored.
    void settingDidChange(const HRContextKey &key);

private:
    QMap<int, QVariant> m_settings;
};
