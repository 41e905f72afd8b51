// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>

namespace Hintreels {

class HRReaderSettings;

/// The context menu of a hint, by the right button or the menu key: more of hints, less of them, no
/// clips, and the reader's settings where the host opens them.
///
/// It is an event filter of the view that shows the hint. GUI thread only.
class HRReaderMenu : public QObject
{
public:
    /// Null where the reader decides nothing: there is no menu then.
    using Reader = std::function<HRReaderSettings *()>;
    /// A word of the UI in the reader's language.
    using Say = std::function<QString(const QString &text)>;
    using Told = std::function<void()>;

    /// @param popup that the menu belongs to; must outlive it
    /// @param changed told when the menu opens, and when it has closed
    HRReaderMenu(QWidget &popup, Reader reader, Say say, Told changed);

    bool isOpen() const { return m_menu && m_menu->isVisible(); }
    void close();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open(HRReaderSettings &reader, const QPoint &place);
    void fill(HRReaderSettings &reader);
    QAction *add(const QString &text, bool isEnabled, const std::function<void()> &deed);

    QWidget &m_popup;
    Reader m_reader;
    Say m_say;
    Told m_changed;
    QPointer<QMenu> m_menu;
};

} // namespace Hintreels
