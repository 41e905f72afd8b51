// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

/// Reads what the accessibility bus says of this program, in a process of its own.
///
/// Events are handled while it waits.
class BusReader
{
public:
    /// Returns once it hears what the program says, or ends the test program.
    BusReader();
    ~BusReader();

    /// What the program shows, an object a line: role, name and description, with a space before it
    /// for each object around it. An object that the way up to the application misses is "(lost)".
    QStringList tree();

    /// The events since the last call, as "type detail role name description".
    QStringList events();

private:
    QString line();
    void hear();

    QProcess m_process;
    std::vector<std::unique_ptr<QWidget>> m_probes;
    QStringList m_events;
};
