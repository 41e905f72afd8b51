// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QEventLoop>
#include <QHelpEvent>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

/// The popups of the library, which the program does not know.
QWidgetList popups()
{
    QWidgetList popups;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("Hintreels::HRWidget"))
            popups.append(window);
    }
    return popups;
}

bool isPopupShown()
{
    return !popups().isEmpty() && popups().constFirst()->isVisible();
}

/// The last that happens in the application: routines that are added later come before.
void tellAtEnd()
{
    std::printf("popups at the end %d\n", int(popups().size()));
}

/// Asks for the button's tooltip as Qt does, and prints how wide the popup is that comes of it, in
/// tens of pixels: some platforms give it a frame.
void rest(QWidget &button)
{
    const QPoint middle = button.rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, button.mapToGlobal(middle));
    QCoreApplication::sendEvent(&button, &event);
    const bool isShown = QTest::qWaitFor(isPopupShown);
    std::printf("popup %d\n", isShown ? popups().constFirst()->width() / 10 * 10 : 0);
}

} // namespace

/// A program with one button that has a name. Its argument says how it ends.
int main(int argc, char *argv[])
{
    auto application = std::make_unique<QApplication>(argc, argv);
    const QString way = QString::fromLocal8Bit(argv[1]);
    qAddPostRoutine(&tellAtEnd);
    {
        QPushButton button(QStringLiteral("Brew"));
        button.setObjectName(QStringLiteral("brew"));
        button.show();
        std::printf("children get '%s'\n", qgetenv("QT_QPA_GENERIC_PLUGINS").constData());
        QEventLoop loop;
        const bool isOwnLoop = way == QLatin1String("own loop");
        QTimer::singleShot(0, &button, [&] {
            rest(button);
            if (way == QLatin1String("exit"))
                std::exit(0);
            isOwnLoop ? loop.quit() : QCoreApplication::quit();
        });
        isOwnLoop ? loop.exec() : QCoreApplication::exec();
        std::printf("popups after the loop %d\n", int(popups().size()));
    }
    if (way == QLatin1String("no end"))
        static_cast<void>(application.release());
    application.reset();
    std::puts("done");
    return 0;
}
