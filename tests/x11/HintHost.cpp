// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/HintHost.h"

#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "ui/popup/HRWidget.h"
#include "x11/QuickToolTips.h"
#include "x11/RealInput.h"

#include <QtTest>

#include <algorithm>

using namespace Hintreels;

namespace {

const QByteArray hintQml = R"(
import QtQuick 2.15

Rectangle {
    width: 200
    height: hintreel.attribute("height")
    color: hintreel.attribute("key")
    focus: true
    Rectangle { x: 80; y: 40; width: 40; height: 40; color: "white" }
    Keys.onPressed: event => hintreelView.debugLog("typed " + event.text)

    MouseArea {
        anchors.fill: parent
        onPressed: hintreelView.debugLog("pressed")
        onWheel: hintreelView.debugLog("scrolled")
        onClicked: mouse => {
            if (mouse.y < 20 && mouse.x > 180)
                hintreelView.reserved = true
            if (mouse.y < 20 && mouse.x < 20)
                hintreelView.stayOpen = true
        }
    }
}
)";

constexpr int hintWidth = 200;
constexpr int cornerMiddle = 10;

/// Whether the focus is in a window that a host has left behind: the program stays active then.
bool isInPinnedWindow(const QWindow *hostWindow)
{
    const QWindow *focus = QGuiApplication::focusWindow();
    return focus && focus != hostWindow && focus->type() != Qt::ToolTip;
}

} // namespace

class HintHost::Interface : public HRInterface
{
public:
    Interface(HintHost &host, HRContext &context, const QStringList &paths)
        : HRInterface(context, paths)
        , m_host(host)
    {
    }

    QWidget *createWindow(HRWindowType) override { return m_host.reservedWindow; }

    void handleMessage(HRMessageType type, const QString &message) override
    {
        if (type == messageDebug)
            m_host.messages.append(message);
    }

private:
    HintHost &m_host;
};

HintHost::HintHost(const std::function<void(HRContext &)> &configure)
{
    m_packages.write("Test.hintreels/ui/HintreelUI.qml", hintQml);
    m_packages.writeControl("Test", "en_US.xml",
        "<hintreel key='red' title='Red' height='120'/>"
        "<hintreel key='blue' title='Blue' height='160'/>");
    HRContext context;
    context.set(applicationFilterKey, true);
    context.set(hideDelayKey, 600);
    context.set(hideAnimationDurationKey, 0);
    if (configure)
        configure(context);
    m_interface = std::make_unique<Interface>(*this, context, QStringList{ m_packages.path() });
    m_interface->context().set(messageLevelKey, int(messageDebug));

    QApplication::setStyle(new QuickToolTips);
    int y = 20;
    for (QWidget *widget : std::initializer_list<QWidget *>{ &red, &blue, &plain, &field }) {
        widget->setGeometry(20, y, 160, 40);
        y += 60;
    }
    red.setObjectName("red");
    blue.setObjectName("blue");
    window.setGeometry(100, 100, 200, 260);
    window.show();
    field.setFocus();
    // Elsewhere it is for the compositor to say which window is active.
    if (QGuiApplication::platformName() == "xcb")
        window.activateWindow();
    constexpr int longTime = 30000; // ms: other programs may keep the processor busy
    if (!QTest::qWaitFor([this] { return window.isActiveWindow(); }, longTime))
        qFatal("the host's window does not become active");
}

HintHost::~HintHost()
{
    // The news that the program is no longer active would take the next host's popup away.
    m_interface.reset();
    window.hide();
    // Where a press has gone to the popup, the news never come.
    constexpr int patience = 1000; // ms
    [[maybe_unused]] const bool told = QTest::qWaitFor(
        [this] {
            return QGuiApplication::applicationState() != Qt::ApplicationActive
                || isInPinnedWindow(window.windowHandle());
        },
        patience);
}

HRManager *HintHost::manager() const
{
    return m_interface->manager();
}

HRWidget &HintHost::popup() const
{
    return *manager()->widget();
}

bool HintHost::showsPopup() const
{
    return manager()->widget() && manager()->widget()->isVisible();
}

bool HintHost::hover(const QWidget &widget) const
{
    RealInput::movePointer(widget.mapToGlobal(widget.rect().center()));
    const bool shown = QTest::qWaitFor([&] {
        const HRWidget *popup = manager()->widget();
        return popup && popup->isVisible() && popup->referenceWidget() == &widget;
    });
    return shown && QTest::qWaitForWindowExposed(manager()->widget());
}

bool HintHost::otherPopupsGo() const
{
    HRWidget other(manager(), nullptr, nullptr);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const bool isPointerLeft = QCursor::pos().x() < screen.center().x();
    other.move(isPointerLeft ? screen.topRight() - QPoint(100, 0) : screen.topLeft());
    const auto goes = [&other] {
        other.show();
        return QTest::qWaitFor([&other] { return !other.isVisible(); });
    };
    return goes() && goes();
}

void HintHost::show(QWidget &widget, const QPoint &position) const
{
    m_interface->show(widget.objectName(), position, &widget);
}

QRect areaOf(const QWidget &popup)
{
    return QRect(popup.mapToGlobal(QPoint(0, 0)), popup.size());
}

bool showsHint(const QWidget &popup, const QColor &color)
{
    const QRect area = areaOf(popup);
    const QRect mark = QRect(80, 40, 40, 40).translated(area.topLeft());
    const QRegion around = QRegion(area) - mark;
    return RealInput::shows(mark, Qt::white)
        && std::all_of(around.begin(), around.end(),
            [&](const QRect &part) { return RealInput::shows(part, color); });
}

QPoint pinOf(const QWidget &popup)
{
    return popup.mapToGlobal(QPoint(hintWidth - cornerMiddle, cornerMiddle));
}

QPoint keeperOf(const QWidget &popup)
{
    return popup.mapToGlobal(QPoint(cornerMiddle, cornerMiddle));
}
