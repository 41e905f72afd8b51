// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRReaderMenu_p.h"

#include "reader/HRReaderSettings.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace Hintreels {

namespace {

/// Where a menu is asked for, in global coordinates.
std::optional<QPoint> placeAskedFor(const QEvent &event, const QWidget &popup)
{
    if (event.type() == QEvent::MouseButtonPress) {
        const auto &press = static_cast<const QMouseEvent &>(event);
        return press.button() == Qt::RightButton ? std::optional(press.globalPos()) : std::nullopt;
    }
    if (event.type() != QEvent::KeyPress)
        return std::nullopt;
    const auto &press = static_cast<const QKeyEvent &>(event);
    const bool isMenuKey = press.key() == Qt::Key_Menu
        || (press.key() == Qt::Key_F10 && press.modifiers() == Qt::ShiftModifier);
    return isMenuKey ? std::optional(popup.mapToGlobal(popup.rect().center())) : std::nullopt;
}

} // namespace

HRReaderMenu::HRReaderMenu(QWidget &popup, Reader reader, Say say, Told changed)
    : m_popup(popup)
    , m_reader(std::move(reader))
    , m_say(std::move(say))
    , m_changed(std::move(changed))
{
}

void HRReaderMenu::close()
{
    if (m_menu)
        m_menu->close();
}

bool HRReaderMenu::eventFilter(QObject *watched, QEvent *event)
{
    const std::optional<QPoint> place = placeAskedFor(*event, m_popup);
    HRReaderSettings *reader = place ? m_reader() : nullptr;
    if (!reader)
        return QObject::eventFilter(watched, event);
    open(*reader, *place);
    return true;
}

void HRReaderMenu::open(HRReaderSettings &reader, const QPoint &place)
{
    if (m_menu)
        m_menu->deleteLater();
    m_menu = new QMenu(&m_popup);
    fill(reader);
    connect(
        m_menu, &QMenu::aboutToHide, this, [this] { m_changed(); }, Qt::QueuedConnection);
    m_menu->popup(place);
    m_changed();
}

void HRReaderMenu::fill(HRReaderSettings &reader)
{
    const QPointer<HRReaderSettings> guarded = &reader;
    const auto changeDetail = [guarded](int step) {
        return [guarded, step] {
            if (guarded)
                guarded->setDetail(HRReaderSettings::Detail(guarded->detail() + step));
        };
    };
    add(QStringLiteral("More"), reader.detail() > HRReaderSettings::fullDetail, changeDetail(-1));
    add(QStringLiteral("Less"), reader.detail() < HRReaderSettings::summaryDetail, changeDetail(1));
    const bool isStill = reader.clips() == HRReaderSettings::clipsOnRequest;
    QAction *still = add(QStringLiteral("No clips by themselves"), true, [guarded, isStill] {
        if (guarded)
            guarded->setClips(
                isStill ? HRReaderSettings::clipsByThemselves : HRReaderSettings::clipsOnRequest);
    });
    still->setCheckable(true);
    still->setChecked(isStill);
    if (!reader.isPageOffered())
        return;
    m_menu->addSeparator();
    add(QStringLiteral("Hint settings"), true, [guarded] {
        if (guarded)
            guarded->requestPage();
    });
}

QAction *HRReaderMenu::add(const QString &text, bool isEnabled, const std::function<void()> &deed)
{
    QAction *action = m_menu->addAction(m_say(text));
    action->setEnabled(isEnabled);
    connect(action, &QAction::triggered, this, deed);
    return action;
}

} // namespace Hintreels
