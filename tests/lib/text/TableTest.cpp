#include "lib/text/Table.h"

#include "lib/text/ShortestNumber.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

std::string Number(double value)
{
    std::string out;
    AppendNumber(out, value);
    return out;
}

std::string Field(std::string_view text)
{
    std::string out;
    AppendCsvField(out, text);
    return out;
}

TEST(ShortestNumber, ReadsBackAsTheSameDouble)
{
    EXPECT_EQ("0.1", Number(0.1));
    EXPECT_EQ("0.30000000000000004", Number(0.1 + 0.2));
    EXPECT_EQ("1e+05", Number(100000));
    EXPECT_EQ("250", Number(250));
    EXPECT_EQ("-0", Number(-0.0));
    EXPECT_EQ("5e-324", Number(5e-324));
    EXPECT_EQ("-1.7976931348623157e+308", Number(-1.7976931348623157e308));
}

TEST(ShortestNumber, WordsForWhatIsNotFinite)
{
    EXPECT_EQ("nan", Number(NAN));
    EXPECT_EQ("nan", Number(std::copysign(NAN, -1.0)));
    EXPECT_EQ("inf", Number(HUGE_VAL));
    EXPECT_EQ("-inf", Number(-HUGE_VAL));
}

TEST(Csv, QuotesOnlyWhereItMust)
{
    EXPECT_EQ("", Field(""));
    EXPECT_EQ("a b;c\t'", Field("a b;c\t'"));
    EXPECT_EQ("\"a,b\"", Field("a,b"));
    EXPECT_EQ("\"8\"\" f/6\"", Field("8\" f/6"));
    EXPECT_EQ("\"a\nb\"", Field("a\nb"));
    EXPECT_EQ("\"a\rb\"", Field("a\rb"));
}

std::string Whole(TableFormat format, bool textHeader, const std::vector<std::vector<TableCell>>& rows)
{
    const TableLayout layout(format, {"name", "a \"b\""}, textHeader);
    std::string out;
    layout.AppendHead(out);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        layout.AppendRow(out, rows[i], i == 0);
    }
    layout.AppendFoot(out, rows.empty());
    return out;
}

const std::vector<std::vector<TableCell>> kRows = {{"two\r\nlines,\tand", 0.5}, {"x", NAN}};

TEST(Table, TextHasTabsAndALineForEachRow)
{
    EXPECT_EQ("name\ta \"b\"\ntwo lines, and\t0.5\nx\tnan\n", Whole(TableFormat::kText, true, kRows));
    EXPECT_EQ("two lines, and\t0.5\nx\tnan\n", Whole(TableFormat::kText, false, kRows));
    EXPECT_EQ("", Whole(TableFormat::kText, false, {}));
}

TEST(Table, CsvAlwaysNamesItsColumns)
{
    EXPECT_EQ("name,\"a \"\"b\"\"\"\n\"two\r\nlines,\tand\",0.5\nx,nan\n",
              Whole(TableFormat::kCsv, false, kRows));
    EXPECT_EQ("name,\"a \"\"b\"\"\"\n", Whole(TableFormat::kCsv, false, {}));
}

TEST(Table, JsonIsAnArrayOfObjects)
{
    EXPECT_EQ("[\n"
              "  {\n"
              "    \"name\": \"two\\r\\nlines,\\tand\",\n"
              "    \"a \\\"b\\\"\": 0.5\n"
              "  },\n"
              "  {\n"
              "    \"name\": \"x\",\n"
              "    \"a \\\"b\\\"\": null\n"
              "  }\n"
              "]\n",
              Whole(TableFormat::kJson, false, kRows));
    EXPECT_EQ("[]\n", Whole(TableFormat::kJson, true, {}));
}

} // namespace
