// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "accessibility/BusReader.h"

#include <QAccessible>
#include <QtTest>

namespace {

constexpr int longTime = 30000; // ms: other programs may keep the processor busy
const QString eventStart("event ");

} // namespace

BusReader::BusReader()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(HINTREELS_BUS_READER, QStringList());
    if (line() != "ready")
        qFatal("the bus cannot be read");
    hear();
}

BusReader::~BusReader()
{
    m_process.closeWriteChannel();
    // It may still ask this program about an event.
    [[maybe_unused]] const bool ended
        = QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, longTime);
}

QStringList BusReader::tree()
{
    m_process.write(QByteArray::number(QCoreApplication::applicationPid()) + '\n');
    QStringList tree;
    while (true) {
        const QString next = line();
        if (next == "end")
            return tree;
        if (next.startsWith(eventStart))
            m_events.append(next.mid(eventStart.size()));
        else
            tree.append(next);
    }
}

QStringList BusReader::events()
{
    hear();
    return std::exchange(m_events, {});
}

/// The next line; ends the test program where none comes.
QString BusReader::line()
{
    if (!QTest::qWaitFor([this] { return m_process.canReadLine(); }, longTime))
        qFatal("the bus says nothing");
    return QString::fromUtf8(m_process.readLine()).chopped(1);
}

/// Takes all events in that were sent before, by waiting for one that is sent after them.
///
/// Qt sends none before it knows that somebody listens, so the event is sent again and again. The
/// object is a new one each time: events are read with the name that their object has by then.
void BusReader::hear()
{
    m_probes.push_back(std::make_unique<QWidget>());
    QWidget *probe = m_probes.back().get();
    probe->setAccessibleName(QString("probe %1").arg(m_probes.size()));
    const auto hasCome = [&] {
        QAccessibleEvent event(probe, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
        return QTest::qWaitFor([this] { return m_process.canReadLine(); }, 100);
    };
    QString next;
    while (!next.contains('"' + probe->accessibleName() + '"')) {
        if (!QTest::qWaitFor(hasCome, longTime))
            qFatal("the bus does not hear the program");
        next = line();
        if (!next.contains("\"probe "))
            m_events.append(next.mid(eventStart.size()));
    }
}
