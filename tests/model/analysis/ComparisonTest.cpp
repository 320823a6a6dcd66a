#include "model/analysis/Comparison.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

std::vector<std::string> Differing(COrrevaData& first, COrrevaData& second)
{
    std::vector<std::string> names;
    for (const ComparedRow& row : CompareDesigns({first, {25, 1}}, {second, {25, 1}})) {
        if (row.Differs()) {
            names.push_back(row.name);
        }
    }
    return names;
}

TEST(Comparison, ShowsTextsAndThenAllValues)
{
    COrrevaData first;
    COrrevaData second;
    const auto rows = CompareDesigns({first}, {second});
    ASSERT_EQ(3 + DesignValues().size(), rows.size());
    EXPECT_STREQ("title", rows[0].name);
    EXPECT_STREQ("description", rows[1].name);
    EXPECT_STREQ("mirror/material", rows[2].name);
    EXPECT_STREQ("", rows[2].unit);
    EXPECT_TRUE(rows[2].is_text);
    EXPECT_STREQ("misc/wanted_100percent_fow", rows[3].name);
    EXPECT_FALSE(rows[3].is_text);
}

TEST(Comparison, TellsWhatDiffers)
{
    COrrevaData first;
    COrrevaData second;
    MakeRoundScope(first);
    MakeRoundScope(second);
    EXPECT_TRUE(Differing(first, second).empty());
    second.SetMaterial("Pyrex");
    second.SetStarDiameter(0.06);
    EXPECT_EQ((std::vector<std::string>{"mirror/material", "tests/artificial_star/diameter"}),
              Differing(first, second));
}

TEST(Comparison, TwoNaNDoNotDiffer)
{
    ComparedRow row{"x", "mm", {"", ""}};
    row.first = NAN;
    row.second = -NAN;
    EXPECT_FALSE(row.Differs());
    row.second = 1;
    EXPECT_TRUE(row.Differs());
    row.first = HUGE_VAL;
    EXPECT_TRUE(row.Differs());
    row.second = HUGE_VAL;
    EXPECT_FALSE(row.Differs());
}

} // namespace
