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
    EXPECT_EQ("exported  |  no room", line.Text());
    line.Fail(StatusTopic::Save, "read-only");
    EXPECT_EQ("read-only", line.Text());
    line.Succeed(StatusTopic::Save, "saved");
    EXPECT_EQ("saved", line.Text());
}

TEST(StatusLine, TheNewestStandsFirst)
{
    StatusLine line;
    line.Fail(StatusTopic::Save, "no room");
    line.Fail(StatusTopic::Print, "no paper");
    line.Fail(StatusTopic::Export, "read-only");
    EXPECT_EQ("read-only  |  no paper  |  no room", line.Text());
    line.Fail(StatusTopic::Print, "still no paper");
    EXPECT_EQ("still no paper  |  read-only  |  no room", line.Text());
    line.Say("done");
    EXPECT_EQ("done  |  still no paper  |  read-only  |  no room", line.Text());
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
