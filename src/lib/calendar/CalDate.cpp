#include "lib/calendar/CalDate.h"

#include "lib/calendar/Calendar.h"
#include "lib/calendar/LocalTime.h"

CalDate CalDate::Today()
{
    const std::tm now = LocalTime();
    return {static_cast<std::uint16_t>(now.tm_mday), static_cast<std::uint16_t>(now.tm_mon + 1),
            now.tm_year + 1900};
}

std::int32_t CalDate::Weekday() const { return ::Weekday(*this); }

std::int32_t CalDate::Week() const { return ::Week(*this); }

bool CalDate::IsLeap() const { return ModernLeap(GetYear()); }

CalDate& CalDate::operator+=(const CalInterval& interval)
{
    return *this = AddDays(*this, static_cast<std::int32_t>(interval.TotalDays()));
}

CalDate& CalDate::operator-=(const CalInterval& interval)
{
    return *this = AddDays(*this, static_cast<std::int32_t>(0u - interval.TotalDays()));
}

CalDate& CalDate::operator++() { return *this = AddDays(*this, 1); }

CalDate CalDate::operator++(int)
{
    const CalDate before = *this;
    ++*this;
    return before;
}

CalDate& CalDate::NextWeekday(std::int32_t nWeekday)
{
    const std::int64_t nToday = Weekday();
    const std::int64_t nDays = nToday > nWeekday ? 7 - nToday + nWeekday : nWeekday - nToday;
    return *this = AddDays(*this, nWeekday == 0 ? 8 : static_cast<std::int32_t>(nDays));
}

CalDate& CalDate::PreviousWeekday(std::int32_t nWeekday)
{
    const std::int64_t nToday = Weekday();
    const std::int64_t nDays = nToday < nWeekday ? 7 - nWeekday + nToday : nToday - nWeekday;
    return *this = AddDays(*this, nWeekday == 0 ? -8 : static_cast<std::int32_t>(-nDays));
}

CalInterval operator-(const CalDate& a, const CalDate& b)
{
    const std::int32_t nDays = DaysBetween(a, b);
    const auto nMagnitude = static_cast<std::uint32_t>(nDays);
    return {nDays < 0 ? 0u - nMagnitude : nMagnitude, 0, 0};
}
