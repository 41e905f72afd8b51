// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"
#include "context/HRExport.h"
#include "interface/HRTypes.h"

#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

QT_BEGIN_NAMESPACE
class QMouseEvent;
class QWidget;
QT_END_NAMESPACE

namespace Hintreels {

class HRIndex;
class HRManager;
struct HRInterfacePrivate;

/// What a host constructs to use the library, and overrides to plug it into itself.
///
/// A host that overrides nothing gets a working library. Everything happens on the GUI thread.
class HINTREELS_EXPORT HRInterface : public QObject
{
    Q_OBJECT

public:
    /// Starts the library: copies @p context, opens the index and scans @p dataPaths.
    ///
    /// Blocks until the packages are indexed. Messages of the start-up reach the default
    /// handleMessage() and not an override, since the host's part is not constructed yet.
    /// @param context stays the host's; later changes go through context()
    /// @param dataPaths directories that hold package directories
    /// @param index stays the host's and must outlive the interface; null for an index in memory
    HRInterface(HRContext &context, const QStringList &dataPaths, HRIndex *index = nullptr);

    /// The data path of the packages that ship with the library, `Standard.hintreels` first, found
    /// at run time beside the library: installed, moved, bundled with a host, or in a build tree.
    ///
    /// Null where they are not there, as with a static library whose program lies elsewhere. From
    /// any thread.
    static QString standardPackages();

    /// Shuts the library down. Popups that readers have reserved stay until they are closed.
    ~HRInterface() override;

    // Hosts depend on the order of these virtual operations.

    /// Creates a window that is to receive a reserved popup; the default is none.
    ///
    /// The window must be a plain top-level widget: the popup is added to its layout, and its size
    /// is fixed to that of the content, which a QDockWidget or QMainWindow refuses. It stays the
    /// host's and becomes the popup's parent. With null the popup becomes a window of its own.
    virtual QWidget *createWindow(HRWindowType type);

    /// The key under which content for @p object is looked up; the default is its object name.
    virtual QString keyForObject(QObject *object);

    /// Opens what a link in a popup names; the default opens URLs with the desktop's services.
    /// @return false when it was not opened
    virtual bool openExternalResource(HRExternalResourceType type, const QString &resource);

    /// Receives the library's messages up to the level messageLevelKey; the default writes them to
    /// Qt's debug output.
    ///
    /// Messages of type messageDebug may come from the midst of a popup's scene: there, a popup or
    /// its view may be hidden or deleted later, but not at once.
    virtual void handleMessage(HRMessageType type, const QString &message);

    /// Translates a text of the UI; the default looks into the package's translation file.
    virtual QString translateString(const QString &text, const QString &context);

    /// The shortcut to show for a key, such as the live one of an action.
    /// @param object what the pointer rests on; may be null
    /// @param shortcut what the content names; returned by default, and kept when the result is
    /// empty
    virtual QString shortCutForObject(const QString &key, QObject *object, const QString &shortcut);

    /// Shows the hint reel of a key beside a position in global coordinates.
    /// @param object the object that the hint reel belongs to; may be null
    /// @return true while a popup for the key is on screen: the host shows nothing else then
    bool show(const QString &key, const QPoint &globalPos, QObject *object);

    /// The keys of all content, also those that occur in several files or locales.
    QStringList keys();

    /// The settings that the library works with; changes take effect from the next reading on.
    HRContext &context();
    /// The same, to be read only.
    const HRContext &context() const;

    /// One attribute of a key's content, without showing it.
    QString hintreelAttribute(
        const QString &key, const QString &attribute, const QString &defaultValue);

    /// Sets the value that replaces `%(name)s` in texts from now on.
    void setGlobalProperty(const QString &name, const QVariant &value);

    /// For hosts that do not set applicationFilterKey: tells the popup where the pointer went.
    /// @return false, always: the event goes on to its target
    bool mouseMoveEventFilter(QObject *watched, QMouseEvent *event);

    /// For hosts that do not set applicationFilterKey: a button beside the popup hides it.
    /// @return false, always: the event goes on to its target
    bool mouseButtonEventFilter(QObject *watched, QMouseEvent *event);

    /// The manager, for its operations that have no shorthand here; owned by the interface.
    HRManager *manager() const;

private:
    std::unique_ptr<HRInterfacePrivate> d;
};

} // namespace Hintreels
