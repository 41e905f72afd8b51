// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

/// What one popup of the figures says. The number runs through all texts, so that no two are alike
/// and nothing can be kept from one to the next.
class PopupContent
{
public:
    explicit PopupContent(int number);

    QString key() const;

    /// As an entry of a control file.
    QByteArray xml() const;

    /// As the values that the standard UI binds to.
    QVariantMap values() const;

    /// As the rich text of a plain tooltip.
    QString richText() const;

private:
    QString title() const;
    QString shortcut() const;
    QString summary() const;
    QString text() const; // Markdown, as all that follows
    QString gesture() const;
    QString gestureText() const;
    QString note() const;

    int m_number;
};
