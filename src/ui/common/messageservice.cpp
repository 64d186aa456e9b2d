// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/messageservice.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QStyle>

namespace {
QMessageBox::StandardButtons ToQt(MsgButtons b)
{
    switch (b) {
    case MsgButtons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::YesNo:
    case MsgButtons::YesNoDefaultNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::RetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    case MsgButtons::SaveDiscardCancel:
        return QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    case MsgButtons::OK:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon ToQt(MsgIcon i)
{
    switch (i) {
    case MsgIcon::Information:
        return QMessageBox::Information;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Critical:
        return QMessageBox::Critical;
    case MsgIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

MsgResult FromQt(int button)
{
    switch (button) {
    case QMessageBox::Cancel:
        return MsgResult::Cancel;
    case QMessageBox::Yes:
        return MsgResult::Yes;
    case QMessageBox::No:
        return MsgResult::No;
    case QMessageBox::Retry:
        return MsgResult::Retry;
    case QMessageBox::Save:
        return MsgResult::Save;
    case QMessageBox::Discard:
        return MsgResult::Discard;
    default:
        return MsgResult::OK;
    }
}
// A title bar elides a title wider than its window ("Comp... ases" over a short message): the
// box is made at least as wide as its title in the title bar's bold font beside the bar's
// buttons.
void WideEnoughForTitle(QMessageBox& box)
{
    constexpr int TitleBarButtons = 4; // close, maximise, minimise and the menu, each square
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr)
        return;
    QFont bold = QApplication::font("QMdiSubWindowTitleBar");
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) +
                      TitleBarButtons * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum),
                  grid->rowCount(), 0, 1, grid->columnCount());
}
} // namespace

MsgResult MessageService::MsgBox(const QString& text, MsgButtons buttons, const QString& title,
                                 MsgIcon icon)
{
    Messages.push_back({text, title, buttons, icon});
    const bool defaultNo = buttons == MsgButtons::YesNoDefaultNo;
    if (Scripted && ScriptedMessages)
        return ScriptedMessages(Messages.back());
    if (Scripted)
        return defaultNo ? MsgResult::No : MsgResult::OK;
    QMessageBox box(ToQt(icon), title, text, ToQt(buttons), Parent);
    if (defaultNo) {
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
    }
    WideEnoughForTitle(box);
    return FromQt(box.exec());
}

QString MessageService::InputBox(const QString& prompt, const QString& title,
                                 const QString& defaultText)
{
    Inputs.push_back({prompt, title, defaultText});
    if (Scripted)
        return ScriptedInputs ? ScriptedInputs(Inputs.back()).value_or(QString()) : defaultText;
    bool ok = false;
    const QString text =
        QInputDialog::getText(Parent, title, prompt, QLineEdit::Normal, defaultText, &ok);
    return ok ? text : QString();
}

void MessageService::Script(MessageAnswerer messages, InputAnswerer inputs)
{
    Scripted = true;
    ScriptedMessages = std::move(messages);
    ScriptedInputs = std::move(inputs);
}
