// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/remindertray.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

ReminderTray::ReminderTray(QWidget& window, std::function<bool()> remindersOn, QObject* parent)
    : QObject(parent), Window(window), RemindersOn(std::move(remindersOn))
{
    Open = Menu.addAction(tr("Open"));
    Quit = Menu.addAction(tr("Quit"));
    connect(Open, &QAction::triggered, this, &ReminderTray::Open_Click);
    connect(Quit, &QAction::triggered, this, &ReminderTray::Quit_Click);
    const QIcon own = QApplication::windowIcon();
    Icon.setIcon(
        own.isNull() ? QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation) : own);
    Icon.setToolTip(tr("Quillmere: reminders on"));
    Icon.setContextMenu(&Menu);
    connect(&Icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason why) {
                if (why == QSystemTrayIcon::Trigger)
                    Open_Click();
            });
    Refresh();
}

bool ReminderTray::KeepsRunning() const
{
    return QSystemTrayIcon::isSystemTrayAvailable() && RemindersOn();
}

void ReminderTray::Refresh() { Icon.setVisible(KeepsRunning()); }

void ReminderTray::WindowClosed(bool exiting)
{
    Refresh();
    if (exiting || Quitting || !KeepsRunning())
        QApplication::quit();
}

void ReminderTray::Open_Click()
{
    Window.show();
    Window.raise();
    Window.activateWindow();
}

// The window saves the settings as it closes; a close it refuses keeps the program open.
void ReminderTray::Quit_Click()
{
    if (!Window.isVisible()) {
        QApplication::quit();
        return;
    }
    Quitting = true;
    if (!Window.close())
        Quitting = false;
}
