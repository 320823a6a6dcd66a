#include "lib/CalendarNames.h"
#include "lib/Easter.h"
#include "lib/JulianDay.h"
#include "lib/Moon.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

TEST(Easter, FallsOnTheKnownSundays)
{
    const CalDate kSundays[] = {{27, 3, 2005}, {19, 4, 1500}, {23, 4, 2000}, {31, 3, 2024}, {25, 4, 1943},
                                {22, 3, 1818}, {15, 4, 1582}, {10, 4, 1583}, {20, 4, 2025}, {26, 3, 1967}};
    for (const CalDate& sunday : kSundays) {
        const CalDate easter = EasterSunday(sunday.GetYear());
        EXPECT_EQ(sunday.GetDay(), easter.GetDay()) << sunday.GetYear();
        EXPECT_EQ(sunday.GetMonth(), easter.GetMonth()) << sunday.GetYear();
        EXPECT_EQ(7, easter.Weekday()) << sunday.GetYear();
    }
}

TEST(Easter, IsASundayInMarchOrApril)
{
    for (std::int32_t nYear = 1; nYear < 3200; ++nYear) {
        const CalDate easter = EasterSunday(nYear);
        ASSERT_EQ(7, easter.Weekday()) << nYear;
        ASSERT_TRUE(easter >= CalDate(22, 3, nYear) && easter <= CalDate(25, 4, nYear)) << nYear;
    }
}

TEST(Easter, AnswersAnyYear)
{
    for (const std::int32_t nYear : {kMin, -1, 0, kMax}) {
        EXPECT_EQ(nYear, EasterSunday(nYear).GetYear());
    }
}

TEST(JulianDay, CountsYearsOfTheJulianPeriod)
{
    EXPECT_EQ(1, JulianPeriodYear(-4713));
    EXPECT_EQ(4713, JulianPeriodYear(-1));
    EXPECT_EQ(4714, JulianPeriodYear(1));
    EXPECT_EQ(7980, JulianPeriodYear(3267));
    for (const std::int32_t nYear : {kMin, -4714, 0, 3268, kMax}) {
        EXPECT_EQ(0, JulianPeriodYear(nYear));
    }
    EXPECT_EQ(1, YearOfJulianPeriod(4714));
    EXPECT_EQ(2000, YearOfJulianPeriod(6713));
    EXPECT_EQ(4714 + 4713, YearOfJulianPeriod(4713)) << "adds where an inverse would subtract";
}

TEST(JulianDay, CountsDays)
{
    EXPECT_EQ(2451545, JulianDay({1, 1, 2000}));
    EXPECT_EQ(2453364, JulianDay({24, 12, 2004}));
    EXPECT_EQ(2299161, JulianDay({15, 10, 1582}));
    EXPECT_EQ(2299160, JulianDay({4, 10, 1582}));
    EXPECT_EQ(2299239, JulianDay({1, 1, 1583}));
    EXPECT_EQ(1721424, JulianDay({1, 1, 1}));
    EXPECT_EQ(2451558, JulianDay({1, 1, 2000}, CalendarVersion::Old)) << "thirteen days behind";
    EXPECT_EQ(0, JulianDayOfPeriodYear(1));
    EXPECT_EQ(51544, ModifiedJulianDay(2451545));
    EXPECT_EQ(2451545, JulianDayOfModified(51544));
}

TEST(JulianDay, ComesBackAsItsDate)
{
    for (const CalDate& date : {CalDate(1, 1, 2000), CalDate(24, 12, 2004), CalDate(15, 10, 1582),
                                CalDate(4, 10, 1582), CalDate(29, 2, 1500), CalDate(1, 1, 1),
                                CalDate(31, 12, 1999), CalDate(29, 2, 2000), CalDate(1, 3, 2100)}) {
        EXPECT_EQ(date, DateOfJulianDay(JulianDay(date))) << date.GetYear();
    }
    EXPECT_EQ(CalDate(31, 12, -1), DateOfJulianDay(1721423)) << "there is no year 0";
    for (std::int32_t n = 2299239; n < 2299239 + 366 * 700; n += 13) {
        ASSERT_EQ(n, JulianDay(DateOfJulianDay(n)));
    }
}

TEST(JulianDay, AnswersAnyNumber)
{
    for (const std::int32_t n : {kMin, kMin + 1, -1, 0, kMax - 1, kMax}) {
        EXPECT_LE(DateOfJulianDay(n).GetMonth(), 65535);
        EXPECT_EQ(n, JulianDayOfModified(ModifiedJulianDay(n)));
        JulianDay({1, 1, n});
        JulianDayOfPeriodYear(n);
    }
}

TEST(Moon, KnowsTheEpactsOfTheGregorianCalendar)
{
    EXPECT_EQ(31, MoonEpact(1581));
    EXPECT_EQ(31, MoonEpact(-5));
    // Golden number 6 of 2000 (6713 % 19): c = 20, t = 2 - (0 + 1 * 3) is taken only for c % 4 > 0, so
    // 1 - 3 = -2, 2 / 3 = 0, 1 more for 2 % 3, so -1 and 29: (55 + 29) % 30.
    EXPECT_EQ(24, MoonEpact(2000));
    // 1999: golden number 5; c = 19, 1 - (3 + 0) = -2, 0, 1 more: -1, so 29: (44 + 29) % 30.
    EXPECT_EQ(13, MoonEpact(1999));
    // 1900: golden number 1; 2 - 3 = -1, 0, 1 more for 1 % 3: 0, and 0 is read as 30.
    EXPECT_EQ(30, MoonEpact(1900));
    // 1750: golden number 3; correction 0.
    EXPECT_EQ(22, MoonEpact(1750));
    // 1600: golden number 5; correction 1: 45 % 30.
    EXPECT_EQ(15, MoonEpact(1600));
}

TEST(Moon, AgesFromMonthToMonth)
{
    // 2000 has the epact 24.
    EXPECT_EQ(24, MoonAge({1, 1, 2000}));
    EXPECT_EQ(29, MoonAge({6, 1, 2000}));
    EXPECT_EQ(1, MoonAge({7, 1, 2000})) << "30 % 29";
    // February: (24 + 31) % 29 = 26; the 5th: 30 % 30, read as 30.
    EXPECT_EQ(26, MoonAge({1, 2, 2000}));
    EXPECT_EQ(30, MoonAge({5, 2, 2000}));
    EXPECT_EQ(1, MoonAge({6, 2, 2000}));
    // March: (26 + 29) % 30 = 25; the 5th: 29 % 29, read as 29.
    EXPECT_EQ(25, MoonAge({1, 3, 2000}));
    EXPECT_EQ(29, MoonAge({5, 3, 2000}));
    EXPECT_EQ(MoonAge({1, 14, 2000}), MoonAge({1, 16, 2000})) << "months without days do not age it";
}

TEST(Moon, FindsThePhasesNearTheKnownOnes)
{
    // Mean phases lie up to 14 hours from the true ones.
    struct Case {
        CalDate date;
        MoonPhase phase;
        CalDate known;
    };
    const Case kCases[] = {{{1, 1, 2000}, MoonPhase::New, {6, 1, 2000}},
                           {{1, 1, 2000}, MoonPhase::Full, {21, 1, 2000}},
                           {{20, 7, 2004}, MoonPhase::Full, {31, 7, 2004}},
                           {{1, 12, 2004}, MoonPhase::New, {12, 12, 2004}}};
    for (const Case& c : kCases) {
        const CalDate found = MoonPhaseDate(c.date, c.phase);
        EXPECT_LE(std::abs(DaysBetween(c.known, found)), 1)
            << found.GetDay() << "." << found.GetMonth() << "." << found.GetYear();
    }
}

TEST(Moon, AnswersAnyYear)
{
    for (const std::int32_t nYear : {kMin, -1, 0, 1582, 3268, kMax}) {
        MoonPhaseDate({1, 1, nYear}, MoonPhase::LastQuarter);
        EXPECT_LE(std::abs(MoonAge({31, 12, nYear})), 31 + 30);
    }
}

TEST(CalendarNames, AreEnglishAndGerman)
{
    char szName[kNameWidth];
    WeekdayName(1, szName, 1);
    EXPECT_STREQ("Monday", szName);
    WeekdayName(7, szName, 2);
    EXPECT_STREQ("Sonntag", szName);
    WeekdayName(3, szName, 0);
    EXPECT_STREQ("Wednesday", szName) << "language 0 means 1";
    MonthName(3, szName, 2);
    EXPECT_STREQ("Maerz", szName);
    MonthName(12, szName, 1);
    EXPECT_STREQ("December", szName);

    char szShort[kShortNameWidth];
    ShortWeekdayName(1, szShort, 1);
    EXPECT_STREQ("Mon", szShort);
    ShortWeekdayName(7, szShort, 2);
    EXPECT_STREQ("So", szShort);
    ShortMonthName(3, szShort, 2);
    EXPECT_STREQ("Maer", szShort);
    ShortMonthName(12, szShort, 2);
    EXPECT_STREQ("Dez", szShort);

    constexpr const char* kGerman[] = {"Tag",    "Monat",   "Jahr",    "Woche", "Wochentag", "Stunde",
                                       "Minute", "Sekunde", "gestern", "heute", "morgen"};
    char szWord[kWordWidth];
    for (int i = 0; i < 11; ++i) {
        CalendarWord(i, szWord, 2);
        EXPECT_STREQ(kGerman[i], szWord);
    }
    CalendarWord(10, szWord, 1);
    EXPECT_STREQ("tomorrow", szWord);
}

TEST(CalendarNames, ClearTheTargetWhereThereIsNoName)
{
    struct Case {
        int nIndex, nLanguage;
    };
    for (const Case& c :
         {Case{0, 1}, Case{13, 1}, Case{-1, 1}, Case{kMin, 1}, Case{1, 3}, Case{1, -1}, Case{1, kMax}}) {
        char szName[kNameWidth] = "full";
        MonthName(c.nIndex, szName, c.nLanguage);
        EXPECT_STREQ("", szName) << c.nIndex << " " << c.nLanguage;
        char szWeekday[kNameWidth] = "full";
        WeekdayName(c.nIndex, szWeekday, c.nLanguage);
        EXPECT_STREQ("", szWeekday) << c.nIndex << " " << c.nLanguage;
    }
    char szWord[kWordWidth] = "full";
    CalendarWord(0, szWord, 1, true);
    EXPECT_STREQ("", szWord);
    CalendarWord(11, szWord, 1);
    EXPECT_STREQ("", szWord);
}

} // namespace
