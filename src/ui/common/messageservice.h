// SPDX-License-Identifier: GPL-3.0-or-later
// Message and input boxes with the program's texts, titles and buttons. Windows show every
// message through one MessageService; a test installs scripted answers and reads back each
// message that was shown, with its title and buttons.
#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QWidget;

// YesNoDefaultNo: a question whose careless answer (Enter, Escape) must be No.
enum class MsgButtons {
    OK,
    OKCancel,
    YesNo,
    YesNoDefaultNo,
    YesNoCancel,
    RetryCancel,
    SaveDiscardCancel
};
enum class MsgIcon { None, Information, Question, Exclamation, Critical };
enum class MsgResult { OK, Cancel, Yes, No, Retry, Save, Discard };

struct ShownMessage {
    QString Text;
    QString Title;
    MsgButtons Buttons = MsgButtons::OK;
    MsgIcon Icon = MsgIcon::None;
};

struct ShownInput {
    QString Prompt;
    QString Title;
    QString DefaultText;
};

class MessageService {
public:
    using MessageAnswerer = std::function<MsgResult(const ShownMessage&)>;
    // Returns the typed text, or nothing for Cancel.
    using InputAnswerer = std::function<std::optional<QString>(const ShownInput&)>;

    MsgResult MsgBox(const QString& text, MsgButtons buttons = MsgButtons::OK,
                     const QString& title = QStringLiteral("Quillmere"),
                     MsgIcon icon = MsgIcon::None);
    // The typed text; empty when the user cancels, as an input box does.
    QString InputBox(const QString& prompt, const QString& title = QStringLiteral("Quillmere"),
                     const QString& defaultText = {});

    // Tests: answer without showing anything. A missing answerer answers the default button
    // (OK, or No for YesNoDefaultNo) / the default text.
    void Script(MessageAnswerer messages, InputAnswerer inputs = {});
    const std::vector<ShownMessage>& Shown() const { return Messages; }
    const std::vector<ShownInput>& Asked() const { return Inputs; }
    void SetParent(QWidget* parent) { Parent = parent; }

private:
    bool Scripted = false;
    MessageAnswerer ScriptedMessages;
    InputAnswerer ScriptedInputs;
    std::vector<ShownMessage> Messages;
    std::vector<ShownInput> Inputs;
    QWidget* Parent = nullptr;
};
