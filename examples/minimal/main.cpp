// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <Hintreels/HRContext>
#include <Hintreels/HRWidgetsInterface>

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    QHBoxLayout layout(&window);
    for (const char *name : { "brew", "pour", "clean" }) {
        auto *button = new QPushButton(name);
        button->setObjectName(name); // the key of the button's hint
        layout.addWidget(button);
    }

    HRContext settings;
    // Data paths: the look that all packages share, and the packages beside this program.
    Hintreels::HRWidgetsInterface hints(
        settings, { Hintreels::HRInterface::standardPackages(), MY_PACKAGES });

    window.show();
    return application.exec();
}
