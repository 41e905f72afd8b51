// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

/// A program that nobody here has written, started by `hintreels run` with a home of its own, and
/// seen as a person sees it.
class StrangeProgram
{
public:
    /// @param packages data path of the hints
    /// @param windowClass that its windows have on the X server
    /// @param language of the hints, and of the program where it speaks it
    StrangeProgram(const QString &packages, const QString &windowClass,
        const QStringList &programAndArguments, const QString &language);
    ~StrangeProgram();

    /// The keys of all parts of its windows, once it has one.
    QStringList keys() const;

    /// Rests the pointer on the middle of a part until a hint shows.
    /// @return the hint's area; null where none comes
    QRect hover(const QString &key) const;

    /// Clicks on a menu's title until a menu is open.
    /// @return false where none opens
    bool openMenu(const QString &key) const;

    /// Where a part is on the screen, once it is there; null where it never is.
    QRect areaOf(const QString &key) const;

    /// The windows without a frame that show now: menus, hints and tooltips.
    QList<QRect> openPopups() const;

    /// What the plugin has written to its standard error output.
    QByteArray messages();

private:
    QRect hintBeside(const QRect &part) const;

    QString m_windowClass;
    QTemporaryDir m_home;
    QProcess m_process;
};
