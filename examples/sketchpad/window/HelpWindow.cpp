// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/HelpWindow.h"

#include <QFileInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace Sketchpad {

HelpWindow::HelpWindow(QWidget *parent)
    : QDialog(parent)
    , m_page(new QTextBrowser(this))
{
    setWindowTitle(tr("Guide to Sketchpad"));
    resize(460, 420);
    m_page->setFrameShape(QFrame::NoFrame);
    m_page->document()->setDocumentMargin(16);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_page);
}

bool HelpWindow::showPage(const QString &name)
{
    const QString path = QStringLiteral("/help/%1.md").arg(name);
    if (!QFileInfo::exists(QLatin1Char(':') + path))
        return false;
    m_page->setSource(QUrl(QStringLiteral("qrc:") + path));
    show();
    raise();
    return true;
}

} // namespace Sketchpad
