// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "context/HRExport.h"

#include <QDir>
#include <QList>
#include <QQmlError>
#include <QQuickPaintedItem>
#include <QQuickView>
#include <QString>
#include <QUrl>

#include <memory>

namespace Hintreels {

class HRManager;
struct HRViewPrivate;

/// A view whose scripts may ask for another QML file by what QQuickView itself offers them.
class HINTREELS_EXPORT HRSceneWindow : public QQuickView
{
public:
    using QQuickView::QQuickView;

    /// Leads scripts from QQuickView's slot, which cannot be overridden, to setSource() of HRView.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

protected:
    /// Loads what a script asks QQuickView's slot for.
    virtual void load(const QUrl &source) = 0;
};

/// Renders the QML user interface of one popup, and serves the scripts in it.
///
/// Chooses the QML file and resolves resources by the content element that it holds. QML finds it
/// as `hintreelView`. Everything that goes wrong in QML becomes a message of type messageDebug.
///
/// Works without a manager too, also after the manager is gone: settings then have their defaults,
/// texts come back as they are and nothing is opened. GUI thread only.
class HINTREELS_EXPORT HRView : public HRSceneWindow
{
    Q_OBJECT
    // QML sees signals, slots, methods and properties in the order in which they stand here.
    ///@{
    /// What QML reads and writes; the operations behind it say more.
    Q_PROPERTY(bool stayOpen READ stayOpen WRITE setStayOpen NOTIFY stayOpenChanged)
    Q_PROPERTY(bool reserved READ reserved WRITE setReserved NOTIFY reservedChanged)
    Q_PROPERTY(Hintreels::HRXmlElement *content READ content WRITE setContent NOTIFY contentChanged)
    Q_PROPERTY(bool documentationAvailable READ documentationAvailable NOTIFY
            documentationAvailableChanged)
    // Without notification: QML binds to `hintreel`, which changes whenever this can.
    Q_PROPERTY(QString resourceDirectory READ resourceDirectoryPath)
    // Instead of the one that comes with QQuickView, which deletes a scene that is at work.
    Q_PROPERTY(QUrl source READ source WRITE setSource)
    ///@}

public:
    /// @param manager not owned; may be null
    HRView(HRManager *manager, QWindow *parent);

    /// Deletes the content, together with the root element that it was read with.
    ~HRView() override;

    /// Null where there is none, or where it is gone.
    HRManager *manager() const;

    /// The QML root file, also while it waits to be loaded; see setSource().
    QUrl source() const;

    /// Loads a QML root file in place of the scene before.
    ///
    /// Asked from inside that scene (a callback out of one of its scripts or events, or while it is
    /// being made), the file waits for the event loop, and nothing is painted until then.
    void setSource(const QUrl &source);

    /// Whether the popup stays when the pointer leaves it.
    bool stayOpen() const;

    /// Stores the value and emits stayOpenChanged(), also where it stays the same.
    void setStayOpen(bool stayOpen);

    /// Whether the popup is to be reserved: taken from the pointer by its reader, into a window
    /// that stays until it is closed. The standard UI has a pin for it.
    bool reserved() const;

    /// Asks for the popup to become a window of its own, or does nothing for the same value.
    void setReserved(bool reserved);

    /// The element that is shown; null before the first hint and when somebody deleted it.
    HRXmlElement *content() const;

    /// Takes an element over without a signal. The old one is not deleted: whoever replaces it
    /// does that.
    void setContent(HRXmlElement *content);

    /// Whether the UI offers documentation: the setting allowNamedResourcesKey, false by default.
    bool documentationAvailable() const;

    /// Name of the directory for resources: the content's attribute "resource", else the setting.
    QString resourceDirectoryPath() const;

    ///@{
    /// The directory of the current package.
    QDir packageRoot() const;
    void setPackageRoot(const QDir &directory);
    ///@}

    /// Moves the window, in coordinates of its parent.
    void setViewPos(int x, int y);

    /// Absolute path of the QML root file for the content, or its name where no package has it.
    QString uiRootFilePath() const;

    /// A name that content may choose: the attribute of the content, else of its parent element,
    /// else the setting.
    QString categoryPath(
        const QString &attributeName, const QString &defaultValue, HRContextKey key) const;

    /// Searches the content's packages for the file that categoryPath() names.
    /// @param relativePath a file below that directory; empty for the file itself
    /// @return the absolute path of the first one that exists, else what categoryPath() names
    QString findComponent(const QString &attributeName, HRContextKey key,
        const QString &defaultValue, const QString &relativePath) const;

    /// Takes back the override cursors that QML has set and not restored.
    ///
    /// As many later restores by QML are swallowed, so that they do not take the host's cursor.
    void releaseOverrideCursors();

    /// Pauses or resumes the decoding of all clips in the view, of those to come as well. The popup
    /// does so when it hides and shows; a view that was never in a shown popup decodes.
    void setDecodingPaused(bool paused);
    /// What setDecodingPaused() was last told.
    bool isDecodingPaused() const;

Q_SIGNALS:
    /// The property of its name was set, or has changed.
    void stayOpenChanged();
    /// The property of its name was set, or has changed.
    void reservedChanged();
    /// Never emitted: QML binds to `hintreel`.
    void contentChanged();
    /// The window has another size.
    void contentSizeChanged();
    /// The setting allowNamedResourcesKey has been stored.
    void documentationAvailableChanged();
    /// Never emitted: QML binds to `hintreel`.
    void resourceDirectoryChanged();

public Q_SLOTS:
    /// Passes what QML complains of on as messages.
    void handleWarnings(const QList<QQmlError> &warnings);
    /// Passes the errors of a file that could not be loaded on as messages.
    void statusHasChanged(QQuickView::Status s);

    /// Loads a QML file unless it is the one that is loaded; a missing file changes nothing.
    void loadQML(const QString &path);

    /// Sets the root item's state to the base state.
    void resetState();
    /// Follows the manager's settings.
    void managerContextSettingDidChange(const HRContextKey &key);

public:
    /// Sets an item's cursor by name, or unsets it for an empty name; a null item is ignored.
    /// @param shape "PointingHandCursor", "IBeamCursor" or "BlankCursor"; others mean the arrow
    /// @param tag not used
    Q_INVOKABLE void setItemCursor(
        QQuickPaintedItem *object, const QString &shape, const QString &tag);

    /// Sends a message of type messageDebug.
    Q_INVOKABLE void debugLog(const QString &msg);
    /// See HRManager::openExternalResource().
    Q_INVOKABLE void openExternalResource(const QString &resourceLocator);
    /// See HRManager::interpolate().
    Q_INVOKABLE QString interpolate(const QString &string);

    /// Sets the application's cursor by name until restoreOverrideCursor(), or until the popup
    /// hides.
    Q_INVOKABLE void setOverrideCursor(const QString &shape);
    /// Takes back the last cursor that setOverrideCursor() has set.
    Q_INVOKABLE void restoreOverrideCursor();

    /// The host's translation; null where the package's translation file lacks the text.
    Q_INVOKABLE QString translate(const QString &string, const QString &context);

    /// Absolute path of a resource of the content's packages, or the resource directory's name.
    Q_INVOKABLE QString findResource(const QString &relativePath);
    /// See HRManager::getScaledSize().
    Q_INVOKABLE int getScaledSize(int size);

protected:
    /// The same as setSource().
    void load(const QUrl &source) override;
    /// Holds events back that the scene must not see now.
    bool event(QEvent *event) override;
    /// Paints anew and emits contentSizeChanged().
    // The base is left out: the window follows its root item, and UI files never size from the
    // window.
    void resizeEvent(QResizeEvent *event) override;
    /// Lets an item become active wherever the focus comes from.
    void focusInEvent(QFocusEvent *event) override;

private:
    friend struct HRViewPrivate;

    std::unique_ptr<HRViewPrivate> d;
};

} // namespace Hintreels
