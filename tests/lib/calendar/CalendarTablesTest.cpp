#include "lib/calendar/CalendarNames.h"
#include "lib/calendar/Easter.h"
#include "lib/calendar/JulianDay.h"
#include "lib/calendar/Moon.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <utility>

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

TEST(Moon, CorrectsTheEpactFromCenturyToCentury)
{
    // Worked out step by step by a script of its own.
    const std::pair<std::int32_t, std::int32_t> rows[] = {
        {1583, 7}, {1700, 10}, {1701, 20}, {1799, 23}, {1800, 4},  {1801, 15}, {1899, 18}, {1901, 10},
        {2001, 5}, {2024, 19}, {2099, 8},  {2100, 19}, {2101, 30}, {2199, 3},  {2200, 14}, {2201, 24},
        {2300, 9}, {2400, 3},  {2401, 15}, {2500, 29}, {2700, 18}, {2999, 21}, {3000, 2},  {3199, 11},
    };
    for (const auto& [year, epact] : rows) {
        EXPECT_EQ(epact, MoonEpact(year)) << year;
    }
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

TEST(Moon, FindsThePhasesOfTheFormulaFarAway)
{
    struct Case {
        CalDate date;
        MoonPhase phase;
        CalDate found;
    };
    // Evaluated from the formula, the days counted month by month, outside of this program.
    const Case kCases[] = {{{1, 1, 2000}, MoonPhase::New, {6, 1, 2000}},
                           {{1, 1, 2000}, MoonPhase::FirstQuarter, {13, 1, 2000}},
                           {{1, 1, 2000}, MoonPhase::Full, {20, 1, 2000}},
                           {{1, 1, 2000}, MoonPhase::LastQuarter, {28, 1, 2000}},
                           {{15, 6, 1066}, MoonPhase::New, {24, 6, 1066}},
                           {{15, 6, 1066}, MoonPhase::FirstQuarter, {2, 7, 1066}},
                           {{15, 6, 1066}, MoonPhase::Full, {9, 7, 1066}},
                           {{15, 6, 1066}, MoonPhase::LastQuarter, {17, 6, 1066}},
                           {{24, 12, 800}, MoonPhase::New, {19, 12, 800}},
                           {{24, 12, 800}, MoonPhase::FirstQuarter, {26, 12, 800}},
                           {{24, 12, 800}, MoonPhase::Full, {3, 1, 801}},
                           {{24, 12, 800}, MoonPhase::LastQuarter, {10, 1, 801}},
                           {{4, 7, 1776}, MoonPhase::New, {15, 7, 1776}},
                           {{4, 7, 1776}, MoonPhase::FirstQuarter, {22, 7, 1776}},
                           {{4, 7, 1776}, MoonPhase::Full, {30, 7, 1776}},
                           {{4, 7, 1776}, MoonPhase::LastQuarter, {8, 7, 1776}},
                           {{1, 1, 1583}, MoonPhase::New, {22, 1, 1583}},
                           {{1, 1, 1583}, MoonPhase::FirstQuarter, {30, 1, 1583}},
                           {{1, 1, 1583}, MoonPhase::Full, {8, 1, 1583}},
                           {{1, 1, 1583}, MoonPhase::LastQuarter, {15, 1, 1583}},
                           {{31, 12, 1999}, MoonPhase::New, {6, 1, 2000}},
                           {{31, 12, 1999}, MoonPhase::FirstQuarter, {13, 1, 2000}},
                           {{31, 12, 1999}, MoonPhase::Full, {20, 1, 2000}},
                           {{31, 12, 1999}, MoonPhase::LastQuarter, {28, 1, 2000}},
                           {{17, 3, 2525}, MoonPhase::New, {24, 3, 2525}},
                           {{17, 3, 2525}, MoonPhase::FirstQuarter, {1, 4, 2525}},
                           {{17, 3, 2525}, MoonPhase::Full, {8, 4, 2525}},
                           {{17, 3, 2525}, MoonPhase::LastQuarter, {15, 4, 2525}},
                           {{9, 11, 9999}, MoonPhase::New, {31, 12, 9999}},
                           {{9, 11, 9999}, MoonPhase::FirstQuarter, {7, 1, 10000}},
                           {{9, 11, 9999}, MoonPhase::Full, {15, 1, 10000}},
                           {{9, 11, 9999}, MoonPhase::LastQuarter, {22, 1, 10000}},
                           {{20, 2, -44}, MoonPhase::New, {29, 2, -45}},
                           {{20, 2, -44}, MoonPhase::FirstQuarter, {7, 3, -45}},
                           {{20, 2, -44}, MoonPhase::Full, {15, 3, -45}},
                           {{20, 2, -44}, MoonPhase::LastQuarter, {22, 3, -45}},
                           {{1, 5, -4000}, MoonPhase::New, {26, 4, -4001}},
                           {{1, 5, -4000}, MoonPhase::FirstQuarter, {3, 5, -4001}},
                           {{1, 5, -4000}, MoonPhase::Full, {10, 5, -4001}},
                           {{1, 5, -4000}, MoonPhase::LastQuarter, {18, 5, -4001}},
                           {{12, 8, 60000}, MoonPhase::New, {23, 11, 60001}},
                           {{12, 8, 60000}, MoonPhase::FirstQuarter, {30, 11, 60001}},
                           {{12, 8, 60000}, MoonPhase::Full, {8, 12, 60001}},
                           {{12, 8, 60000}, MoonPhase::LastQuarter, {15, 12, 60001}},
                           {{6, 6, 3200}, MoonPhase::New, {3, 7, 3200}},
                           {{6, 6, 3200}, MoonPhase::FirstQuarter, {11, 6, 3200}},
                           {{6, 6, 3200}, MoonPhase::Full, {18, 6, 3200}},
                           {{6, 6, 3200}, MoonPhase::LastQuarter, {25, 6, 3200}}};
    for (const Case& c : kCases) {
        const CalDate found = MoonPhaseDate(c.date, c.phase);
        EXPECT_TRUE(c.found == found) << c.date.GetYear() << ": " << found.GetDay() << "." << found.GetMonth()
                                      << "." << found.GetYear();
    }
}

TEST(Moon, AnswersAnyYear)
{
    for (const std::int32_t nYear : {kMin, -1, 0, 1582, 3268, kMax}) {
        MoonPhaseDate({1, 1, nYear}, MoonPhase::LastQuarter);
        EXPECT_LE(std::abs(MoonAge({31, 12, nYear})), 31 + 30);
    }
}

TEST(CalendarNames, AreThoseOfTheTables)
{
    constexpr const char* kWeekdays[][4] = {
        {"Monday", "Montag", "Mon", "Mo"},      {"Tuesday", "Dienstag", "Tue", "Di"},
        {"Wednesday", "Mittwoch", "Wed", "Mi"}, {"Thursday", "Donnerstag", "Thu", "Do"},
        {"Friday", "Freitag", "Fri", "Fr"},     {"Saturday", "Samstag", "Sat", "Sa"},
        {"Sunday", "Sonntag", "Sun", "So"}};
    constexpr const char* kMonths[][4] = {{"January", "Januar", "Jan", "Jan"},
                                          {"February", "Februar", "Feb", "Feb"},
                                          {"March", "Maerz", "Mar", "Maer"},
                                          {"April", "April", "Apr", "Apr"},
                                          {"May", "Mai", "May", "Mai"},
                                          {"June", "Juni", "Jun", "Jun"},
                                          {"July", "Juli", "Jul", "Jul"},
                                          {"August", "August", "Aug", "Aug"},
                                          {"September", "September", "Sep", "Sep"},
                                          {"October", "Oktober", "Oct", "Okt"},
                                          {"November", "November", "Nov", "Nov"},
                                          {"December", "Dezember", "Dec", "Dez"}};
    constexpr const char* kWords[][2] = {
        {"day", "Tag"},           {"month", "Monat"}, {"year", "Jahr"},      {"week", "Woche"},
        {"weekday", "Wochentag"}, {"hour", "Stunde"}, {"minute", "Minute"},  {"second", "Sekunde"},
        {"yesterday", "gestern"}, {"today", "heute"}, {"tomorrow", "morgen"}};
    char szName[kNameWidth];
    char szShort[kShortNameWidth];
    char szWord[kWordWidth];
    for (int nLanguage = 0; nLanguage <= 2; ++nLanguage) {
        const int nColumn = nLanguage == 2 ? 1 : 0;
        for (int i = 1; i <= 7; ++i) {
            WeekdayName(i, szName, nLanguage);
            EXPECT_STREQ(kWeekdays[i - 1][nColumn], szName);
            ShortWeekdayName(i, szShort, nLanguage);
            EXPECT_STREQ(kWeekdays[i - 1][nColumn + 2], szShort);
        }
        for (int i = 1; i <= 12; ++i) {
            MonthName(i, szName, nLanguage);
            EXPECT_STREQ(kMonths[i - 1][nColumn], szName);
            ShortMonthName(i, szShort, nLanguage);
            EXPECT_STREQ(kMonths[i - 1][nColumn + 2], szShort);
        }
        for (int i = 0; i <= 10; ++i) {
            CalendarWord(i, szWord, nLanguage);
            EXPECT_STREQ(kWords[i][nColumn], szWord);
        }
    }
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
