// SPDX-License-Identifier: GPL-3.0-or-later
// The help viewer: the shipped HTML help of the program folder in a browser window.
#pragma once

#include <QDialog>

class QTextBrowser;

class HelpWindow : public QDialog {
    Q_OBJECT
public:
    // Shows `file`; a missing file is said in words inside the window.
    explicit HelpWindow(const QString& file, QWidget* parent = nullptr);

    QTextBrowser* Browser = nullptr;
};
