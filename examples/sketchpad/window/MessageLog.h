// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDockWidget>

QT_BEGIN_NAMESPACE
class QPlainTextEdit;
QT_END_NAMESPACE

namespace Sketchpad {

/// Lists what the hints report, the latest last; only the last thousand lines are kept.
class MessageLog : public QDockWidget
{
    Q_OBJECT

public:
    explicit MessageLog(QWidget *parent = nullptr);

public Q_SLOTS:
    void append(const QString &message);

private:
    QPlainTextEdit *m_lines;
};

} // namespace Sketchpad
