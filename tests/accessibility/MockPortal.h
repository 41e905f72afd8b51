// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "reader/HRDesktopWishes_p.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>

/// The desktop's portal, on a session bus of the test's own.
///
/// It has a connection of its own, and answers in the thread that asks: whoever waits for an answer
/// gets none.
class MockPortal : public QDBusVirtualObject
{
public:
    MockPortal()
    {
        qDBusRegisterMetaType<Hintreels::HRPortalSettings>();
        const bool isThere = m_bus.registerVirtualObject(path(), this)
            && m_bus.registerService("org.freedesktop.portal.Desktop");
        if (!isThere)
            qFatal("no portal can be had on this bus");
    }

    ~MockPortal() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    /// Answers all that was asked, and what will be.
    void answer(const QVariant &value)
    {
        m_answer = value;
        const auto open = std::exchange(questions, {});
        for (const QDBusMessage &question : open)
            m_bus.send(question.createReply(m_answer));
    }

    void fail()
    {
        const auto open = std::exchange(questions, {});
        for (const QDBusMessage &question : open)
            m_bus.send(question.createErrorReply(QDBusError::Failed, "no settings today"));
    }

    void answerSettings(const Hintreels::HRPortalSettings &settings)
    {
        answer(QVariant::fromValue(settings));
    }

    /// Keeps what is asked from now on.
    void becomeSilent() { m_answer = QVariant(); }

    /// Tells of a change; what has changed is told when it is asked.
    void tellOfChange()
    {
        QDBusMessage news = QDBusMessage::createSignal(
            path(), "org.freedesktop.portal.Settings", "SettingChanged");
        news << "org.freedesktop.appearance"
             << "contrast" << QVariant::fromValue(QDBusVariant(1U));
        m_bus.send(news);
    }

    /// Changes as a desktop does it while programs run.
    void change(const Hintreels::HRPortalSettings &settings)
    {
        answerSettings(settings);
        tellOfChange();
    }

    QList<QDBusMessage> questions; ///< without an answer yet
    int asked = 0; ///< times

private:
    static QString path() { return "/org/freedesktop/portal/desktop"; }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        if (message.member() != "ReadAll")
            return false;
        ++asked;
        questions.append(message);
        if (m_answer.isValid())
            answer(m_answer);
        return true;
    }

    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
    QVariant m_answer; ///< invalid: none yet
};
