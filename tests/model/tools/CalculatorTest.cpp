#include "model/tools/Calculator.h"
#include "model/tools/InchConversion.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

namespace {

TEST(Calculator, ShowsSixDecimals)
{
    EXPECT_EQ("7.000000", Calculate("1+2*3").text);
    EXPECT_TRUE(Calculate("1+2*3").bNumber);
    EXPECT_EQ("2004.000000", Calculate("year(date(24.12.2004))").text);
    EXPECT_EQ("-0.500000", Calculate("mod(0-2.5)").text);
    EXPECT_EQ("0.000000", Calculate("mem(3)").text) << "nothing is kept from one to the next";
    EXPECT_TRUE(Calculate("mem(3)").bNumber);
    EXPECT_EQ(309u + 7u, Calculate("1e308").text.size());
    EXPECT_EQ(1u + 309u + 7u, Calculate("-1e308").text.size());
}

TEST(Calculator, ShowsTheMessageOfAFailure)
{
    EXPECT_EQ("No input data.", Calculate("").text);
    EXPECT_FALSE(Calculate("").bNumber);
    EXPECT_EQ("Unknown character [ 3 ].", Calculate("2 3").text);
    EXPECT_EQ("Fakultät overflow."_cp1252, Calculate("5!").text);
    EXPECT_EQ("Unknown Error.", Calculate("mem(1.5)").text);
    EXPECT_EQ("Wrong number of arguments. [pow]", Calculate("pow()").text);
}

TEST(Calculator, TakesInfinityAndNanForFailuresWithoutAnError)
{
    EXPECT_EQ("No errors.", Calculate("sqrt(0-1)").text);
    EXPECT_FALSE(Calculate("sqrt(0-1)").bNumber);
    EXPECT_EQ("No errors.", Calculate("1e308*10").text);
    EXPECT_EQ("-inf", Calculate("log(0)").text) << "a negative infinity is shown";
    EXPECT_TRUE(Calculate("log(0)").bNumber);
}

TEST(Calculator, TakesUpTo1023Characters)
{
    EXPECT_EQ("7.000000", Calculate(std::string(1022, ' ') + "7").text);
    EXPECT_EQ("Expression of more than 1023 characters.", Calculate(std::string(1023, ' ') + "7").text);
    EXPECT_FALSE(Calculate(std::string(1023, ' ') + "7").bNumber);
    EXPECT_EQ("1.000000", Calculate(std::string(511, '(') + "1" + std::string(511, ')')).text);
}

TEST(InchConversion, ConvertsBothWays)
{
    EXPECT_EQ("38.100000", InchToMmText("1,5"));
    EXPECT_EQ("25.400000", InchToMmText("1"));
    EXPECT_EQ("1.000000", MmToInchText("25.4"));
    EXPECT_EQ("0.393701", MmToInchText("10 mm"));
    EXPECT_EQ("-1.000000", MmToInchText(" -25,4"));
    EXPECT_EQ("0.000000", MmToInchText(""));
    EXPECT_EQ("0.000000", InchToMmText("inch"));
    EXPECT_EQ("inf", InchToMmText("1.#INF"));
}

} // namespace
