#include "lib/expression/ExpressionEvaluator.h"
#include "lib/expression/ExprFunctions.h"
#include "lib/expression/ExprLiterals.h"
#include "lib/expression/ExprValues.h"
#include "lib/text/CodePage.h"
#include "lib/text/ErrCode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct ValueCase {
    const char* pszText;
    double dValue;
};

void ExpectValues(std::initializer_list<ValueCase> cases)
{
    for (const ValueCase& c : cases) {
        CExpressionEvaluator evaluator;
        EXPECT_DOUBLE_EQ(c.dValue, evaluator.Evaluate(c.pszText)) << c.pszText;
        EXPECT_EQ(0, evaluator.GetError()) << c.pszText << ": " << evaluator.GetErrorText();
        EXPECT_STREQ("No errors.", evaluator.GetErrorText());
    }
}

struct ErrorCase {
    const char* pszText;
    int nError;
    const char* pszArg;
};

void ExpectErrors(std::initializer_list<ErrorCase> cases)
{
    for (const ErrorCase& c : cases) {
        CExpressionEvaluator evaluator;
        EXPECT_EQ(kInfinity, evaluator.Evaluate(c.pszText)) << c.pszText;
        EXPECT_EQ(c.nError, evaluator.GetError()) << c.pszText;
        EXPECT_STREQ(c.pszArg, evaluator.GetErrorArg()) << c.pszText;
    }
}

TEST(ExpressionEvaluator, BindsOperatorsByLevelAndToTheLeft)
{
    ExpectValues({{"1+2*3", 7},
                  {"2^3^2", 64},
                  {"-2^2", 4},
                  {"7&3|8", 11},
                  {"1<2=1", 1},
                  {"0/5", 0},
                  {"-1|0", 4294967295.0},
                  {"8-3-2", 3},
                  {"24/4/3", 2},
                  {"1||0", 1},
                  {"0||0", 0},
                  {"2&&3", 1},
                  {"2&&0", 0},
                  {"0&&0||1", 1},
                  {"1||0&&0", 0},
                  {"3>2", 1},
                  {"2>3", 0},
                  {"2=2", 1},
                  {"3>2>1", 0},
                  {"--3", 3},
                  {"-+-+-3", -3},
                  {"2*-3", -6},
                  {"2^-1", 0.5},
                  {"6|1&0", 0},
                  {"-2.9|0", 4294967294.0},
                  {"4294967296|5", 5},
                  {"1e300|5", 5},
                  {"1e19|5", 5},
                  {"1+1=2", 1},
                  {"1=1+1", 0},
                  {"1|2=2", 1},
                  {"2*3^2", 18},
                  {"(1+2)*3", 9}});
}

TEST(ExpressionEvaluator, BindsNoDivisionTighterThanAProduct)
{
    CExpressionEvaluator evaluator;
    EXPECT_EQ(2.1, evaluator.Evaluate("3*7/10")) << "3*(7/10) is 2.0999999999999996";
}

TEST(ExpressionEvaluator, OnlyOperandsUpToOneHaveAFactorial)
{
    ExpectValues({{"0!", 1},
                  {"1!", 1},
                  {"0.5!", 1},
                  {"-3!", 1},
                  {"1!=2", 0},
                  {"1!=1", 1},
                  {"(sqrt(0-1))!", 1},
                  {"2^0!", 2}});
}

TEST(ExpressionEvaluator, TakesANumberLongerThanItsValueReads)
{
    ExpectValues({{"1.5.7", 1.5},
                  {".5", 0.5},
                  {"5.", 5},
                  {".", 0},
                  {"1.2.3", 1.2},
                  {"1e5e5", 100000},
                  {"1E2", 100},
                  {"1e-2", 0.01},
                  {"1e+2", 100},
                  {"1e+", 1},
                  {"2e-", 2},
                  {"1.5e3.5", 1500},
                  {"00012", 12},
                  {"1e+2e+3", 100}});
}

TEST(ExpressionEvaluator, SkipsBlanksAndCommentsAndDropsThemInBrackets)
{
    ExpectValues({{"3 // rest", 3},
                  {"3 /* a */ + 1", 4},
                  {"4//2", 4},
                  {" \t\r\n\x01\x1F"
                   "7 ",
                   7},
                  {"1 // one\n + 2", 3},
                  {"1 // one\r + 2", 3},
                  {"/**/1/***/+/*/ 5 */2", 3},
                  {"(1 2)", 12},
                  {"(1 e 2)", 100},
                  {"( 2 + 3 )", 5},
                  {"(1 / / 2)", 1},
                  {"(1 /* ) */ + 1)", 2},
                  {"max(1 / / 2, 3)", 3},
                  {"(p i)>3", 1},
                  {"(hex(f f))", 255},
                  {"sin /* of */ (0)", 0}});
}

TEST(ExpressionEvaluator, KnowsItsFunctions)
{
    ExpectValues({{"abs(0-5)", 5},
                  {"acos(1)", 0},
                  {"asin(1)", 1.5707963267948966},
                  {"atan(1)", 0.78539816339744828},
                  {"ceil(1.2)", 2},
                  {"ceil(-1.2)", -1},
                  {"cosh(0)", 1},
                  {"cos(0)", 1},
                  {"exp(1)", 2.718281828459045},
                  {"e", 2.718281828459045},
                  {"floor(1.8)", 1},
                  {"floor(-1.2)", -2},
                  {"int(0-2.5)", -2},
                  {"int(2.5)", 2},
                  {"mod(0-2.5)", -0.5},
                  {"mod(2.25)", 0.25},
                  {"log10(1000)", 3},
                  {"log(e)", 1},
                  {"max(1,2)", 2},
                  {"max(2,1)", 2},
                  {"min(3,3)", 3},
                  {"min(3,4)", 3},
                  {"min(4,3)", 3},
                  {"pow(2,10)", 1024},
                  {"pow(2,10,)", 1024},
                  {"max(max(1,5),min(9,(3)))", 5},
                  {"max(ascii(,),1)", 44},
                  {"pi", 3.141592653589793},
                  {"sinh(1)", 1.1752011936438014},
                  {"sin(pi/2)", 1},
                  {"sqrt(2)", 1.4142135623730951},
                  {"tanh(1)", 0.76159415595576489},
                  {"tan(1)", 1.5574077246549023},
                  {"ver", 20001114},
                  {"rand(1)", 0},
                  {"rand(0-1)", 0},
                  {"rand(1.9)", 0}});
}

TEST(ExpressionEvaluator, GivesTheSecondWhereNoneIsLarger)
{
    CExpressionEvaluator evaluator;
    EXPECT_TRUE(std::signbit(evaluator.Evaluate("max(0,-0)")));
    EXPECT_FALSE(std::signbit(evaluator.Evaluate("min(-0,0)")));
    EXPECT_EQ(1.0, evaluator.Evaluate("max(sqrt(0-1),1)"));
    EXPECT_TRUE(std::isnan(evaluator.Evaluate("max(1,sqrt(0-1))")));
}

TEST(ExpressionEvaluator, KeepsRandomNumbersBelowTheArgument)
{
    CExpressionEvaluator evaluator;
    for (int i = 0; i < 200; ++i) {
        const double d = evaluator.Evaluate("rand(6.9)");
        EXPECT_TRUE(d >= 0.0 && d <= 5.0 && d == std::floor(d)) << d;
        const double dNegative = evaluator.Evaluate("rand(0-6)");
        EXPECT_TRUE(dNegative >= 0.0 && dNegative <= 5.0) << dNegative;
    }
    EXPECT_GE(evaluator.Evaluate("rand(0-2147483648)"), 0.0);
    std::srand(5);
    const int nExpected = std::rand() % 1000;
    std::srand(5);
    EXPECT_EQ(nExpected, evaluator.Evaluate("rand(1000)"));
}

TEST(ExpressionEvaluator, ReadsLiteralsOfOtherBases)
{
    ExpectValues({{"hex(ff)", 255},
                  {"hex(0)", 0},
                  {"bin(101)", 5},
                  {"oct(777)", 511},
                  {"hex( ff )", 255},
                  {"hex(/* a */ff/* b */)", 255},
                  {"hex(ffffffff)", 4294967295.0},
                  {"hex(100000000000000000000)", 1208925819614629174706176.0},
                  {"ascii(A)", 65},
                  {"ascii(()", 40},
                  {"ascii( ( )", 40},
                  {"ascii(,)", 44},
                  {"ascii(\xC4)", -60}});
}

TEST(ExpressionEvaluator, ReadsTimesAndDates)
{
    ExpectValues({{"time(1:02:03)", 3723},
                  {"time(1.2.3)", 3723},
                  {"time( 1 : 2 : 3 rest )", 3723},

                  {"time(30:99:99)", 30 * 3600 + 99 * 60 + 99},
                  {"time(noon)", 43200},
                  {"time(mittagessen)", 43200},
                  {"time(1 1 1)", 3661}});
}

TEST(ExpressionEvaluator, ReportsWhereAnOperandIsMissing)
{
    ExpectErrors(
        {{"", 17015, ""},        {"   ", 17004, ""},       {"// only", 17004, ""}, {"/* only */", 17004, ""},
         {"1 +", 17004, ""},     {"1 + * 2", 17006, ""},   {"()", 17004, ""},      {"-", 17004, ""},
         {"SIN(0)", 17006, ""},  {")", 17006, ""},         {"1>=2", 17006, ""},    {"1==2", 17006, ""},
         {"1<=2", 17006, ""},    {"\xE4", 17006, ""},      {"_a", 17006, ""},      {"sin()", 17004, ""},
         {"pow(,1)", 17004, ""}, {"pow(1,,2)", 17004, ""}, {"|1", 17006, ""},      {"#", 17006, ""}});
}

TEST(ExpressionEvaluator, ReportsStrayText)
{
    ExpectErrors({{"2 3", 17101, "3"},
                  {"1)", 17101, "\x0F"},
                  {"1(", 17101, "\x0E"},
                  {"0!!", 17101, "\x0D"},
                  {"pi()", 17101, "\x0E"},
                  {"2e", 17101, "e"},
                  {"(1,2)", 17101, ","},
                  {"sin(1,2)", 17101, ","},
                  {"1 \xE4", 17101, "\xE4"},
                  {"1a", 17101, "a"}});
}

TEST(ExpressionEvaluator, ReportsOpenBracketsAndComments)
{
    ExpectErrors({{"(1", 17009, ""},
                  {"sin(1", 17009, ""},
                  {"((1)", 17009, ""},
                  {"3 /* rest", 17150, ""},
                  {"4/*2", 17150, ""},
                  {"/*/", 17150, ""},
                  {"(1 / * 2)", 17150, ""}});
}

TEST(ExpressionEvaluator, ReportsArithmeticThatCannotBe)
{
    ExpectErrors({{"5/0", 17001, ""},
                  {"5/(1-1)", 17001, ""},
                  {"5/-0", 17001, ""},
                  {"2!", 17002, ""},
                  {"5!", 17002, ""},
                  {"1.5!", 17002, ""},
                  {"321!", 17002, ""},
                  {"(1e308*10)!", 17002, ""},
                  {"rand(0)", 1, ""},
                  {"rand(0.9)", 1, ""},
                  {"rand(-0.9)", 1, ""},
                  {"rand(4294967296)", 1, ""},
                  {"rand(1e300)", 1, ""}});
}

TEST(ExpressionEvaluator, ReportsNamesAndArguments)
{
    ExpectErrors(
        {{"sin", 17007, "sin"},
         {"sin 1", 17007, "sin"},
         {"sinX(1)", 17007, "sin"},
         {"pow", 17007, "pow"},
         {"mem", 17007, "mem"},
         {"foo(1)", 17005, "foo"},
         {"foo_1", 17005, "foo_1"},
         {"sinx(1)", 17005, "sinx"},
         {"e5", 17005, "e5"},
         {"log10x", 17005, "log10x"},
         {"pow(2)", 17190, "pow"},
         {"pow(1,2,3)", 17190, "pow"},
         {"pow()", 17190, "pow"},
         {"min()", 17190, "min"},
         {"max( )", 17190, "max"},
         {"max(1)", 17190, "max"},
         {"max(1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26,27,28,29,30,31)", 17190,
          "max"},
         {"max(1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26,27,28,29,30,31,32)",
          17192, ""}});
}

TEST(ExpressionEvaluator, ReportsBadLiterals)
{
    ExpectErrors({{"hex(FF)", 17101, "F"},      {"bin(102)", 17101, "2"},
                  {"oct(8)", 17101, "8"},       {"hex()", 17182, ""},
                  {"bin( )", 17182, ""},        {"bin(1 0)", 17181, ""},
                  {"oct((7))", 17016, "oct"},   {"hex(1(", 17016, "hex"},
                  {"bin 1", 17180, ""},         {"bin(", 17182, ""},
                  {"oct(", 17182, ""},          {"hex(", 17182, ""},
                  {"bin(1", 17181, ""},         {"oct(7", 17181, ""},
                  {"hex(f", 17181, ""},         {"ascii(", 17181, ""},
                  {"ascii()", 17182, ""},       {"ascii( )", 17182, ""},
                  {"ascii(AB)", 17181, ""},     {"ascii A", 17180, ""},
                  {"ascii(A", 17181, ""},       {"time", 17180, ""},
                  {"time()", 17187, ""},        {"time(12.30)", 17189, ""},
                  {"time(12)", 17188, ""},      {"time(12:", 17188, ""},
                  {"time(1:2:3", 17181, ""},    {"time(()", 17016, "time"},
                  {"time(Noon)", 17179, ""},    {"time(foo)", 17179, ""},
                  {"date", 17180, ""},          {"date()", 17184, ""},
                  {"date(", 17184, ""},         {"date(1.1.2000", 17181, ""},
                  {"date(1.", 17185, ""},       {"date(1.foo.2000)", 17185, ""},
                  {"date(1.1.)", 17186, ""},    {"date(1.1.1)", 17186, ""},
                  {"date(1.1.200)", 17186, ""}, {"date((1.1.2000))", 17016, "date"},
                  {"date(foo)", 17179, ""},     {"date(Today)", 17179, ""},
                  {"date( today)", 17184, ""},  {"date(\xE4)", 17184, ""},
                  {"time(\xE4)", 17187, ""},    {"date(tomorrow)", 17179, ""}});
}

TEST(ExpressionEvaluator, CountsDatesInDaysFromTheFirst)
{
    ExpectValues({{"date(1.1.0001)", 0},
                  {"date(2.1.0001)", 1},
                  {"date(24.12.2004)", 731940},
                  {"date(1.Mai.99)", 729876},
                  {"date(1.MAI.99 and on)", 729876},
                  {"date(1.1.49)", 748019},
                  {"date( 1 - 1 - 49 )", 748019},
                  {"date(010149)", 748019},
                  {"date(31.12.0000)", 1},
                  {"year(date(24.12.2004))", 2004},
                  {"month(date(24.12.2004))", 12},
                  {"day(date(24.12.2004))", 24},
                  {"weekday(date(24.12.2004))", 5},
                  {"week(date(24.12.2004))", 52},
                  {"month(date(1.12.2000))", 12},
                  {"week(date(1.1.2005))", 53},
                  {"day(date(15.10.1582))", 5}, // the last step does not jump the gap
                  {"weekday(date(15.10.1582))", 0},
                  {"year(0)", 1},
                  {"year(0-1)", 0},
                  {"day(0.9)", 1},
                  {"year(date(1.1.50))", 1950}});
}

TEST(ExpressionEvaluator, KnowsGermanMonthsInAnyCase)
{
    const char* const kMonths[] = {"Januar", "februar", "März"_cp1252, "APRIL",   "mai",      "Juni",
                                   "Juli",   "August",  "September",   "oktober", "NOVEMBER", "Dezember"};
    for (int i = 0; i < 12; ++i) {
        CExpressionEvaluator evaluator;
        const std::string text = "month(date(1." + std::string(kMonths[i]) + ".2000))";
        // Inside a bracket the blanks are gone; the names stay.
        EXPECT_EQ(i + 1, evaluator.Evaluate(text.c_str())) << text;
    }
    CExpressionEvaluator evaluator;
    EXPECT_EQ(3, evaluator.Evaluate("month(date(1.marz.2000))"));
    EXPECT_EQ(3, evaluator.Evaluate("month(date(1.M\xC4RZ.2000))"));
    evaluator.Evaluate("date(1.March.2000)");
    EXPECT_EQ(17185, evaluator.GetError());
}

TEST(ExpressionEvaluator, MovesTomorrowAndYesterdayBy86400Days)
{
    CExpressionEvaluator evaluator;
    const double dToday = evaluator.Evaluate("date(today)");
    EXPECT_EQ(dToday, evaluator.Evaluate("date(heute)"));
    EXPECT_EQ(dToday, evaluator.Evaluate("date(jetzt)"));
    EXPECT_EQ(dToday, evaluator.Evaluate("date(now)"));
    EXPECT_EQ(dToday + 86400, evaluator.Evaluate("date(tomorow)"));
    EXPECT_EQ(dToday + 86400, evaluator.Evaluate("date(morgen)"));
    EXPECT_EQ(dToday - 86400, evaluator.Evaluate("date(yesterday)"));
    EXPECT_EQ(dToday - 86400, evaluator.Evaluate("date(gestern)"));
    EXPECT_GT(dToday, 738000);
    const double dNow = evaluator.Evaluate("time(now)");
    EXPECT_TRUE(dNow >= 0 && dNow < 86401);
    EXPECT_NEAR(dNow, evaluator.Evaluate("time(jetzt)"), 5);
}

TEST(ExprLiterals, AClosingBracketInFrontIsAnEmptyOne)
{
    EXPECT_THROW(ReadDateLiteral(")"), ErrCode);
    EXPECT_EQ(9e9 * 3600, ReadTimeLiteral("9000000000:00:00")) << "the hour may be as long as it likes";
}

TEST(ExpressionEvaluator, ReadsMemoryCells)
{
    CExpressionEvaluator evaluator;
    EXPECT_EQ(0.0, evaluator.Evaluate("mem(3)"));
    EXPECT_EQ(17012, evaluator.GetError());
    EXPECT_STREQ("Variable 3 not set.", evaluator.GetErrorText());
    EXPECT_EQ(5.0, evaluator.Evaluate("mem(3)+5")) << "evaluation goes on";
    EXPECT_EQ(0.0, evaluator.Evaluate("mem(100)"));
    EXPECT_STREQ("Variable 100 not set.", evaluator.GetErrorText());
    EXPECT_EQ(0.0, evaluator.Evaluate("mem(0-1)"));
    EXPECT_EQ(kInfinity, evaluator.Evaluate("mem(1.5)"));
    EXPECT_EQ(17100, evaluator.GetError());
    EXPECT_STREQ("Unknown Error.", evaluator.GetErrorText());
    EXPECT_EQ(kInfinity, evaluator.Evaluate("mem(4294967299)")) << "3 in its low 32 bits";
}

TEST(ExpressionEvaluator, StoresResultsInMemoryCells)
{
    CExpressionEvaluator evaluator;
    evaluator.Evaluate("6*7");
    EXPECT_EQ(0, evaluator.StoreResult());
    EXPECT_EQ(42.0, evaluator.Evaluate("mem(0)"));
    EXPECT_EQ(0, evaluator.GetError());
    evaluator.Evaluate("8");
    EXPECT_EQ(0, evaluator.StoreResult());
    EXPECT_EQ(0, evaluator.StoreResultIn(99));
    EXPECT_EQ(25, evaluator.StoreResultIn(100));
    EXPECT_EQ(25, evaluator.StoreResultIn(-1));
    EXPECT_EQ(58.0, evaluator.Evaluate("mem(0)+mem(1)+mem(99)"));
    evaluator.Evaluate("1");
    for (int i = 0; i < 97; ++i) {
        EXPECT_EQ(0, evaluator.StoreResult()) << i;
    }
    EXPECT_EQ(25, evaluator.StoreResult());
}

TEST(ExpressionEvaluator, TheFirstTextOfAnEvaluationWins)
{
    ExpectErrors({{"mem(3)+foo", 17005, "3"}, {"mem(3)+(1", 17009, "3"}, {"mem(7)+pow(1)", 17190, "7"}});
    CExpressionEvaluator evaluator;
    evaluator.Evaluate("foo");
    evaluator.Evaluate("1+");
    EXPECT_STREQ("", evaluator.GetErrorArg()) << "emptied by the next evaluation";
}

TEST(ExpressionEvaluator, AnEmptyTextLeavesTheResult)
{
    CExpressionEvaluator evaluator;
    evaluator.Evaluate("7");
    EXPECT_EQ(kInfinity, evaluator.Evaluate(""));
    EXPECT_EQ(17015, evaluator.GetError());
    evaluator.StoreResultIn(0);
    EXPECT_EQ(7.0, evaluator.Evaluate("mem(0)"));
    EXPECT_EQ(kInfinity, evaluator.Evaluate(nullptr));
    EXPECT_EQ(17015, evaluator.GetError());
}

TEST(ExpressionEvaluator, TellsEveryErrorInItsWords)
{
    struct Case {
        const char* pszText;
        const char* pszMessage;
    };
    const Case kCases[] = {{"1", "No errors."},
                           {"rand(0)", "Unknown Error."},
                           {"1/0", "Division by zero."},
                           {"5!", "Fakultät overflow."_cp1252},
                           {"1+", "Incomlete expression."},
                           {"foo", "Function not handled. [foo]"},
                           {"+*", "Missing opperand."},
                           {"sin", "Missing parameter for function sin."},
                           {"(1", "Too many open brackets. ()"},
                           {"mem(8)", "Variable 8 not set."},
                           {"", "No input data."},
                           {"hex((", "No parentheses allowed here. [hex]"},
                           {"2 3", "Unknown character [ 3 ]."},
                           {"/*", "Comment not closed."},
                           {"date(foo)", "Unknown constant []."},
                           {"hex", "Missing open bracket."},
                           {"hex(1", "Missing close bracket."},
                           {"hex()", "Empty brackets."},
                           {"date()", "Missing day."},
                           {"date(1)", "Missing month."},
                           {"date(1.1)", "Missing year."},
                           {"time()", "Missing hour."},
                           {"time(1)", "Missing minute."},
                           {"time(1:1)", "Missing secunde."},
                           {"pow(1)", "Wrong number of arguments. [pow]"},
                           {"max(,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,)", "Incomlete expression."}};
    for (const Case& c : kCases) {
        CExpressionEvaluator evaluator;
        evaluator.Evaluate(c.pszText);
        EXPECT_STREQ(c.pszMessage, evaluator.GetErrorText()) << c.pszText;
    }
    EXPECT_STREQ("Esotheric error [%s]", ErrorMessage(17003));
    EXPECT_STREQ("Result is not an integer.", ErrorMessage(17008));
    EXPECT_STREQ("Overflow [%s]", ErrorMessage(17011));
    EXPECT_STREQ("Bad argument.", ErrorMessage(17191));
    EXPECT_STREQ("Too many arguments.", ErrorMessage(17192));
    EXPECT_STREQ("Unknown Error.", ErrorMessage(17100));
    EXPECT_STREQ("Unknown Error.", ErrorMessage(-1));
}

TEST(ExpressionEvaluator, LeavesInfinitiesAndNansToTheReader)
{
    CExpressionEvaluator evaluator;
    EXPECT_TRUE(std::isnan(evaluator.Evaluate("sqrt(0-1)")));
    EXPECT_EQ(0, evaluator.GetError());
    EXPECT_EQ(kInfinity, evaluator.Evaluate("1e308*10"));
    EXPECT_EQ(0, evaluator.GetError());
    EXPECT_EQ(-kInfinity, evaluator.Evaluate("log(0)"));
    EXPECT_EQ(0, evaluator.GetError());
}

TEST(ExpressionEvaluator, CutsLongTextsOfErrors)
{
    CExpressionEvaluator evaluator;
    const std::string name(5000, 'q');
    evaluator.Evaluate(name.c_str());
    EXPECT_EQ(17005, evaluator.GetError());
    const std::string arg = evaluator.GetErrorArg();
    EXPECT_GE(arg.size(), 200u);
    EXPECT_EQ(name.substr(0, arg.size()), arg);
    EXPECT_EQ("Function not handled. [" + arg + "]", evaluator.GetErrorText());
}

TEST(ExpressionEvaluator, EndsNestingThatEndangersTheStackAsAnError)
{
    const auto nested = [](std::size_t n) { return std::string(n, '(') + "1" + std::string(n, ')'); };
    CExpressionEvaluator evaluator;
    EXPECT_EQ(1.0, evaluator.Evaluate(nested(511).c_str())) << "the deepest that an input field holds";
    EXPECT_EQ(1.0, evaluator.Evaluate(nested(CExpressionEvaluator::kDeepestNesting).c_str()));
    EXPECT_EQ(kInfinity, evaluator.Evaluate(nested(CExpressionEvaluator::kDeepestNesting + 1).c_str()));
    EXPECT_EQ(17009, evaluator.GetError());
    EXPECT_EQ(kInfinity, evaluator.Evaluate(nested(100000).c_str()));
    EXPECT_EQ(17009, evaluator.GetError());
    EXPECT_EQ(2.0, evaluator.Evaluate("(1)+(1)")) << "the depth is counted anew";
    std::string worst;
    for (int i = 0; i < 2000; ++i) {
        worst += "1||1|1<1+1*1^max(1,";
    }
    worst += "1" + std::string(2000, ')');
    EXPECT_EQ(kInfinity, evaluator.Evaluate(worst.c_str()));
    EXPECT_EQ(17009, evaluator.GetError());
    EXPECT_EQ(-1.0, evaluator.Evaluate((std::string(1000001, '-') + "1").c_str())) << "signs do not nest";
}

TEST(ExpressionEvaluator, TakesLongTexts)
{
    const auto repeat = [](const char* psz, int n) {
        std::string text = "1";
        for (int i = 0; i < n; ++i) {
            text += psz;
        }
        return text;
    };
    // A way that looks at the rest of the text again for each term would run into the test's time limit here.
    CExpressionEvaluator evaluator;
    EXPECT_EQ(200001.0, evaluator.Evaluate(repeat("+(1)", 200000).c_str()));
    EXPECT_EQ(200001.0, evaluator.Evaluate(repeat("+max(1,2)/* c */", 100000).c_str()));
    evaluator.Evaluate(std::string(3000000, '1').c_str());
    EXPECT_EQ(0, evaluator.GetError());
}

class Derived : public CExpressionEvaluator {
protected:
    bool HandleFunction(const char* pszText, ExprResult& result) override
    {
        const std::string text(pszText);
        if (text.starts_with("odd")) {
            throw 5;
        }
        if (!text.starts_with("twice")) {
            return false;
        }
        ReadBracket(pszText + 5, result);
        result.nLength += 5;
        result.dValue *= 2;
        return true;
    }
    const char* FormatCustom(const char* pszFormat, double) override { return pszFormat; }
};

/// Takes a bracket that fails for 0.
class Forgiving : public CExpressionEvaluator {
protected:
    bool HandleFunction(const char* pszText, ExprResult& result) override
    {
        constexpr std::string_view kCall = "safe((1/0))";
        nRow = result.nToken;
        if (!std::string_view(pszText).starts_with(kCall)) {
            return false;
        }
        try {
            ReadBracket(pszText + 4, result);
        } catch (ErrCode) {
            result.dValue = 0.0;
            result.nLength = kCall.size();
        }
        return true;
    }

public:
    std::uint32_t nRow = 0;
};

/// Shows an unknown format through a known one, from the first character or from the second one on.
class Prefixed : public CExpressionEvaluator {
protected:
    const char* FormatCustom(const char* pszFormat, double dValue) override
    {
        SetFormat("Hex");
        const char* const pszText = Format(dValue);
        SetFormat(pszFormat);
        return std::string_view(pszFormat) == "Tail" ? pszText + 1 : pszText;
    }
};

TEST(ExpressionEvaluator, AFunctionOfADerivedClassGetsTheRowOfTheSentinel)
{
    Forgiving evaluator;
    EXPECT_EQ(kInfinity, evaluator.Evaluate("1+foo"));
    EXPECT_EQ(37u, evaluator.nRow);
    Derived derived;
    EXPECT_EQ(kInfinity, derived.Evaluate("twice"));
    EXPECT_STREQ("Missing parameter for function NOP.", derived.GetErrorText());
}

TEST(ExpressionEvaluator, AFailureThatADerivedClassCatchesLeavesTheDepthAsItWas)
{
    std::string text = "1";
    for (int i = 0; i <= CExpressionEvaluator::kDeepestNesting; ++i) {
        text += "+safe((1/0))";
    }
    text += "+(1)";
    Forgiving evaluator;
    EXPECT_EQ(2.0, evaluator.Evaluate(text.c_str()));
    EXPECT_EQ(0, evaluator.GetError());
}

TEST(ExpressionEvaluator, ACustomFormatMayGiveTheTextOfAKnownOne)
{
    Prefixed evaluator;
    evaluator.SetFormat("Whole");
    EXPECT_STREQ("12ab", evaluator.Format(4779.0));
    evaluator.SetFormat("Tail");
    EXPECT_STREQ("2ab", evaluator.Format(4779.0));
}

TEST(ExpressionEvaluator, ADerivedClassAddsFunctionsAndFormats)
{
    Derived evaluator;
    EXPECT_EQ(15.0, evaluator.Evaluate("1+twice(3+4) // fourteen"));
    EXPECT_EQ(kInfinity, evaluator.Evaluate("thrice(3)"));
    EXPECT_STREQ("Function not handled. [thrice]", evaluator.GetErrorText());
    EXPECT_EQ(kInfinity, evaluator.Evaluate("twice"));
    EXPECT_EQ(17007, evaluator.GetError());
    EXPECT_EQ(kInfinity, evaluator.Evaluate("odd"));
    EXPECT_EQ(1, evaluator.GetError()) << "anything else that is thrown";
    evaluator.SetFormat("Roman");
    EXPECT_STREQ("Roman", evaluator.Format(4.0));
}

TEST(ExprFunctions, TheTableHas38RowsAndEndsWithTheSentinel)
{
    ASSERT_EQ(38u, ExprFunctions().size());
    EXPECT_EQ(9999, ExprFunctions().back().nId);
    for (std::size_t i = 0; i + 1 < ExprFunctions().size(); ++i) {
        EXPECT_EQ(i, FindExprName(ExprFunctions()[i].pszName).nRow);
    }
    EXPECT_EQ(37u, FindExprName("NOP").nRow);
    EXPECT_EQ(5u, FindExprName(" /**/ bin").nRow);
    EXPECT_EQ(9u, FindExprName(" /**/ bin").nLength);
}

TEST(ExprValues, TruncatesToTheLow32Bits)
{
    EXPECT_EQ(-2, TruncToLow32(-2.9));
    EXPECT_EQ(-1, TruncToLow32(4294967295.0));
    EXPECT_EQ(7, TruncToLow32(4294967303.5));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), TruncToLow32(2147483648.0));
    EXPECT_EQ(0, TruncToLow32(9223372036854775808.0));
    EXPECT_EQ(0, TruncToLow32(-9223372036854775808.0));
    EXPECT_EQ(0, TruncToLow32(kInfinity));
    EXPECT_EQ(0, TruncToLow32(std::nan("")));
}

std::string Formatted(const char* pszFormat, double dValue)
{
    CExpressionEvaluator evaluator;
    evaluator.SetFormat(pszFormat);
    return evaluator.Format(dValue);
}

TEST(ExpressionEvaluator, ShowsAValueInItsFormats)
{
    EXPECT_EQ("", Formatted("Bin", 0));
    EXPECT_EQ("101", Formatted("Bin", 5));
    EXPECT_EQ(std::string(32, '1'), Formatted("Bin", -1));
    EXPECT_EQ(std::string(31, '1'), Formatted("Bin", 2147483647.0));
    EXPECT_EQ("1" + std::string(30, '0') + "1", Formatted("Bin", -2147483647.0));
    EXPECT_EQ("", Formatted("Bin", -2147483648.0));
    EXPECT_EQ("377", Formatted("Oct", 255));
    EXPECT_EQ("37777777777", Formatted("Oct", -1));
    EXPECT_EQ("ff", Formatted("Hex", 255));
    EXPECT_EQ("ffffffff", Formatted("Hex", -1));
    EXPECT_EQ("24.12.2004", Formatted("Date", 731940));
    EXPECT_EQ("01.01.0001", Formatted("Date", 0));
    EXPECT_EQ("31.12.0000", Formatted("Date", -1));
    EXPECT_EQ("", Formatted("Date", 10000001));
    EXPECT_NE("", Formatted("Date", 10000000));
    EXPECT_EQ("1:02:03", Formatted("Time", 3723));
    EXPECT_EQ("100:00:00", Formatted("Time", 360000));
    EXPECT_EQ("0:00:-1", Formatted("Time", -1));
    EXPECT_EQ("3.14159265", Formatted("Dec", 3.141592653589793));
    EXPECT_EQ("-inf", Formatted("Dec", -kInfinity));
    EXPECT_EQ("(null)", Formatted("dec", 1)) << "names are compared by exact case";
    for (const char* const pszFormat : {"Bin", "Oct", "Dec", "Hex", "Date", "Time", "Other"}) {
        EXPECT_EQ("", Formatted(pszFormat, kInfinity));
        EXPECT_EQ("", Formatted(pszFormat, std::nan("")));
    }
}

TEST(ExpressionEvaluator, IntegerFormatsThrowForOtherNumbers)
{
    for (const char* const pszFormat : {"Bin", "Oct", "Hex", "Date", "Time"}) {
        for (const double d : {1.5, 2147483648.0, 4294967296.0, -kInfinity}) {
            CExpressionEvaluator evaluator;
            evaluator.SetFormat(pszFormat);
            try {
                evaluator.Format(d);
                ADD_FAILURE() << pszFormat << " " << d;
            } catch (ErrCode code) {
                EXPECT_EQ(17100, static_cast<int>(code));
                EXPECT_EQ(17008, evaluator.GetError());
            }
        }
    }
}

TEST(ExpressionEvaluator, SetsThePrecisionOfDecimals)
{
    CExpressionEvaluator evaluator;
    EXPECT_TRUE(evaluator.SetPrecision(3));
    EXPECT_STREQ("3.14", evaluator.Format(3.14159));
    EXPECT_FALSE(evaluator.SetPrecision(128));
    EXPECT_FALSE(evaluator.SetPrecision(-1));
    EXPECT_STREQ("3.14", evaluator.Format(3.14159));
    evaluator.SetFixed(true);
    EXPECT_STREQ("3.14", evaluator.Format(3.14159)) << "two digits at the start";
    EXPECT_TRUE(evaluator.SetFixedPrecision(0));
    EXPECT_STREQ("3", evaluator.Format(3.14159));
    EXPECT_FALSE(evaluator.SetFixedPrecision(128));
    EXPECT_STREQ("1e+10", evaluator.Format(9999999999.0)) << "from here on in the general form";
    EXPECT_STREQ("9999999998", evaluator.Format(9999999998.0));
    EXPECT_TRUE(evaluator.SetFixedPrecision(127));
    EXPECT_EQ(1u + 309u + 1u + 127u, std::string(evaluator.Format(-1.7e308)).size());
    EXPECT_TRUE(evaluator.SetPrecision(127));
    evaluator.SetFixed(false);
    EXPECT_STREQ("0.1000000000000000055511151231257827021181583404541015625", evaluator.Format(0.1));
    EXPECT_TRUE(evaluator.SetPrecision(0));
}

} // namespace
