#include "lib/calendar/CalDate.h"
#include "lib/calendar/CalInterval.h"
#include "lib/calendar/CalSpan.h"
#include "lib/calendar/CalTime.h"
#include "lib/calendar/Calendar.h"
#include "lib/calendar/LocalTime.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(CalDate, KeepsWhatItIsGiven)
{
    const CalDate date(99, 77, -12345);
    EXPECT_EQ(99, date.GetDay());
    EXPECT_EQ(77, date.GetMonth());
    EXPECT_EQ(-12345, date.GetYear());
}

TEST(CalDate, TodayIsTheLocalDate)
{
    const std::tm before = LocalTime();
    const CalDate today = CalDate::Today();
    const std::tm after = LocalTime();
    ASSERT_EQ(before.tm_mday, after.tm_mday) << "midnight passed";
    EXPECT_EQ(before.tm_mday, today.GetDay());
    EXPECT_EQ(before.tm_mon + 1, today.GetMonth());
    EXPECT_EQ(before.tm_year + 1900, today.GetYear());
}

TEST(CalDate, TheDifferenceIsAMagnitude)
{
    const CalDate a(1, 1, 2000);
    const CalDate b(1, 3, 2000);
    EXPECT_EQ(CalInterval(60, 0, 0), a - b);
    EXPECT_EQ(CalInterval(60, 0, 0), b - a);
}

TEST(CalDate, MovesByTheLengthOfAnInterval)
{
    CalDate date(1, 1, 2001);
    date += CalInterval(1, 1, 1); // 396 days
    EXPECT_EQ(CalDate(1, 2, 2002), date);
    date -= CalInterval(1, 1, 1);
    EXPECT_EQ(CalDate(1, 1, 2001), date);
    EXPECT_EQ(CalDate(31, 1, 2001), date + CalInterval(0, 1, 0));
    EXPECT_EQ(CalDate(2, 12, 2000), date - CalInterval(0, 1, 0));
    EXPECT_EQ(CalDate(1, 1, 2001), date);
}

TEST(CalDate, AnIntervalBeyond31BitsOfDaysWrapsToGoBack)
{
    EXPECT_EQ(CalDate(31, 12, 2000), CalDate(1, 1, 2001) + CalInterval(0xFFFFFFFFu, 0, 0));
    EXPECT_EQ(CalDate(2, 1, 2001), CalDate(1, 1, 2001) - CalInterval(0xFFFFFFFFu, 0, 0));
}

TEST(CalDate, IsOrderedByYearMonthDay)
{
    const CalDate date(15, 6, 2000);
    EXPECT_LT(date, CalDate(1, 1, 2001));
    EXPECT_LT(date, CalDate(1, 7, 2000));
    EXPECT_LT(date, CalDate(16, 6, 2000));
    EXPECT_GT(date, CalDate(31, 12, -2000));
    EXPECT_GE(date, date);
    EXPECT_LE(date, date);
    EXPECT_TRUE(date != CalDate(15, 6, 2001));
}

TEST(CalDate, ComparesItsWeekdayWithANumber)
{
    const CalDate saturday(1, 1, 2005);
    EXPECT_TRUE(saturday == 6);
    EXPECT_TRUE(saturday != 5);
    EXPECT_TRUE(saturday > 5);
    EXPECT_TRUE(saturday < 7);
    EXPECT_TRUE(saturday <= 6);
    EXPECT_TRUE(saturday >= 6);
}

TEST(CalDate, GoesOnByADay)
{
    CalDate date(31, 12, 2000);
    EXPECT_EQ(CalDate(31, 12, 2000), date++);
    EXPECT_EQ(CalDate(1, 1, 2001), date);
    EXPECT_EQ(CalDate(2, 1, 2001), ++date);
}

TEST(CalDate, StepsToAWeekday)
{
    const CalDate saturday(1, 1, 2005);
    const auto next = [&](int nWeekday) { return CalDate(saturday).NextWeekday(nWeekday); };
    const auto previous = [&](int nWeekday) { return CalDate(saturday).PreviousWeekday(nWeekday); };
    EXPECT_EQ(CalDate(2, 1, 2005), next(7));
    EXPECT_EQ(CalDate(3, 1, 2005), next(1));
    EXPECT_EQ(CalDate(7, 1, 2005), next(5));
    EXPECT_EQ(saturday, next(6));
    EXPECT_EQ(CalDate(9, 1, 2005), next(0));
    EXPECT_EQ(CalDate(31, 12, 2004), previous(5));
    EXPECT_EQ(CalDate(26, 12, 2004), previous(7));
    EXPECT_EQ(saturday, previous(6));
    EXPECT_EQ(CalDate(24, 12, 2004), previous(0));
}

TEST(CalDate, WrapsTheDaysToANumberThatIsNoWeekday)
{
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    // Zeller by hand for 1.3.-99: K = -99, J = 0, (10 + 1 - 99 - 24 + 5) % 7 = -107 % 7 = -2, less 1.
    const CalDate below(1, 3, -99);
    ASSERT_EQ(-3, below.Weekday());
    // 2147483647 + 3 is -2147483646 in 32 bits.
    EXPECT_EQ(AddDays(below, -2147483646), CalDate(below).NextWeekday(kMax));
    // 7 - (-3) - 2147483648.
    EXPECT_EQ(AddDays(below, -2147483638), CalDate(below).NextWeekday(kMin));
    const CalDate saturday(1, 1, 2005);
    // 6 + 2147483648 days back: 2147483642 forward in 32 bits.
    EXPECT_EQ(AddDays(saturday, 2147483642), CalDate(saturday).PreviousWeekday(kMin));
    // 7 - 2147483647 + 6 days back.
    EXPECT_EQ(AddDays(saturday, 2147483634), CalDate(saturday).PreviousWeekday(kMax));
}

TEST(CalDate, KnowsLeapYears)
{
    EXPECT_TRUE(CalDate(1, 1, 2000).IsLeap());
    EXPECT_FALSE(CalDate(1, 1, 3200).IsLeap());
}

TEST(CalInterval, CountsAMonthAs30AndAYearAs365Days)
{
    EXPECT_EQ(1u + 60u + 1095u, CalInterval(1, 2, 3).TotalDays());
    EXPECT_EQ(0u, CalInterval().TotalDays());
}

TEST(CalInterval, IsEqualByFieldsAndOrderedByLength)
{
    EXPECT_EQ(CalInterval(1, 2, 3), CalInterval(1, 2, 3));
    EXPECT_FALSE(CalInterval(30, 0, 0) == CalInterval(0, 1, 0));
    EXPECT_FALSE(CalInterval(30, 0, 0) < CalInterval(0, 1, 0));
    EXPECT_TRUE(CalInterval(30, 0, 0) <= CalInterval(0, 1, 0));
    EXPECT_TRUE(CalInterval(31, 0, 0) > CalInterval(0, 1, 0));
    EXPECT_TRUE(CalInterval(0, 12, 0) < CalInterval(0, 0, 1));
}

TEST(CalInterval, CalculatesFieldByField)
{
    const CalInterval a(10, 5, 3);
    EXPECT_EQ(CalInterval(11, 7, 6), a + CalInterval(1, 2, 3));
    EXPECT_EQ(CalInterval(9, 3, 0), a - CalInterval(1, 2, 3));
    EXPECT_EQ(CalInterval(), a - CalInterval(11, 0, 0));
    EXPECT_EQ(CalInterval(), a - CalInterval(0, 6, 0));
    EXPECT_EQ(CalInterval(), a - CalInterval(0, 0, 4));
    EXPECT_EQ(CalInterval(20, 10, 6), a * 2);
    EXPECT_EQ(CalInterval(5, 2, 1), a / 2);
    EXPECT_EQ(CalInterval(), a / 0);
}

TEST(CalInterval, GoesUpAndDownByADayAndStopsAtNone)
{
    CalInterval interval(1, 0, 0);
    EXPECT_EQ(CalInterval(1, 0, 0), interval--);
    EXPECT_EQ(CalInterval(0, 0, 0), interval);
    EXPECT_EQ(CalInterval(0, 0, 0), --interval);
    EXPECT_EQ(CalInterval(1, 0, 0), ++interval);
    EXPECT_EQ(CalInterval(1, 0, 0), interval++);
    EXPECT_EQ(CalInterval(2, 0, 0), interval);
}

TEST(CalInterval, DividesTheLongerByTheShorter)
{
    const CalInterval week(7, 0, 0);
    const CalInterval month(0, 1, 0);
    EXPECT_EQ(4u, month / week);
    EXPECT_EQ(4u, week / month);
    EXPECT_EQ(2u, month % week);
    EXPECT_EQ(2u, week % month);
    EXPECT_EQ(0u, week / CalInterval());
    EXPECT_EQ(0u, CalInterval() % week);
}

std::uint32_t Clock(const CalTime& time)
{
    return time.GetHour() * 10000u + time.GetMinute() * 100u + time.GetSecond();
}

TEST(CalTime, AZoneOutOfRangeClearsItAll)
{
    EXPECT_EQ(123456u, Clock(CalTime(12, 34, 56, 12)));
    EXPECT_EQ(-12, CalTime(12, 34, 56, -12).GetZone());
    EXPECT_EQ(0u, Clock(CalTime(12, 34, 56, 13)));
    EXPECT_EQ(0, CalTime(12, 34, 56, 13).GetZone());
    EXPECT_EQ(0u, Clock(CalTime(12, 34, 56, -13)));
    EXPECT_EQ(0u, Clock(CalTime::FromSeconds(5, 13)));
}

TEST(CalTime, ConvertsSecondsAndFractionsOfADay)
{
    EXPECT_EQ(10203u, Clock(CalTime::FromSeconds(3723)));
    EXPECT_EQ(3723, CalTime(1, 2, 3).TotalSeconds());
    EXPECT_DOUBLE_EQ(0.5, CalTime(12, 0, 0).DayFraction());
    EXPECT_EQ(60000u, Clock(CalTime::FromDayFraction(0.25)));
    EXPECT_EQ(60000u, Clock(CalTime::FromDayFraction(2453364.25))) << "whole days are dropped";
    EXPECT_EQ(0u, Clock(CalTime::FromDayFraction(1.0)));
    EXPECT_EQ(235959u, Clock(CalTime::FromDayFraction(0.999999))) << "cut, not rounded";
    EXPECT_EQ(0u, Clock(CalTime::FromDayFraction(0.0 / 0.0)));
}

TEST(CalTime, ChangesItsZone)
{
    CalTime time(12, 30, 0, 0);
    time.ChangeZone(2);
    EXPECT_EQ(143000u, Clock(time));
    EXPECT_EQ(2, time.GetZone());
    time.ChangeZone(13);
    EXPECT_EQ(143000u, Clock(time));
    time.ChangeZone(-12);
    EXPECT_EQ(3000u, Clock(time));
    CalTime late(23, 30, 0, 0);
    late.ChangeZone(1);
    EXPECT_EQ(3000u, Clock(late));
    CalTime early(0, 30, 0, 0);
    early.ChangeZone(-1);
    EXPECT_EQ(233000u, Clock(early));
    CalTime midnight(23, 0, 0, 0);
    midnight.ChangeZone(1);
    EXPECT_EQ(240000u, Clock(midnight));
}

TEST(CalTime, ComparesInTheZoneOfTheLeftSide)
{
    EXPECT_TRUE(CalTime(12, 0, 0, 0) == CalTime(14, 0, 0, 2));
    EXPECT_TRUE(CalTime(12, 0, 0, 0) < CalTime(12, 0, 0, -1));
    EXPECT_TRUE(CalTime(12, 0, 1, 0) > CalTime(12, 0, 0, 0));
}

TEST(CalTime, TheDifferenceIsAMagnitude)
{
    const CalSpan span = CalTime(1, 0, 0) - CalTime(3, 30, 15);
    EXPECT_EQ(0, span.GetDays());
    EXPECT_EQ(2, span.GetHours());
    EXPECT_EQ(30, span.GetMinutes());
    EXPECT_EQ(15, span.GetSeconds());
}

TEST(CalTime, NowIsTheLocalTime)
{
    const std::tm before = LocalTime();
    const std::int32_t nNow = CalTime::Now().TotalSeconds();
    const std::int32_t nStart = before.tm_hour * 3600 + before.tm_min * 60 + before.tm_sec;
    EXPECT_LE((nNow - nStart + 86400) % 86400, 10);
}

TEST(CalTime, KnowsTheZoneOfALongitude)
{
    EXPECT_EQ(1, ZoneOfLongitude(13.4));
    EXPECT_EQ(0, ZoneOfLongitude(7.4));
    EXPECT_EQ(1, ZoneOfLongitude(7.5));
    EXPECT_EQ(-1, ZoneOfLongitude(-7.5));
    EXPECT_EQ(-12, ZoneOfLongitude(-180.0));
    EXPECT_EQ(1000 + 3600, ShiftByLongitude(1000, 15.0, 0.0));
    EXPECT_EQ(1000 - 1800, ShiftByLongitude(1000, 7.5, 15.0));
}

void ExpectSpan(const CalSpan& span, int nDays, int nHours, int nMinutes, int nSeconds)
{
    EXPECT_EQ(nDays, span.GetDays());
    EXPECT_EQ(nHours, span.GetHours());
    EXPECT_EQ(nMinutes, span.GetMinutes());
    EXPECT_EQ(nSeconds, span.GetSeconds());
}

TEST(CalSpan, CarriesIntoDays)
{
    ExpectSpan(CalSpan(1, 25, 61, 61), 2, 2, 2, 1);
    ExpectSpan(CalSpan(65535, 24, 0, 0), 0, 0, 0, 0);
}

TEST(CalSpan, ComparesTheTimeOfDayOnly)
{
    EXPECT_TRUE(CalSpan(1, 2, 3, 4) == CalSpan(9, 2, 3, 4));
    EXPECT_TRUE(CalSpan(9, 2, 3, 4) < CalSpan(1, 2, 3, 5));
}

TEST(CalSpan, CalculatesInSeconds)
{
    ExpectSpan(CalSpan(1, 23, 0, 0) + CalSpan(0, 2, 0, 1), 2, 1, 0, 1);
    ExpectSpan(CalSpan(2, 0, 0, 0) - CalSpan(0, 0, 0, 1), 1, 23, 59, 59);
    ExpectSpan(CalSpan(0, 0, 0, 1) - CalSpan(2, 0, 0, 0), 1, 23, 59, 59);
    ExpectSpan(CalSpan(1, 13, 0, 0) * 2, 3, 2, 0, 0);
    ExpectSpan(CalSpan(3, 13, 0, 0) / 2, 3, 6, 30, 0);
    ExpectSpan(CalSpan(3, 13, 0, 0) / 0, 0, 0, 0, 0);
}

TEST(CalSpan, DividesTheLongerByTheShorterWithTheirDays)
{
    // 5 days and an hour are 7260 minutes, 290 * 25 and 10 more.
    EXPECT_EQ(290u, CalSpan(5, 1, 0, 0) / CalSpan(0, 0, 25, 0));
    EXPECT_EQ(290u, CalSpan(0, 0, 25, 0) / CalSpan(5, 1, 0, 0));
    EXPECT_EQ(600u, CalSpan(0, 0, 25, 0) % CalSpan(5, 1, 0, 0));
    // 168 hours over 121.
    EXPECT_EQ(1u, CalSpan(5, 1, 0, 0) / CalSpan(7, 0, 0, 0));
    EXPECT_EQ(47u * 3600u, CalSpan(5, 1, 0, 0) % CalSpan(7, 0, 0, 0));
    // More than 32 bits of seconds: 65535 * 86400 + 86399.
    EXPECT_EQ(5662310399u, CalSpan(65535, 23, 59, 59) / CalSpan(0, 0, 0, 1));
    EXPECT_EQ(5662310399u % 4294967297u, CalSpan(65535, 23, 59, 59) % CalSpan(49710, 6, 28, 17));
    EXPECT_EQ(0u, CalSpan(5, 1, 0, 0) / CalSpan());
    EXPECT_EQ(0u, CalSpan(5, 1, 0, 0) % CalSpan());
}

} // namespace
