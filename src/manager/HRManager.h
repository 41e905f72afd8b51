// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"
#include "context/HRExport.h"
#include "interface/HRTypes.h"

#include <QLocale>
#include <QMap>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

QT_BEGIN_NAMESPACE
class QFileInfo;
class QMouseEvent;
class QWidget;
QT_END_NAMESPACE

namespace Hintreels {

class HRIndex;
class HRInterface;
class HRWidget;
class HRXmlElement;
struct HRManagerPrivate;

/// Conducts the library: scans the packages, looks content up, shows it and lets it go.
///
/// Constructed and owned by HRInterface. GUI thread only; scanning, lookup and translation run
/// synchronously.
class HINTREELS_EXPORT HRManager : public QObject
{
    Q_OBJECT

public:
    /// Copies the settings, opens the index, scans the data paths and registers the QML types.
    /// @param interface receives all callbacks; must outlive the manager
    /// @param index used but not owned; null makes an index in memory, which is never deleted
    HRManager(
        HRInterface *interface, HRContext &context, const QStringList &dataPaths, HRIndex *index);
    ~HRManager() override;

    /// The manager's copy of the settings; changes take effect from the next reading on.
    HRContext &context();
    /// The same, to be read only.
    const HRContext &context() const;
    /// The index that answers for keys.
    HRIndex *index() const;
    /// What receives the callbacks.
    HRInterface *interface() const;

    /// The current popup; null before the first hint and never a reserved one.
    HRWidget *widget() const;

    /// The data paths as the host gave them.
    QStringList searchPaths() const;

    /// Indexes every package in the given directories; paths that are none are passed over.
    void loadDataPath(const QStringList &paths);

    /// Indexes the control files of one package directory.
    void loadPackage(const QFileInfo &package);

    /// Hands one control file to the index; both paths are canonical. The name is spelled so.
    void indexControFile(const QString &controlFile, const QString &package);

    /// Passes a message on to the host if its type is at most the setting messageLevelKey.
    void handleMessage(HRMessageType type, const QString &message);

    /// The locale of translations: localeKey, else fallbackLocaleKey, else the system's.
    ///
    /// Unlike lookup, which tries en_US when neither is set, translation follows the system then.
    QLocale currentLocale() const;

    /// Translates by the translation file of the package whose content is shown.
    /// @return @p text where there is no popup or no readable file, null where the file has no
    /// such text
    QString translateString(const QString &text, const QString &context);

    /// Loads a key's content for the first locale, then for the fallback locale.
    /// @param path receives the directory of the control file
    /// @param depth receives how many levels that file lies below its package directory
    /// @param root receives the top of the tree
    /// @return the element, whose tree the caller owns and frees through @p root; or null. Then the
    /// index may have written to all three, and where @p root points there need not be an element.
    HRXmlElement *retrieve(const QString &key, QString &path, int &depth, HRXmlElement *&root);

    /// See HRInterface::show().
    bool show(const QString &key, const QPoint &globalPos, QObject *object);

    /// See HRInterface::keyForObject().
    QString keyForObject(QObject *object);
    /// See HRInterface::keys().
    QStringList keys();

    /// Where the popup's top left corner goes for a pointer position, both global.
    QPoint tooltipPosition(const QPoint &globalPos, QWidget *widget) const;

    /// Leaves the current popup to its reader and makes a new one for later hints.
    /// @param window receives the host's window for it, which may be null
    /// @return false, touching nothing, when @p widget is not the current popup
    bool reserve(HRWidget *widget, QWidget *&window);

    /// Raises the reserved popups.
    void raise();

    /// Keeps the reserved popups above other windows, or lets them sink again.
    void setStayOnTop(bool on);

    /// Hands a URL, path or name to the host if the settings allow its kind.
    bool openExternalResource(const QString &resource);

    /// Shows, follows and hides by the application's events, with the setting applicationFilterKey.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// See HRInterface::mouseMoveEventFilter().
    bool mouseMoveEventFilter(QObject *watched, QMouseEvent *event);

    /// See HRInterface::mouseButtonEventFilter().
    bool mouseButtonEventFilter(QObject *watched, QMouseEvent *event);

    /// Replaces each `%(name)s` by its value, whose own placeholders are replaced in turn.
    ///
    /// A name consists of ASCII letters, digits, "-" and "_"; a placeholder without a value stays.
    /// A value that holds its own placeholder never stops expanding. Linear in the resulting text.
    QString interpolate(const QString &text, const QMap<QString, QVariant> &values) const;

    /// The same with the global properties as values.
    QString interpolate(const QString &text) const;

    /// See HRInterface::setGlobalProperty().
    void setGlobalProperty(const QString &name, const QVariant &value);

    /// See HRInterface::hintreelAttribute().
    QString hintreelAttribute(
        const QString &key, const QString &attribute, const QString &defaultValue);

    /// A size in pixels times the scale, in single precision and truncated towards zero.
    int getScaledSize(int size) const;

    /// The scale, read from the setting scaleKey at start.
    float realScaleValue() const;

protected:
    /// Creates the current popup and its view where there is none.
    void initializeTooltipWindow();

private:
    friend struct HRManagerPrivate;

    // Shared with what is at work: the host may delete the manager from any callback.
    std::shared_ptr<HRManagerPrivate> d;
};

} // namespace Hintreels
