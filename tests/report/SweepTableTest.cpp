#include "report/SweepTable.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <charconv>

namespace {

class SweepTable : public testing::Test {
protected:
    SweepTable() { MakeRoundScope(record); }

    Variation Heights(std::int64_t count) const
    {
        return {record,
                {{FindRecordField("focuser/height"), 0, static_cast<double>(count - 1), count}},
                {FindDesignValue("focuser_total_height")}};
    }

    static std::string Written(const Variation& variation, int jobs, TableFormat format = TableFormat::kText)
    {
        std::string text;
        WriteSweep(variation, TableLayout(format, {"focuser/height", "focuser_total_height"}, true), jobs,
                   [&](std::string_view bytes) {
                       text += bytes;
                       return true;
                   });
        return text;
    }

    COrrevaData record;
};

TEST_F(SweepTable, RowsComeInOrderFromAnyNumberOfThreads)
{
    constexpr std::int64_t kRows = 20000;
    std::string expected = "focuser/height\tfocuser_total_height\n";
    for (std::int64_t i = 0; i < kRows; ++i) {
        char digits[32]; // 20 mm spare, and shortest digits: 10000 is 10000, 1e4 is as long
        expected.append(digits, std::to_chars(digits, digits + 32, static_cast<double>(i)).ptr);
        expected += '\t';
        expected.append(digits, std::to_chars(digits, digits + 32, static_cast<double>(i + 20)).ptr);
        expected += '\n';
    }
    const Variation variation = Heights(kRows);
    for (const int jobs : {1, 2, 3, 7, 64}) {
        EXPECT_TRUE(expected == Written(variation, jobs)) << jobs << " threads";
    }
}

TEST_F(SweepTable, OneRowInEachForm)
{
    const Variation variation = Heights(1);
    EXPECT_EQ("focuser/height\tfocuser_total_height\n0\t20\n", Written(variation, 4));
    EXPECT_EQ("focuser/height,focuser_total_height\n0,20\n", Written(variation, 4, TableFormat::kCsv));
    EXPECT_EQ("[\n  {\n    \"focuser/height\": 0,\n    \"focuser_total_height\": 20\n  }\n]\n",
              Written(variation, 4, TableFormat::kJson));
}

TEST_F(SweepTable, EndsWithItsReader)
{
    const Variation variation = Heights(100'000'000); // far more than anyone waits for
    for (const int jobs : {1, 2, 5}) {
        int pieces = 0;
        WriteSweep(variation, TableLayout(TableFormat::kText, {"a", "b"}, true), jobs,
                   [&](std::string_view) { return ++pieces < 4; });
        EXPECT_EQ(4, pieces) << jobs;
    }
}

} // namespace
