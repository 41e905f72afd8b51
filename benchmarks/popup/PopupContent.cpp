// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/PopupContent.h"

#include <QTextDocument>

namespace {

QString htmlOf(const QString &markdown)
{
    QTextDocument document;
    document.setMarkdown(markdown);
    return document.toHtml();
}

} // namespace

PopupContent::PopupContent(int number)
    : m_number(number)
{
}

QString PopupContent::key() const
{
    return QString("tool%1").arg(m_number);
}

QByteArray PopupContent::xml() const
{
    return QString("<hintreel key='%1' title='%2' shortcut='%3'><summary>%4</summary>"
                   "<text><![CDATA[%5]]></text><keys press='%6'>%7</keys>"
                   "<note kind='tip'><![CDATA[%8]]></note></hintreel>\n")
        .arg(key(), title(), shortcut(), summary(), text(), gesture(), gestureText(), note())
        .toUtf8();
}

QVariantMap PopupContent::values() const
{
    const QVariantList blocks{
        QVariantMap{ { "block", "text" }, { "text", text() } },
        QVariantMap{ { "block", "keys" }, { "press", gesture() }, { "text", gestureText() } },
        QVariantMap{ { "block", "note" }, { "kind", "tip" }, { "text", note() } },
    };
    return { { "title", title() }, { "shortcut", shortcut() }, { "documentation", QString() },
        { "summary", summary() }, { "rightToLeft", false }, { "blocks", blocks } };
}

QString PopupContent::richText() const
{
    return QString("<h3>%1 (%2)</h3><p>%3</p>%4<p>%5: %6</p><p><b>Tip</b></p>%7")
        .arg(title(), shortcut(), summary(), htmlOf(text()), gesture(), gestureText(),
            htmlOf(note()));
}

QString PopupContent::title() const
{
    return QString("Rectangle %1").arg(m_number);
}

QString PopupContent::shortcut() const
{
    return QString("Ctrl+%1").arg(QChar('A' + m_number % 26));
}

QString PopupContent::summary() const
{
    return QString("Draws a rectangle or a square, in any of %1 ways.").arg(m_number);
}

QString PopupContent::text() const
{
    const QString more = QStringLiteral(" What it covers stays as it is, and comes back unharmed.");
    return QString("Drag from one corner to the opposite one, in any direction. The **outline** "
                   "and the *filling* are the two colors number %1 in the tool bar.%2")
        .arg(QString::number(m_number), more.repeated(m_number % 3));
}

QString PopupContent::gesture() const
{
    return QStringLiteral("Shift+Drag");
}

QString PopupContent::gestureText() const
{
    return QString("Draws a square of side %1.").arg(m_number);
}

QString PopupContent::note() const
{
    return QString("Hold **Shift and Alt together** for a square around point %1, where you "
                   "pressed.")
        .arg(m_number);
}
