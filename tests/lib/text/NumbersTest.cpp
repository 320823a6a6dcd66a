#include "lib/text/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Numbers, ConstantsOfTheFormulasAreTheirDecimals)
{
    EXPECT_EQ(3.1415926535, kPi);
    EXPECT_EQ(1.57079632675, kHalfPi);
    EXPECT_EQ(25.4, kInch);
}

struct TruncCase {
    double value;
    std::int32_t expected;
};

TEST(Numbers, TruncToInt32CutsTowardZeroAndStopsAtTheEnds)
{
    const TruncCase cases[] = {
        {0.0, 0},
        {-0.0, 0},
        {0.999, 0},
        {-0.999, 0},
        {2.5, 2},
        {-2.5, -2},
        {2147483646.9, 2147483646},
        {2147483647.0, 2147483647},
        {2147483648.0, 2147483647},
        {1e300, 2147483647},
        {kInfinity, 2147483647},
        {-2147483647.9, -2147483647},
        {-2147483648.0, -2147483647 - 1},
        {-2147483648.9, -2147483647 - 1},
        {-1e300, -2147483647 - 1},
        {-kInfinity, -2147483647 - 1},
        {std::nan(""), 0},
    };
    for (const TruncCase& c : cases) {
        EXPECT_EQ(c.expected, TruncToInt32(c.value)) << c.value;
    }
}

struct NumberCase {
    const char* text;
    double expected;
};

TEST(Numbers, DecimalValueReadsOneDecimalNumberAtTheStart)
{
    const NumberCase cases[] = {
        {"", 0.0},
        {"abc", 0.0},
        {"1", 1.0},
        {"007", 7.0},
        {"1.5", 1.5},
        {"1,5", 1.0},
        {".5", 0.5},
        {"5.", 5.0},
        {".", 0.0},
        {"-.", 0.0},
        {"-", 0.0},
        {"--1", 0.0},
        {"+-1", 0.0},
        {"+2.5", 2.5},
        {"-2.5", -2.5},
        {" \t\n\v\f\r 3", 3.0},
        {"- 3", 0.0},
        {"2.5 mm", 2.5},
        {"1.2.3", 1.2},
        {"1e3", 1000.0},
        {"1E+3", 1000.0},
        {"1e-3", 0.001},
        {"1e", 1.0},
        {"1e+", 1.0},
        {"1e+x", 1.0},
        {"1e1.5", 10.0},
        {".e5", 0.0},
        {"1d3", 1.0},
        {"0x10", 0.0},
        {"inf", 0.0},
        {"-infinity", 0.0},
        {"nan", 0.0},
        {"NAN(1)", 0.0},
        {"1e308", 1e308},
        {"1e309", kInfinity},
        {"-1e309", -kInfinity},
        {"1e999999999999", kInfinity},
        {"1e-999999999999", 0.0},
        {"4.9e-324", 4.9406564584124654e-324},
        {"1.#INF", 1.0},
    };
    for (const NumberCase& c : cases) {
        EXPECT_EQ(c.expected, DecimalValue(c.text)) << c.text;
    }
}

TEST(Numbers, DecimalValueTakesALongNumber)
{
    EXPECT_EQ(kInfinity, DecimalValue(std::string(100000, '9').c_str()));
    EXPECT_EQ(1.0, DecimalValue((std::string(100000, '0') + "1").c_str()));
}

struct IntegerCase {
    const char* text;
    std::int32_t expected;
};

TEST(Numbers, IntegerValueReadsDigitsAndStopsAtTheEnds)
{
    const IntegerCase cases[] = {
        {"", 0},
        {"abc", 0},
        {"42", 42},
        {" \t\n42 mm", 42},
        {"-7", -7},
        {"+7", 7},
        {"+-7", 0},
        {"- 7", 0},
        {"1.9", 1},
        {"1e3", 1},
        {"0x10", 0},
        {"010", 10},
        {"2147483647", 2147483647},
        {"2147483648", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"-2147483649", -2147483647 - 1},
        {"99999999999999999999999999", 2147483647},
    };
    for (const IntegerCase& c : cases) {
        EXPECT_EQ(c.expected, IntegerValue(c.text)) << c.text;
    }
    EXPECT_EQ(2147483647, IntegerValue(std::string(100000, '9').c_str()));
}

TEST(Numbers, TextToDoubleIsTolerant)
{
    const NumberCase cases[] = {
        {nullptr, 0.0},
        {"", 0.0},
        {"   ", 0.0},
        {"abc", 0.0},
        {"1,5", 1.5},
        {"1.5", 1.5},
        {"  2.5 mm", 2.5},
        {"\t 2,5 mm", 2.5},
        {"1,5,6", 1.5},
        {"1.5,6", 1.5},
        {"1,5.6", 1.5},
        {",5", 0.5},
        {"-1,5", -1.5},
        {"x,5", 0.0},
        {"1.#INF", kInfinity},
        {" \t1.#INF", kInfinity},
        {"1.#INF00 mm", kInfinity},
        {"1.#inf", 1.0},
        {"1,#INF", 1.0},
        {"-1.#INF", -1.0},
        {"-1.#INF00", -1.0},
        {"-1.#IND00", -1.0},
        {"\n1.#INF", 1.0},
        {"\n2,5", 2.5},
        {"inf", 0.0},
        {"nan", 0.0},
        {"0x1F", 0.0},
        {"1e400", kInfinity},
    };
    for (const NumberCase& c : cases) {
        EXPECT_EQ(c.expected, TextToDouble(c.text)) << (c.text != nullptr ? c.text : "null");
    }
}

TEST(Numbers, TextToDoubleReadsNoTextOf1001Characters)
{
    const std::string blanks(990, ' ');
    EXPECT_EQ(1234567890.0, TextToDouble((blanks + "1234567890").c_str()));
    EXPECT_EQ(0.0, TextToDouble((blanks + "1234567890 ").c_str()));
    EXPECT_EQ(0.0, TextToDouble((blanks + "     1.#INF").c_str()));
}

TEST(IsNumberText, TakesWhatTextToDoubleReadsWhole)
{
    for (const char* const text : {"1", "-1.5", "+.5", "250,5", " \t3 ", "1e3", "5.", "1E-2"}) {
        EXPECT_TRUE(IsNumberText(text)) << text;
    }
    for (const char* const text :
         {"", " ", "x", "1x", "1.2.3", "1,2,3", "1.#INF", "nan", "inf", "0x10", "1e", "-", "."}) {
        EXPECT_FALSE(IsNumberText(text)) << text;
    }
    EXPECT_FALSE(IsNumberText(nullptr));
    EXPECT_TRUE(IsNumberText(std::string(1000, '1').c_str()));
    EXPECT_FALSE(IsNumberText(std::string(1001, '1').c_str()));
}

} // namespace
