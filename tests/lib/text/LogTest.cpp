#include "lib/text/Log.h"
#include "lib/text/LogSink.h"

#include "support/LogRecorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(Log, GivesEachTextToTheSinkAsItIs)
{
    const LogRecorder log;
    LogText("COrrevaData::SetTubeType: 1");
    LogText("");
    LogText(LibString("two\n"));
    EXPECT_EQ((std::vector<std::string>{"COrrevaData::SetTubeType: 1", "", "two\n"}), log.Lines());
}

TEST(Log, LineLogsTheTextAndGivesZero)
{
    const LogRecorder log;
    const LibString text("Sel: 3");
    EXPECT_EQ(0, LogLine(text));
    EXPECT_EQ(std::vector<std::string>{"Sel: 3"}, log.Lines());
    EXPECT_STREQ("Sel: 3", text.GetText());
}

TEST(Log, TakesTheTextByValueSoThatALaterChangeIsNotSeen)
{
    const LogRecorder log;
    LibString text("before");
    LogText(text);
    text = "after";
    EXPECT_EQ(std::vector<std::string>{"before"}, log.Lines());
}

TEST(Log, ANullSinkSilencesItAndTheOldOneComesBack)
{
    const LogRecorder log;
    const LogSink recorder = SetLogSink(nullptr);
    LogText("unheard");
    EXPECT_EQ(nullptr, SetLogSink(recorder));
    LogText("heard");
    EXPECT_EQ(std::vector<std::string>{"heard"}, log.Lines());
}

TEST(Log, SpeaksOnStandardErrorInDebugBuildsOnly)
{
    testing::internal::CaptureStderr();
    LogText("a line");
    const std::string told = testing::internal::GetCapturedStderr();
#ifdef NDEBUG
    EXPECT_EQ("", told);
#else
    EXPECT_EQ("a line\n", told);
#endif
}

} // namespace
