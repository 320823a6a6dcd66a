#include "document/StatusLine.h"

#include <gtest/gtest.h>

namespace {

TEST(StatusLine, SaysWhatWasDoneUntilTheNextCommand)
{
    StatusLine line;
    line.Say("done");
    EXPECT_EQ("done", line.Text());
    line.BeginCommand();
    EXPECT_EQ("", line.Text());
}

TEST(StatusLine, AFailureStaysUntilItSucceeds)
{
    StatusLine line;
    line.Fail(StatusTopic::Save, "no room");
    line.BeginCommand();
    EXPECT_EQ("no room", line.Text());
    line.Succeed(StatusTopic::Export, "exported");
    EXPECT_EQ("no room  |  exported", line.Text());
    line.Fail(StatusTopic::Save, "read-only");
    EXPECT_EQ("read-only", line.Text());
    line.Succeed(StatusTopic::Save, "saved");
    EXPECT_EQ("saved", line.Text());
}

TEST(StatusLine, ThatCopiesCannotBeKeptIsToldUntilTheNextCommand)
{
    StatusLine line;
    line.Fail(StatusTopic::RescueCopies, "no copies");
    line.Fail(StatusTopic::Save, "no room");
    EXPECT_EQ("no room  |  no copies", line.Text());
    line.BeginCommand();
    EXPECT_EQ("no room", line.Text());
}

} // namespace
