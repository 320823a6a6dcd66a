#include "model/analysis/Variation.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

VariedField Varied(const char* key, double from, double to, std::int64_t count)
{
    return {FindRecordField(key), from, to, count};
}

TEST(VariedField, PointsStandInEqualSteps)
{
    const VariedField field = Varied("mirror/diameter", 100, 130, 4);
    EXPECT_EQ(100, field.Point(0));
    EXPECT_EQ(110, field.Point(1));
    EXPECT_EQ(130, field.Point(3));
    EXPECT_EQ(7, Varied("mirror/diameter", 7, 9, 1).Point(0));
    EXPECT_EQ(0.1 + 2 * (0.4 - 0.1) / 3, Varied("mirror/diameter", 0.1, 0.4, 4).Point(2));
    EXPECT_EQ(-5, Varied("mirror/diameter", 5, -5, 2).Point(1));
}

class VariationTable : public testing::Test {
protected:
    VariationTable() { MakeRoundScope(record); }
    COrrevaData record;
};

TEST_F(VariationTable, TheFirstFieldRunsSlowest)
{
    const Variation variation(record,
                              {Varied("focuser/height", 40, 60, 2), Varied("focuser/spare", 0, 20, 3)},
                              {FindDesignValue("focuser_total_height")});
    ASSERT_EQ(6, variation.RowCount());
    ASSERT_EQ(3u, variation.ColumnCount());
    const std::array<double, 3> expected[] = {{40, 0, 40}, {40, 10, 50}, {40, 20, 60},
                                              {60, 0, 60}, {60, 10, 70}, {60, 20, 80}};
    Variation::Reader reader(variation);
    std::array<double, 3> cells{};
    for (const std::int64_t row : {5, 0, 3, 2, 4, 1}) { // in whatever order they are asked for
        reader.Read(row, cells);
        EXPECT_EQ(expected[row], cells) << row;
    }
}

TEST_F(VariationTable, FieldsAreStoredInTheirOrder)
{
    // A weight that is stored before the diameter is cleared by it.
    const DesignValue* const weight = FindDesignValue("weight/mirror");
    const Variation before(record, {Varied("weight/mirror", 7, 7, 1), Varied("mirror/diameter", 200, 200, 1)},
                           {weight});
    const Variation behind(record, {Varied("mirror/diameter", 200, 200, 1), Varied("weight/mirror", 7, 7, 1)},
                           {weight});
    std::array<double, 3> cells{};
    Variation::Reader(before).Read(0, cells);
    EXPECT_NEAR(2.4 * 3.1415926535 * 100 * 100 * 20 / 1000, cells[2], 1e-9);
    Variation::Reader(behind).Read(0, cells);
    EXPECT_EQ(7, cells[2]);
}

TEST_F(VariationTable, ARowIsRecalculatedTwice)
{
    COrrevaData fresh; // whose first reading would be infinite
    fresh.SetFocalLength(1500);
    const Variation variation(fresh, {Varied("mirror/diameter", 250, 250, 1)},
                              {FindDesignValue("full_field_angle"), FindDesignValue("focal_plane_height")});
    std::array<double, 3> cells{};
    Variation::Reader(variation).Read(0, cells);
    EXPECT_TRUE(std::isfinite(cells[1]));
    EXPECT_EQ(214.25, cells[2]);
}

TEST_F(VariationTable, NonsenseStaysNumbers)
{
    const Variation variation(
        record, {Varied("mirror/diameter", -1e308, 1e308, 5), Varied("mirror/focal_length", -1, 1, 3)},
        {FindDesignValue("field_at_75_percent"), FindDesignValue("cell_nine")});
    Variation::Reader reader(variation);
    std::array<double, 4> cells{};
    for (std::int64_t row = 0; row < variation.RowCount(); ++row) {
        reader.Read(row, cells);
        EXPECT_TRUE(std::isnan(cells[2])) << "no such telescope has light";
    }
}

} // namespace
