#include "lib/calendar/Calendar.h"
#include "lib/calendar/CalDate.h"

#include "support/StepwiseCalendar.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <random>
#include <vector>

static void PrintTo(const CalDay& date, std::ostream* out)
{
    *out << date.GetDay() << '.' << date.GetMonth() << '.' << date.GetYear();
}

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr CalendarVersion kVersions[] = {CalendarVersion::Old, CalendarVersion::Reform,
                                         CalendarVersion::Modern};

CalDate Date(int nDay, int nMonth, std::int32_t nYear)
{
    return {static_cast<std::uint16_t>(nDay), static_cast<std::uint16_t>(nMonth), nYear};
}

/// The reform of a region while it lives.
struct RegionScope {
    explicit RegionScope(int nRegion) { SetCalendarRegion(nRegion); }
    ~RegionScope() { SetCalendarRegion(1); }
};

/// Leaves the reform of 1582 behind.
class CalendarRegions : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override { SetCalendarRegion(GetParam()); }
    void TearDown() override { SetCalendarRegion(1); }
};

TEST(Calendar, FollowsTheThreeLeapRules)
{
    struct Case {
        std::int32_t nYear;
        bool bJulian, bReform, bModern;
    };
    constexpr Case kCases[] = {
        {4, true, true, true},       {100, true, true, true},      {1500, true, true, true},
        {1581, false, false, false}, {1582, false, false, false},  {1584, true, true, true},
        {1600, true, true, true},    {1700, true, false, false},   {1900, true, false, false},
        {2000, true, true, true},    {2001, false, false, false},  {3200, true, true, false},
        {6400, true, true, false},   {3600, true, true, true},     {0, false, false, false},
        {-1, true, true, true},      {-4, false, false, false},    {-5, true, true, true},
        {-9, true, true, true},      {-3200, false, false, false}, {kMin, false, false, false},
        {kMax, false, false, false}, {kMin + 3, true, true, true},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(c.bJulian, JulianLeap(c.nYear)) << c.nYear;
        EXPECT_EQ(c.bReform, ReformLeap(c.nYear)) << c.nYear;
        EXPECT_EQ(c.bModern, ModernLeap(c.nYear)) << c.nYear;
    }
}

TEST(Calendar, AgreesWithTheJudgeOnLeapYears)
{
    for (const CalendarVersion version : kVersions) {
        for (std::int32_t nYear = -13000; nYear <= 13000; ++nYear) {
            ASSERT_EQ(stepwise::LeapYear(nYear, version), IsLeap(nYear, version)) << nYear;
        }
        for (std::int32_t i = 0; i < 13000; ++i) {
            ASSERT_EQ(stepwise::LeapYear(kMin + i, version), IsLeap(kMin + i, version)) << kMin + i;
            ASSERT_EQ(stepwise::LeapYear(kMax - i, version), IsLeap(kMax - i, version)) << kMax - i;
        }
    }
}

TEST(Calendar, KnowsTheLengthsOfMonths)
{
    constexpr int kLengths[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31, 0};
    for (int nMonth = 0; nMonth <= 13; ++nMonth) {
        EXPECT_EQ(kLengths[nMonth], OldMonthDays(nMonth, 2001)) << nMonth;
        EXPECT_EQ(kLengths[nMonth], ReformMonthDays(nMonth, 2001)) << nMonth;
        EXPECT_EQ(kLengths[nMonth], ModernMonthDays(nMonth, 2001)) << nMonth;
    }
    EXPECT_EQ(29, OldMonthDays(2, 1900));
    EXPECT_EQ(28, ReformMonthDays(2, 1900));
    EXPECT_EQ(29, ReformMonthDays(2, 3200));
    EXPECT_EQ(28, ModernMonthDays(2, 3200));
    EXPECT_EQ(0, ModernMonthDays(-1, 2000));
    EXPECT_EQ(0, ModernMonthDays(65535, 2000));
}

TEST(Calendar, ShortensTheMonthOfTheReform)
{
    EXPECT_EQ(31, OldMonthDays(10, 1582));
    EXPECT_EQ(21, ReformMonthDays(10, 1582));
    EXPECT_EQ(21, ModernMonthDays(10, 1582));
    EXPECT_EQ(31, ModernMonthDays(10, 1583));
    EXPECT_EQ(355, YearDays(1582));
    EXPECT_EQ(365, YearDays(1582, CalendarVersion::Old));
    EXPECT_EQ(366, YearDays(2000));
}

TEST(Calendar, CountsDaysBetweenDates)
{
    struct Case {
        CalDate first, second;
        std::int32_t nDays;
    };
    const Case kCases[] = {
        {{4, 10, 1582}, {15, 10, 1582}, 1},  {{15, 10, 1582}, {4, 10, 1582}, -1},
        {{1, 1, 1}, {1, 1, 2}, 365},         {{1, 1, 4}, {1, 1, 5}, 366},
        {{1, 1, 1}, {24, 12, 2004}, 731940}, {{24, 12, 2004}, {1, 1, 1}, -731940},
        {{30, 9, 1582}, {1, 11, 1582}, 22},  {{1, 11, 1582}, {30, 9, 1582}, -22},
        {{30, 9, 1582}, {15, 10, 1582}, 5},  {{15, 10, 1582}, {30, 9, 1582}, -5},
        {{31, 10, 1582}, {1, 11, 1582}, 1},  {{1, 11, 1582}, {31, 10, 1582}, -1},
        {{15, 10, 1582}, {1, 1, 1583}, 78},  {{4, 10, 1582}, {1, 1, 1583}, 79},
        {{1, 1, 3200}, {1, 1, 3201}, 365},   {{1, 1, -1}, {1, 1, 0}, 366},
        {{1, 1, 0}, {1, 1, 1}, 365},         {{28, 2, 2001}, {31, 2, 2001}, 3},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(c.nDays, DaysBetween(c.first, c.second))
            << ::testing::PrintToString(c.first) << " " << ::testing::PrintToString(c.second);
    }
    EXPECT_EQ(11, DaysBetween({4, 10, 1582}, {15, 10, 1582}, CalendarVersion::Old));
    EXPECT_EQ(366, DaysBetween({1, 1, 3200}, {1, 1, 3201}, CalendarVersion::Reform));
}

TEST(Calendar, AddsDays)
{
    struct Case {
        CalDate date;
        std::int32_t nDays;
        CalDate goal;
    };
    const Case kCases[] = {
        {{31, 12, 2000}, 1, {1, 1, 2001}},
        {{1, 3, 2000}, -1, {29, 2, 2000}},
        {{1, 3, 1900}, -1, {28, 2, 1900}},
        {{1, 1, 1}, 0, {1, 1, 1}},
        {{1, 1, 1}, -1, {31, 12, 0}},
        {{1, 1, 1}, 731940, {24, 12, 2004}},
        {{24, 12, 2004}, -731940, {1, 1, 1}},
        // The last step only adds to the day and does not jump the gap.
        {{1, 10, 1582}, 5, {6, 10, 1582}},
        {{1, 10, 1582}, 20, {21, 10, 1582}},
        {{1, 10, 1582}, 21, {1, 11, 1582}},
        {{15, 10, 1582}, 16, {31, 10, 1582}},
        {{15, 10, 1582}, 17, {1, 11, 1582}},
        // Backward the month ends with its 31st.
        {{1, 11, 1582}, -1, {31, 10, 1582}},
        {{1, 1, 1583}, -62, {31, 10, 1582}},
        {{28, 2, 3200}, 1, {1, 3, 3200}},
        {{1, 3, 3200}, -1, {28, 2, 3200}},
        // Impossible dates are taken as they are.
        {{31, 2, 2001}, 0, {3, 3, 2001}},
        {{1, 13, 2001}, 0, {1, 1, 2002}},
        {{0, 0, 2001}, -1, {30, 12, 2000}},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(c.goal, AddDays(c.date, c.nDays)) << ::testing::PrintToString(c.date) << " " << c.nDays;
    }
}

TEST(Calendar, WalksBackFromMonthsBeyondTheYearsEndIntoDecember)
{
    for (const CalendarVersion version :
         {CalendarVersion::Old, CalendarVersion::Reform, CalendarVersion::Modern}) {
        for (const int nMonth : {13, 14, 15, 40, 65535}) {
            // Such a month has no days: its first is the first of the next year.
            const CalDay start(1, static_cast<std::uint16_t>(nMonth), 2003);
            EXPECT_EQ(CalDay(31, 12, 2003), AddDays(start, -1, version)) << nMonth;
            EXPECT_EQ(CalDay(30, 12, 2003), AddDays(start, -2, version)) << nMonth;
            EXPECT_EQ(CalDay(30, 11, 2003), AddDays(start, -32, version)) << nMonth;
            EXPECT_EQ(CalDay(31, 12, 2002), AddDays(start, -366, version)) << nMonth;
        }
    }
}

TEST(Calendar, StepsBackIntoOtherReformMonthsByTheirLength)
{
    {
        // 31 - (15 - 1 - 1) = 18 days, so the month ends with its 18th; 1 day back, and the 10 days of 1582.
        const RegionScope region(6);
        EXPECT_EQ(18, ModernMonthDays(9, 1752));
        EXPECT_EQ(-11, DaysBetween({1, 10, 1752}, {18, 9, 1752}));
        EXPECT_EQ(CalDate(18, 9, 1752), AddDays({1, 10, 1752}, -11));
        EXPECT_EQ(CalDate(17, 9, 1752), AddDays({1, 10, 1752}, -12));
        EXPECT_EQ(CalDate(31, 10, 1582), AddDays({1, 11, 1582}, -1)) << "a plain month here";
    }
    {
        // 31 - (2 - 17 - 1) = 47 days.
        const RegionScope region(2);
        EXPECT_EQ(47, ModernMonthDays(2, 1700));
        EXPECT_EQ(-11, DaysBetween({1, 3, 1700}, {47, 2, 1700}));
        EXPECT_EQ(CalDate(47, 2, 1700), AddDays({1, 3, 1700}, -11));
        EXPECT_EQ(CalDate(46, 2, 1700), AddDays({1, 3, 1700}, -12));
    }
}

TEST(Calendar, WalksFarWithoutStepping)
{
    // 5879610 years of 365.2421875 days, the mean of the final rule, are about 2^31 days.
    const CalDate far = AddDays({1, 1, 1}, kMax);
    EXPECT_EQ(kMax, DaysBetween({1, 1, 1}, far));
    EXPECT_NEAR(2147483647.0 / 365.2421875, far.GetYear(), 2);
    const CalDate before = AddDays({1, 1, 1}, kMin);
    EXPECT_EQ(kMin, DaysBetween({1, 1, 1}, before));
    EXPECT_NEAR(-2147483648.0 / 365.25, before.GetYear(), 2);
}

std::vector<CalDate> DatesAroundEveryBend()
{
    std::vector<CalDate> dates;
    for (const std::int32_t nYear :
         {-401, -8,   -5,   -4,   -1,   0,    1,    2,    4,    5,    1500, 1581, 1582,
          1583, 1600, 1700, 1701, 1752, 1753, 1900, 2000, 3199, 3200, 3201, 6400, 9999}) {
        for (const int nMonth : {0, 1, 2, 3, 9, 10, 11, 12, 13, 14}) {
            for (const int nDay : {0, 1, 2, 4, 5, 14, 15, 16, 17, 28, 29, 30, 31, 32, 99}) {
                dates.push_back(Date(nDay, nMonth, nYear));
            }
        }
    }
    return dates;
}

TEST_P(CalendarRegions, CountsDaysAsTheStepwiseRuleDoes)
{
    const std::vector<CalDate> dates = DatesAroundEveryBend();
    for (const CalendarVersion version : kVersions) {
        // A stride without a common divisor pairs every kind of date with every other.
        for (std::size_t i = 0; i < dates.size(); ++i) {
            for (std::size_t j = i % 997; j < dates.size(); j += 997) {
                ASSERT_EQ(stepwise::DaysBetween(dates[i], dates[j], version),
                          DaysBetween(dates[i], dates[j], version))
                    << ::testing::PrintToString(dates[i]) << " " << ::testing::PrintToString(dates[j]);
            }
        }
    }
}

TEST_P(CalendarRegions, AddsDaysAsTheStepwiseRuleDoes)
{
    for (const CalendarVersion version : kVersions) {
        for (const CalDate& date : DatesAroundEveryBend()) {
            for (const std::int32_t n : {0,  1,  5,  16,  17,  20,  31,  59,  365,  366,  1461,  40000,
                                         -1, -2, -5, -17, -21, -28, -31, -59, -365, -366, -1461, -40000}) {
                ASSERT_EQ(stepwise::AddDays(date, n, version), AddDays(date, n, version))
                    << ::testing::PrintToString(date) << " " << n;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllReforms, CalendarRegions, ::testing::Values(1, 2, 5, 6, 7));

TEST(Calendar, CountsEveryDayAroundTheReformAsTheStepwiseRuleDoes)
{
    for (const CalendarVersion version : kVersions) {
        for (int nDay = 1; nDay <= 31; ++nDay) {
            const CalDate date = Date(nDay, 10, 1582);
            for (std::int32_t n = -450; n <= 450; ++n) {
                ASSERT_EQ(stepwise::AddDays(date, n, version), AddDays(date, n, version)) << nDay << " " << n;
            }
        }
    }
}

TEST(Calendar, EqualsTheStepwiseRuleOnAnyDates)
{
    std::mt19937 random(20001114);
    std::uniform_int_distribution<std::int32_t> year(-12000, 12000);
    std::uniform_int_distribution<int> small(0, 40);
    std::uniform_int_distribution<int> month(0, 14);
    std::uniform_int_distribution<std::int32_t> days(-3000000, 3000000);
    for (int i = 0; i < 1000; ++i) {
        const CalDate first = Date(small(random), month(random), year(random));
        const CalDate second = Date(small(random), month(random), year(random));
        const std::int32_t nDays = days(random);
        for (const CalendarVersion version : kVersions) {
            ASSERT_EQ(stepwise::DaysBetween(first, second, version), DaysBetween(first, second, version))
                << ::testing::PrintToString(first) << " " << ::testing::PrintToString(second);
            ASSERT_EQ(stepwise::AddDays(first, nDays, version), AddDays(first, nDays, version))
                << ::testing::PrintToString(first) << " " << nDays;
        }
    }
}

TEST(Calendar, WrapsAtTheEndsOf32BitsAsTheStepwiseRuleDoes)
{
    const CalDate kEnds[] = {{1, 1, kMin},   {31, 12, kMin},    {15, 6, kMin + 1},  {1, 1, kMax},
                             {31, 12, kMax}, {29, 2, kMax - 3}, {65535, 250, kMax}, {0, 0, kMin},
                             {1, 1, 1},      {15, 10, 1582},    {65535, 1, 2000},   {1, 250, 2000}};
    for (const CalendarVersion version : kVersions) {
        for (const CalDate& first : kEnds) {
            for (const CalDate& second : kEnds) {
                EXPECT_EQ(stepwise::DaysBetween(first, second, version), DaysBetween(first, second, version))
                    << ::testing::PrintToString(first) << " " << ::testing::PrintToString(second);
            }
            for (const std::int32_t n : {1, 400, -1, -400}) {
                if (first.GetYear() == (n > 0 ? kMax : kMin)) {
                    continue; // the years wrap, see below
                }
                EXPECT_EQ(stepwise::AddDays(first, n, version), AddDays(first, n, version))
                    << ::testing::PrintToString(first) << " " << n;
            }
            // These end, whatever they give.
            for (const std::int32_t n : {kMax, kMax - 1, kMin, kMin + 1}) {
                AddDays(first, n, version);
            }
        }
    }
}

TEST(Calendar, WalksOnBeyondTheLastYearAsTheStepwiseRuleDoes)
{
    constexpr CalendarVersion kModern = CalendarVersion::Modern;
    EXPECT_EQ(stepwise::AddDays({1, 1, kMax}, 400, kModern), AddDays({1, 1, kMax}, 400));
    EXPECT_EQ(stepwise::AddDays({31, 12, kMin}, -400, kModern), AddDays({31, 12, kMin}, -400));
}

TEST(Calendar, KnowsTheWeekday)
{
    EXPECT_EQ(5, Weekday({15, 10, 1582}));
    EXPECT_EQ(4, Weekday({4, 10, 1582}));
    EXPECT_EQ(0, Weekday({10, 10, 1582}));
    EXPECT_EQ(0, Weekday({10, 10, 1582}, CalendarVersion::Reform));
    EXPECT_EQ(0, Weekday({5, 10, 1582}));
    EXPECT_EQ(0, Weekday({14, 10, 1582}));
    EXPECT_EQ(6, Weekday({1, 1, 2005}));
    EXPECT_EQ(3, Weekday({31, 12, 2003}));
    EXPECT_EQ(1, Weekday({29, 12, 2003}));
    EXPECT_EQ(6, Weekday({1, 1, 1})) << "the day before Sunday 2.1.1";
    EXPECT_EQ(7, Weekday({31, 10, 1582}));
    EXPECT_EQ(7, Weekday({2, 1, 3200})) << "1.1.3200 is a Saturday, one weekday after that of 3199";
    EXPECT_EQ(3, Weekday({10, 10, 1582}, CalendarVersion::Old));
}

TEST(Calendar, WeekdaysFollowOneAnotherFromDayToDay)
{
    for (const CalendarVersion version : kVersions) {
        for (const std::int32_t nYear :
             {1, 4, 100, 1500, 1583, 1600, 1700, 2000, 2003, 3199, 3200, 3201, 6400}) {
            if (version == CalendarVersion::Old && nYear >= 1583) {
                continue; // Zeller's difference goes below 0 from 1700 on
            }
            CalDate date(1, 1, nYear);
            for (int i = 0; i < 800; ++i) {
                const CalDate next = AddDays(date, 1, version);
                ASSERT_EQ(Weekday(date, version) % 7 + 1, Weekday(next, version))
                    << ::testing::PrintToString(next);
                date = next;
            }
        }
    }
}

TEST(Calendar, TruncatesBeforeTheYearOne)
{
    // Zeller by hand for 1.3.-201: K = -1, J = -2, (4 * 26 / 10 + 1 - 1 + 0 + 5 + 2) % 7 = 17 % 7 = 3.
    EXPECT_EQ(2, Weekday({1, 3, -201}));
    // 1.3.-99: K = -99, J = 0, (10 + 1 - 99 - 24 + 5) % 7 = -107 % 7 = -2.
    EXPECT_EQ(-3, Weekday({1, 3, -99}));
}

TEST(Calendar, CountsWeeksAsIso8601Does)
{
    EXPECT_EQ(53, Week({1, 1, 2005}));
    EXPECT_EQ(1, Week({31, 12, 2003}));
    EXPECT_EQ(1, Week({29, 12, 2003}));
    EXPECT_EQ(52, Week({28, 12, 2003}));
    EXPECT_EQ(53, Week({31, 12, 2004}));
    EXPECT_EQ(1, Week({31, 12, 2012})) << "a leap year that begins on a Sunday";
    EXPECT_EQ(52, Week({30, 12, 2012}));
    EXPECT_EQ(52, Week({1, 1, 2012}));
    EXPECT_EQ(1, Week({2, 1, 2012}));
}

TEST(Calendar, GivesAWeekToTheYearThatHoldsItsThursday)
{
    CalDate date(1, 1, 1999);
    for (int i = 0; i < 366 * 30; ++i, ++date) {
        const CalDate thursday = AddDays(date, 4 - date.Weekday());
        const std::int32_t nDay = DaysBetween({1, 1, thursday.GetYear()}, thursday);
        ASSERT_EQ(nDay / 7 + 1, date.Week()) << ::testing::PrintToString(date);
    }
}

TEST(Calendar, AnswersAnyDateInTheWeekFunctions)
{
    for (const std::int32_t nYear : {kMin, kMin + 1, -1, 0, 1582, kMax - 1, kMax}) {
        for (const int nMonth : {0, 1, 10, 12, 65535}) {
            for (const int nDay : {0, 1, 29, 31, 65535}) {
                const CalDate date = Date(nDay, nMonth, nYear);
                for (const CalendarVersion version : kVersions) {
                    EXPECT_LE(std::abs(Weekday(date, version)), 7);
                    EXPECT_LE(std::abs(Week(date, version)), (65535 + 365) / 7 + 2);
                }
            }
        }
    }
}

TEST(Calendar, TellsValidDates)
{
    EXPECT_TRUE(IsValid({29, 2, 2000}));
    EXPECT_FALSE(IsValid({29, 2, 1900}));
    EXPECT_TRUE(IsValid({29, 2, 1900}, CalendarVersion::Old));
    EXPECT_FALSE(IsValid({29, 2, 3200}));
    EXPECT_TRUE(IsValid({29, 2, 3200}, CalendarVersion::Reform));
    EXPECT_FALSE(IsValid({1, 1, 7}));
    EXPECT_TRUE(IsValid({1, 1, 8}));
    EXPECT_FALSE(IsValid({1, 0, 2000}));
    EXPECT_FALSE(IsValid({1, 13, 2000}));
    EXPECT_FALSE(IsValid({0, 1, 2000}));
    EXPECT_FALSE(IsValid({32, 1, 2000}));
    for (int nDay = 0; nDay <= 32; ++nDay) {
        const bool bCounted = (nDay >= 1 && nDay <= 4) || (nDay >= 15 && nDay <= 31);
        EXPECT_EQ(bCounted, IsValid(Date(nDay, 10, 1582))) << nDay;
        EXPECT_EQ(bCounted, IsValid(Date(nDay, 10, 1582), CalendarVersion::Reform)) << nDay;
        EXPECT_EQ(nDay >= 1 && nDay <= 31, IsValid(Date(nDay, 10, 1582), CalendarVersion::Old)) << nDay;
    }
}

TEST(Calendar, SetsTheReformOfARegion)
{
    struct Case {
        std::int32_t nRegion;
        CalDate lastOld, firstNew;
    };
    const Case kCases[] = {{0, {4, 10, 1582}, {15, 10, 1582}}, {1, {4, 10, 1582}, {15, 10, 1582}},
                           {2, {17, 2, 1700}, {2, 3, 1700}},   {3, {17, 2, 1700}, {2, 3, 1700}},
                           {5, {17, 2, 1700}, {2, 3, 1700}},   {6, {1, 9, 1752}, {15, 9, 1752}},
                           {7, {4, 10, 1582}, {15, 10, 1582}}, {-1, {4, 10, 1582}, {15, 10, 1582}}};
    for (const Case& c : kCases) {
        SetCalendarRegion(c.nRegion);
        EXPECT_EQ(c.lastOld, GetCalendarReform().lastOld) << c.nRegion;
        EXPECT_EQ(c.firstNew, GetCalendarReform().firstNew) << c.nRegion;
    }
    SetCalendarRegion(6);
    EXPECT_EQ(18, ModernMonthDays(9, 1752));
    EXPECT_TRUE(ModernLeap(1700)) << "before the reform year";
    SetCalendarRegion(1);
    EXPECT_FALSE(ModernLeap(1700));
}

} // namespace
