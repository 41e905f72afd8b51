// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "popup/PopupContent.h"
#include "ui/reader/HRContentReader_p.h"

#include <QColor>
#include <QObject>
#include <QQuickTextDocument>
#include <QQuickView>

#include <memory>

// What a popup is held against: Qt Quick's own view with the same QML file and content, and
// stand-ins of plain values for what the QML asks of the library. They are of the types that the
// QML names.

/// The content on show.
class StandInElement : public Hintreels::HRXmlElement
{
    Q_OBJECT

public:
    explicit StandInElement(const QVariantMap &values)
        : m_values(values)
    {
    }
    const QVariantMap &values() const { return m_values; }

private:
    QVariantMap m_values;
};

/// Answers as the library's view does where no setting differs from its default.
///
/// For a program without any popup of the library: a view of its own would load for the bare one
/// what that has to load itself.
class StandInView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool stayOpen MEMBER m_stayOpen NOTIFY stayOpenChanged)
    Q_PROPERTY(bool reserved MEMBER m_reserved NOTIFY reservedChanged)
    Q_PROPERTY(
        bool documentationAvailable MEMBER m_documentation NOTIFY documentationAvailableChanged)

public:
    /// Takes the name of the library's type in QML, before the library does.
    StandInView();

    Q_INVOKABLE QString interpolate(const QString &text) const { return text; }
    Q_INVOKABLE QString translate(const QString &text, const QString &) const { return text; }
    Q_INVOKABLE QString findResource(const QString &path) const { return path; }
    Q_INVOKABLE int getScaledSize(int size) const { return size; }

Q_SIGNALS:
    void stayOpenChanged();
    void reservedChanged();
    void documentationAvailableChanged();

private:
    bool m_stayOpen = false;
    bool m_reserved = false;
    bool m_documentation = false;
};

/// Reads content that is plain values already.
class StandInReader : public Hintreels::HRContentReader
{
    Q_OBJECT

public:
    StandInReader();

    // In the words of the class above, or QML would call that.
    Q_INVOKABLE QVariantMap read(Hintreels::HRXmlElement *element, const QJSValue &say) const;
    Q_INVOKABLE QVariantList keyCaps(const QString &shortcut) const;
    Q_INVOKABLE QColor readable(const QColor &wanted, const QColor &) const { return wanted; }
    /// Gives all paragraphs the height of line that the standard UI asks for.
    Q_INVOKABLE QVariantList showMarkdown(QQuickTextDocument *document, const QString &markdown,
        const QVariantMap &look, const QJSValue &findPicture) const;
};

/// A view of the standard UI in a tooltip window.
class BareView
{
public:
    /// @param view what the QML finds as "hintreelView"; outlives this
    explicit BareView(QObject &view);

    QQuickView &window() { return m_window; }

    /// Loads the QML file the first time; afterwards only the content changes.
    void show(const PopupContent &content, const QPoint &position);

private:
    StandInReader m_reader;
    std::unique_ptr<StandInElement> m_element;
    QQuickView m_window;
};
