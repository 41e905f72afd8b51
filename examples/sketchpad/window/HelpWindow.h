// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QTextBrowser;
QT_END_NAMESPACE

namespace Sketchpad {

/// Shows the guide's pages, one at a time.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget *parent = nullptr);

    /// Shows the page in help/NAME.md.
    /// @return false where there is no such page; the window stays as it is then
    bool showPage(const QString &name);

private:
    QTextBrowser *m_page;
};

} // namespace Sketchpad
