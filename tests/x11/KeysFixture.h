// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "widgets/HRWidgetsInterface.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

/// A dialog whose button, field and list have hints, and a plain field that has none.
///
/// The hint is a page with two items that Tab reaches; each logs its name and the keys that it is
/// given, as in "first Space". A pin is the second item's affair: P pins the hint.
struct KeysFixture
{
    explicit KeysFixture(const QMap<int, QVariant> &settings = {})
    {
        using namespace Hintreels;
        packages.write("A.hintreels/ui/Popup.qml", R"(
import QtQuick 2.15
FocusScope {
    width: 120; height: 80; focus: true
    function log(name, event) {
        hintreelView.debugLog(name + " " + event.key)
        if (event.key === Qt.Key_P) hintreelView.reserved = true
    }
    Item { focus: true; Keys.onPressed: event => log("page", event) }
    Item { objectName: "first"; activeFocusOnTab: true; Keys.onPressed: event => log("first", event) }
    Item { objectName: "second"; activeFocusOnTab: true; Keys.onPressed: event => log("second", event) }
}
)");
        packages.writeControl("A", "a.xml",
            "<hintreel key='red' title='The red one'/><hintreel key='field' title='Field'/>"
            "<hintreel key='list/one' title='The first one'/><hintreel key='list/two' title='The "
            "second one'/>",
            "ui='ui/Popup.qml'");
        HRContext context;
        context.set(hideAnimationDurationKey, 0);
        for (auto it = settings.begin(); it != settings.end(); ++it)
            context.set(it.key(), it.value());
        host = std::make_unique<Host>(context, QStringList{ packages.path() });
        host->context().set(messageLevelKey, int(messageDebug));
        red.setObjectName("red");
        field.setObjectName("field");
        list.setObjectName("list");
        list.addItems({ "one", "two" });
        for (QWidget *widget : std::initializer_list<QWidget *>{ &red, &field, &list, &plain })
            layout.addWidget(widget);
        red.setAutoDefault(false);
        dialog.move(100, 100);
        dialog.show();
        dialog.activateWindow();
        constexpr int longTime = 30000; // ms: other programs may keep the processor busy
        if (!QTest::qWaitFor([this] { return dialog.isActiveWindow(); }, longTime))
            qFatal("the dialog does not become active");
        red.setFocus();
    }

    /// What is left of the active window would take the next fixture's keys.
    ~KeysFixture()
    {
        host.reset();
        dialog.hide();
        constexpr int patience = 1000; // ms
        [[maybe_unused]] const bool told
            = QTest::qWaitFor([] { return !QGuiApplication::focusWindow(); }, patience);
    }

    Hintreels::HRWidget *popup() const { return host->manager()->widget(); }
    bool showsPopup() const { return popup() && popup()->isVisible(); }
    bool isPainted() const
    {
        return popup() && Hintreels::HRWidgetPrivate::of(*popup()).isPainted();
    }
    QString shown() const
    {
        return showsPopup() ? popup()->view()->content()->attribute("key") : QString();
    }

    /// What a window gets for a key, without any other event between.
    void send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
        bool isRepeated = false)
    {
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
        QKeyEvent event(
            type, key, modifiers, isLetter ? QString(char(key)).toLower() : QString(), isRepeated);
        event.ignore();
        QCoreApplication::sendEvent(dialog.windowHandle(), &event);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const QEvent::Type type :
            { QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease })
            send(type, key, modifiers);
    }
    void hintKey() { key(Qt::Key_F1, Qt::ShiftModifier); }

    /// Shows the hint of what has the focus, and waits until it is seen.
    bool show()
    {
        hintKey();
        return QTest::qWaitFor([this] { return isPainted(); });
    }

    /// The keys that the scene was given, each with the name of what had the focus there.
    QStringList typed() const { return host->log; }
    static QString typed(const char *name, Qt::Key key)
    {
        return QString(name) + ' ' + QString::number(key);
    }

    class Host : public Hintreels::HRWidgetsInterface
    {
    public:
        using HRWidgetsInterface::HRWidgetsInterface;
        void handleMessage(Hintreels::HRMessageType type, const QString &message) override
        {
            if (type == Hintreels::messageDebug)
                log.append(message);
        }
        QStringList log;
    };

    TestPackages packages;
    std::unique_ptr<Host> host;
    QDialog dialog;
    QVBoxLayout layout{ &dialog };
    QPushButton red{ "red" };
    QLineEdit field;
    QListWidget list;
    QLineEdit plain;
};
