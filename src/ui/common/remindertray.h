// SPDX-License-Identifier: GPL-3.0-or-later
// The program's icon in the desktop's system tray while reminders are on: with it, closing the
// main window leaves the program running to send them; its menu opens the window again or
// quits. Without a tray (or without reminders) closing the window quits, as before.
#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include <functional>

class QAction;
class QWidget;

class ReminderTray : public QObject {
    Q_OBJECT
public:
    ReminderTray(QWidget& window, std::function<bool()> remindersOn, QObject* parent = nullptr);

    // Shows the icon while the desktop has a tray and reminders are on; hides it otherwise.
    void Refresh();
    // The main window has closed: the program quits when `exiting` (Exit was chosen) or
    // unless the tray keeps it running.
    void WindowClosed(bool exiting);
    void Open_Click();
    void Quit_Click();

    QSystemTrayIcon Icon;
    QMenu Menu;
    QAction* Open = nullptr;
    QAction* Quit = nullptr;

private:
    QWidget& Window;
    std::function<bool()> RemindersOn;
    bool Quitting = false;

    bool KeepsRunning() const;
};
