#pragma once

#include "lib/calendar/CalDay.h"
#include "lib/calendar/CalInterval.h"

#include <compare>
#include <cstdint>

/// A date of the modern calendar (Calendar.h), with its arithmetic. Nothing is checked; IsValid in Calendar.h
/// is a question of its own.
class CalDate : public CalDay {
public:
    using CalDay::CalDay;
    constexpr CalDate(const CalDay& day) : CalDay(day) {}
    /// The date of the system's local time.
    static CalDate Today();

    /// 1 Monday to 7 Sunday, 0 inside the gap of the reform. Before 1 AD the truncating arithmetic also
    /// gives negative numbers.
    std::int32_t Weekday() const;
    /// Week of the year as ISO 8601 counts it.
    std::int32_t Week() const;
    bool IsLeap() const;

    CalDate& operator+=(const CalInterval& interval);
    CalDate& operator-=(const CalInterval& interval);
    CalDate& operator++();
    CalDate operator++(int);

    /// To the next or previous day that is the given weekday, 0 days when it is one already; a weekday of 0
    /// goes 8 days. The days of a number that is no weekday wrap at 32 bits.
    CalDate& NextWeekday(std::int32_t nWeekday);
    CalDate& PreviousWeekday(std::int32_t nWeekday);

    /// Comparisons with a weekday number compare the date's weekday.
    bool operator==(std::int32_t nWeekday) const { return Weekday() == nWeekday; }
    std::strong_ordering operator<=>(std::int32_t nWeekday) const { return Weekday() <=> nWeekday; }
};

inline CalDate operator+(CalDate date, const CalInterval& interval) { return date += interval; }
inline CalDate operator-(CalDate date, const CalInterval& interval) { return date -= interval; }
/// The days between two dates, as a magnitude.
CalInterval operator-(const CalDate& a, const CalDate& b);
