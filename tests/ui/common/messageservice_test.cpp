// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/messageservice.h"

#include <gtest/gtest.h>

TEST(MessageService, ScriptedAnswersAndTheRecordOfWhatWasShown)
{
    MessageService m;
    m.Script(
        [](const ShownMessage& msg) {
            return msg.Buttons == MsgButtons::YesNo ? MsgResult::No : MsgResult::OK;
        },
        [](const ShownInput&) { return std::optional<QString>("2004"); });
    EXPECT_EQ(m.MsgBox("Confirm?", MsgButtons::YesNo, "Delete"), MsgResult::No);
    EXPECT_EQ(m.MsgBox("Done"), MsgResult::OK);
    EXPECT_EQ(m.InputBox("Year?", "Create", "2024"), "2004");
    ASSERT_EQ(m.Shown().size(), 2u);
    EXPECT_EQ(m.Shown()[0].Title, "Delete");
    EXPECT_EQ(m.Shown()[1].Title, "Quillmere");
    EXPECT_EQ(m.Shown()[1].Buttons, MsgButtons::OK);
    EXPECT_EQ(m.Asked().at(0).DefaultText, "2024");

    MessageService cancelled;
    cancelled.Script({}, [](const ShownInput&) { return std::optional<QString>(); });
    EXPECT_EQ(cancelled.InputBox("Year?"), "");
}
