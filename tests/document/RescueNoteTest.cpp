#include "document/RescueNote.h"

#include "support/Environment.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>

namespace {

TEST(RescueNote, ReadsBackWhatItWrote)
{
    RescueNote note = RescueNote::Now();
    note.reason = "crash";
    note.title = "first\nsecond 100% \xFC";
    note.path = "/a folder/with\nbreak %41.orreva.xml";
    note.seen = true;
    const auto read = RescueNote::Parse(note.Text());
    ASSERT_TRUE(read);
    EXPECT_EQ(note.nanoseconds, read->nanoseconds);
    EXPECT_EQ(note.offset, read->offset);
    EXPECT_EQ(note.reason, read->reason);
    EXPECT_EQ(note.title, read->title);
    EXPECT_EQ(note.path, read->path);
    EXPECT_TRUE(read->seen);
}

TEST(RescueNote, TellsTheTimeOfItsZone)
{
    // 1795291532 is 2026-11-21 20:05:32 UTC: 20778 days behind 1970 and 72332 seconds.
    RescueNote note;
    note.nanoseconds = 1'795'291'532'999'999'999;
    EXPECT_EQ("2026-11-21T20:05:32+00:00", note.Time());
    note.offset = 3600;
    EXPECT_EQ("2026-11-21T21:05:32+01:00", note.Time());
    note.offset = -(9 * 3600 + 30 * 60);
    EXPECT_EQ("2026-11-21T10:35:32-09:30", note.Time());
}

TEST(RescueNote, TakesTheZoneOfTheMoment)
{
    const Environment zone("TZ", "XYZ-5:45"); // east of Greenwich
    tzset();
    EXPECT_EQ(5 * 3600 + 45 * 60, RescueNote::Now().offset);
}

TEST(RescueNote, RefusesWhatIsNone)
{
    const std::string good = RescueNote::Now().Text();
    ASSERT_TRUE(RescueNote::Parse(good));
    EXPECT_FALSE(RescueNote::Parse(""));
    EXPECT_FALSE(RescueNote::Parse(std::string(60000, 'x')));
    EXPECT_FALSE(RescueNote::Parse(good.substr(0, good.find("seen")))) << "cut short";
    EXPECT_FALSE(RescueNote::Parse("time x\noffset 0\nseen 0\n"));
    EXPECT_FALSE(RescueNote::Parse("time -1\noffset 0\nseen 0\n"));
    EXPECT_FALSE(RescueNote::Parse("time 99999999999999999999\noffset 0\nseen 0\n"));
    EXPECT_FALSE(RescueNote::Parse("time 1\noffset 86401\nseen 0\n"));
    const auto odd = RescueNote::Parse("time 1\noffset 0\ntitle %4\nseen 0\npath %zz%\n");
    ASSERT_TRUE(odd);
    EXPECT_EQ("%4", odd->title);
    EXPECT_EQ("%zz%", odd->path);
}

} // namespace
