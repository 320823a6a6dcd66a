#pragma once

#include <compare>
#include <cstdint>

/// Day, month and year, on which the calendar functions (Calendar.h) work. Nothing is checked: an impossible
/// date gives whatever the arithmetic makes of it. Order is by year, month, day.
class CalDay {
public:
    constexpr CalDay(std::uint16_t nDay, std::uint16_t nMonth, std::int32_t nYear)
        : m_nDay(nDay), m_nMonth(nMonth), m_nYear(nYear)
    {}

    constexpr std::uint16_t GetDay() const { return m_nDay; }
    constexpr std::uint16_t GetMonth() const { return m_nMonth; }
    constexpr std::int32_t GetYear() const { return m_nYear; }

    friend constexpr bool operator==(const CalDay&, const CalDay&) = default;
    friend constexpr std::strong_ordering operator<=>(const CalDay& a, const CalDay& b)
    {
        if (a.m_nYear != b.m_nYear) {
            return a.m_nYear <=> b.m_nYear;
        }
        return a.m_nMonth != b.m_nMonth ? a.m_nMonth <=> b.m_nMonth : a.m_nDay <=> b.m_nDay;
    }

private:
    std::uint16_t m_nDay;
    std::uint16_t m_nMonth;
    std::int32_t m_nYear;
};
