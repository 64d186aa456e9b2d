// SPDX-License-Identifier: GPL-3.0-or-later
// What the log windows need from the program, for window tests: a scripted message
// service, the log state, an engine at Pittsburgh, PA and a program folder of the test's own;
// the year-file fixtures and the Qt Test headers every window test of the log uses.
#pragma once

#include "astro/astronomy.h"
#include "logdb/logstate.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"
#include "ui/common/messageservice.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace logtest {

struct LogWindowEnv {
    MessageService Messages;
    LogState State;
    Astronomy Engine;
    QString Folder;
    std::vector<MsgResult> Answers; // given in turn; OK when they run out

    // dbPath is the year file the log has open, as the record browser finds it.
    explicit LogWindowEnv(QString folder, QString dbPath = {}) : Folder(std::move(folder))
    {
        State.DBPath = std::move(dbPath);
        Engine.Site.SetPlace(80.0, 40.44, 5);
        Engine.Site.DstOffsetDays = -60 / 1440.0;
        Messages.Script([this](const ShownMessage&) {
            const MsgResult answer = Answers.empty() ? MsgResult::OK : Answers.front();
            Answers.erase(Answers.begin(), Answers.begin() + (Answers.empty() ? 0 : 1));
            return answer;
        });
    }

    LogContext Context(std::int16_t year = 2024)
    {
        return {Messages, State, Engine, 0, -60, 0x80FFFF, year, Folder};
    }

    QStringList ShownTexts() const
    {
        QStringList texts;
        for (const ShownMessage& m : Messages.Shown())
            texts << m.Text;
        return texts;
    }
};

// Saves the window's picture for a person to look at.
inline void Screenshot(QWidget& window, const QString& name)
{
    QDir().mkpath(QUILLMERE_SCREENSHOTS);
    window.grab().save(QDir(QUILLMERE_SCREENSHOTS).filePath(name + ".png"));
}

} // namespace logtest
