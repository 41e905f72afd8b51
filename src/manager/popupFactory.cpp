// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/popupFactory_p.h"

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHBoxLayout>

namespace Hintreels {

HRWidget *createPopup(HRManager *manager)
{
    auto *popup = new HRWidget(manager, nullptr, nullptr);
    auto *view = new HRView(manager, nullptr);
    QWidget *container = QWidget::createWindowContainer(view, popup);
    auto *layout = new QHBoxLayout(popup);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(container);
    popup->SetContainerWidget(container);
    popup->setView(view);
    return popup;
}

} // namespace Hintreels
