// SPDX-License-Identifier: GPL-3.0-or-later
// The about window: the program's name and version, a contact address and a web address
// (a click on either opens it through the desktop), and the credit for the city list.
#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

class FrmAbout : public QDialog {
    Q_OBJECT
public:
    using Opener = std::function<bool(const QString& operation, const QString& file)>;
    explicit FrmAbout(QWidget* parent = nullptr, Opener opener = {});

    void lblWeb_Click();
    void lblEmail_Click();

    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* Email = nullptr;
    QLabel* lblEmail = nullptr;
    QLabel* lblWeb = nullptr;
    QLabel* lblCredits = nullptr;
    QPushButton* cmdOK = nullptr;

    static const QString ContactAddress;
    static const QString WebAddress;

private:
    Opener Open;
};
