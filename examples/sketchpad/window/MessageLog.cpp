// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/MessageLog.h"

#include <QPlainTextEdit>

namespace Sketchpad {

MessageLog::MessageLog(QWidget *parent)
    : QDockWidget(tr("Message Log"), parent)
    , m_lines(new QPlainTextEdit(this))
{
    m_lines->setReadOnly(true);
    m_lines->setMaximumBlockCount(1000);
    m_lines->setFocusPolicy(Qt::ClickFocus);
    setWidget(m_lines);
}

void MessageLog::append(const QString &message)
{
    m_lines->appendPlainText(message);
}

} // namespace Sketchpad
