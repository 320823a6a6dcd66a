#include "model/optics/CouderMask.h"

#include "lib/text/Assertion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Answers every assertion alike and writes the texts down.
class AnsweringDesktop : public AssertDesktop {
public:
    explicit AnsweringDesktop(AssertAnswer fixedAnswer) : answer(fixedAnswer), before(SetAssertDesktop(this))
    {}
    ~AnsweringDesktop() override { SetAssertDesktop(before); }

    AssertAnswer AskAssert(const char*, const char* text) override
    {
        texts.emplace_back(text);
        return answer;
    }
    void CloseMainWindow() override {}
    void BreakIntoDebugger() override {}
    void FatalAppExit(const char*) override {}

    std::vector<std::string> texts;

private:
    AssertAnswer answer;
    AssertDesktop* before;
};

class CurrentMask : public testing::Test {
protected:
    void TearDown() override { g_pCurrentMask.reset(); }

    static ZoneFields Fields(const char* wanted, const char* edge = "0")
    {
        return {.wanted_zones = wanted, .centre_percent = "5", .edge_width = edge, .view = {}};
    }
};

TEST_F(CurrentMask, IsAbsentAtTheStartWithNeitherColumnsNorRows)
{
    EXPECT_EQ(nullptr, g_pCurrentMask);
    const ZoneTable table = MaskZones(g_pCurrentMask.get());
    EXPECT_TRUE(table.Columns().empty());
    EXPECT_EQ(0, table.RowCount());
}

TEST_F(CurrentMask, TakesTheCalculatorsDataOver)
{
    ZoneFields fields = Fields("3", "10");
    fields.view = {kEverestPinstick, kTexereau, kFixedSource};
    TakeOverZones(fields, 200, 1200);
    const CouderMask& mask = *g_pCurrentMask;
    EXPECT_EQ(200, mask.diameter);
    EXPECT_EQ(1200, mask.focal_length);
    EXPECT_EQ(5, mask.centre_percent);
    EXPECT_EQ(10, mask.edge_width);
    EXPECT_EQ(3, mask.zone_count);
    EXPECT_EQ(kEverestPinstick, mask.mask_type);
    // Whatever the calculator shows.
    EXPECT_EQ(kMovingSource, mask.light_source);
    EXPECT_EQ(kCarlin, mask.centre_method);
}

TEST_F(CurrentMask, DividesTheFullDiameterByTheWholeNumber)
{
    TakeOverZones(Fields("3.7", "10"), 200, 1200);
    EXPECT_EQ(3, g_pCurrentMask->zone_count);
    EXPECT_NEAR(22.360680, g_pCurrentMask->GetInnerRadius(0), 1e-6);
    EXPECT_NEAR(60.553007, g_pCurrentMask->GetOuterRadius(0), 1e-6);
    EXPECT_EQ(g_pCurrentMask->GetOuterRadius(0), g_pCurrentMask->GetInnerRadius(1));
    EXPECT_DOUBLE_EQ(100, g_pCurrentMask->GetOuterRadius(2));
}

TEST_F(CurrentMask, AccessorsAnswerOutsideOfTheZonesWithTheUnsetMark)
{
    TakeOverZones(Fields("3"), 200, 1200);
    for (const std::int32_t i : {-1, 3, 64, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(HUGE_VAL, g_pCurrentMask->GetInnerRadius(i)) << i;
        EXPECT_EQ(HUGE_VAL, g_pCurrentMask->GetOuterRadius(i)) << i;
    }
}

TEST_F(CurrentMask, ListsItsOwnDataAlwaysByCarlinWithAMovingSource)
{
    ZoneFields fields = Fields("3");
    fields.view = {kCouderMask, kTexereau, kFixedSource};
    TakeOverZones(fields, 200, 1200);
    const ZoneTable table = MaskZones(g_pCurrentMask.get());
    ASSERT_EQ(5u, table.Columns().size());
    EXPECT_STREQ("Corrected Center Radius (Carlin)", table.Columns()[3].title.In(kEnglish));
    ASSERT_EQ(3, table.RowCount());
    EXPECT_EQ((ListRow{"1", "22.3607 mm", "60.5530 mm", "43.6005 mm", "0.0000 mm"}), table.Row(0));
    EXPECT_EQ((ListRow{"3", "82.6640 mm", "100.0000 mm", "91.5374 mm", "1.3496 mm"}), table.Row(2));

    fields.view.mask_type = kEverestPinstick;
    TakeOverZones(fields, 200, 1200);
    EXPECT_EQ(3u, MaskZones(g_pCurrentMask.get()).Columns().size());
    EXPECT_EQ((ListRow{"3", "91.5374 mm", "1.3496 mm"}), MaskZones(g_pCurrentMask.get()).Row(2));
}

TEST_F(CurrentMask, IsReplacedAndNeverMerged)
{
    TakeOverZones(Fields("9"), 200, 1200);
    TakeOverZones(Fields("2"), 300, 1500);
    EXPECT_EQ(2, g_pCurrentMask->zone_count);
    EXPECT_EQ(300, g_pCurrentMask->diameter);
    EXPECT_EQ(2, MaskZones(g_pCurrentMask.get()).RowCount());
    EXPECT_EQ(HUGE_VAL, g_pCurrentMask->GetOuterRadius(2));
    EXPECT_DOUBLE_EQ(150, g_pCurrentMask->GetOuterRadius(1));
}

TEST_F(CurrentMask, ItsListDoesNotFollowAReplacedMask)
{
    TakeOverZones(Fields("3"), 200, 1200);
    const ZoneTable table = MaskZones(g_pCurrentMask.get());
    g_pCurrentMask.reset();
    EXPECT_EQ("82.6640 mm", table.Row(1)[2]);
}

TEST_F(CurrentMask, HoldsSixtyFourZonesWithoutAWord)
{
    AnsweringDesktop desktop(AssertAnswer::Ignore);
    TakeOverZones(Fields("64"), 200, 1200);
    EXPECT_TRUE(desktop.texts.empty());
    EXPECT_EQ(64, MaskZones(g_pCurrentMask.get()).RowCount());
    EXPECT_DOUBLE_EQ(100, g_pCurrentMask->GetOuterRadius(63));
}

TEST_F(CurrentMask, AZoneTooManyTripsTheAssertionAndIsNotWritten)
{
    for (const AssertAnswer answer : {AssertAnswer::Ignore, AssertAnswer::Retry, AssertAnswer::Abort}) {
        for (const char* wanted : {"65", "1000", "1000000000", "99999999999999999999"}) {
            AnsweringDesktop desktop(answer);
            TakeOverZones(Fields(wanted), 200, 1200);
            ASSERT_EQ(1u, desktop.texts.size()) << wanted;
            EXPECT_EQ(
                0u, desktop.texts[0].find("Assert(i<MAX_MASK_ZONES);\nFile src/model/optics/CouderMask.cpp"))
                << desktop.texts[0];
            EXPECT_LT(64, g_pCurrentMask->zone_count);
            EXPECT_EQ(HUGE_VAL, g_pCurrentMask->GetInnerRadius(64));
            const double N = g_pCurrentMask->zone_count;
            EXPECT_EQ(ZoneRadius(200, N, 64, 5), g_pCurrentMask->GetOuterRadius(63));
            EXPECT_EQ(64, MaskZones(g_pCurrentMask.get()).RowCount());
        }
    }
}

TEST_F(CurrentMask, WithoutZones)
{
    for (const char* wanted : {"0", "-5", "abc", ""}) {
        TakeOverZones(Fields(wanted), 200, 1200);
        EXPECT_EQ(0, MaskZones(g_pCurrentMask.get()).RowCount()) << wanted;
        EXPECT_EQ(5u, MaskZones(g_pCurrentMask.get()).Columns().size()) << wanted;
        EXPECT_EQ(HUGE_VAL, g_pCurrentMask->GetInnerRadius(0)) << wanted;
    }
}

} // namespace
