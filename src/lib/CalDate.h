#pragma once

#include "lib/CalInterval.h"

#include <compare>
#include <cstdint>

/// A date of the modern calendar (Calendar.h). Nothing is checked: an impossible date gives whatever the
/// arithmetic makes of it; IsValid in Calendar.h is a question of its own. Order is by year, month, day.
class CalDate {
public:
    constexpr CalDate(std::uint16_t nDay, std::uint16_t nMonth, std::int32_t nYear)
        : m_nDay(nDay), m_nMonth(nMonth), m_nYear(nYear)
    {}
    /// The date of the system's local time.
    static CalDate Today();

    constexpr std::uint16_t GetDay() const { return m_nDay; }
    constexpr std::uint16_t GetMonth() const { return m_nMonth; }
    constexpr std::int32_t GetYear() const { return m_nYear; }

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

    constexpr bool operator==(const CalDate&) const = default;
    constexpr std::strong_ordering operator<=>(const CalDate& other) const
    {
        if (m_nYear != other.m_nYear) {
            return m_nYear <=> other.m_nYear;
        }
        return m_nMonth != other.m_nMonth ? m_nMonth <=> other.m_nMonth : m_nDay <=> other.m_nDay;
    }

    /// Comparisons with a weekday number compare the date's weekday.
    bool operator==(std::int32_t nWeekday) const { return Weekday() == nWeekday; }
    std::strong_ordering operator<=>(std::int32_t nWeekday) const { return Weekday() <=> nWeekday; }

private:
    std::uint16_t m_nDay;
    std::uint16_t m_nMonth;
    std::int32_t m_nYear;
};

inline CalDate operator+(CalDate date, const CalInterval& interval) { return date += interval; }
inline CalDate operator-(CalDate date, const CalInterval& interval) { return date -= interval; }
/// The days between two dates, as a magnitude.
CalInterval operator-(const CalDate& a, const CalDate& b);
