#pragma once

#include <compare>
#include <cstdint>

/// A length of time in days, months and years. In sums of days a month counts 30 and a year 365, whatever the
/// calendar says. Fields wrap at their widths.
class CalInterval {
public:
    constexpr CalInterval() = default;
    constexpr CalInterval(std::uint32_t nDays, std::uint16_t nMonths, std::uint16_t nYears)
        : m_nDays(nDays), m_nMonths(nMonths), m_nYears(nYears)
    {}

    constexpr std::uint32_t GetDays() const { return m_nDays; }
    constexpr std::uint16_t GetMonths() const { return m_nMonths; }
    constexpr std::uint16_t GetYears() const { return m_nYears; }
    /// The length in days.
    constexpr std::uint32_t TotalDays() const { return m_nDays + 30u * m_nMonths + 365u * m_nYears; }

    /// Equality is field by field, order by length: 30 days and one month are neither equal nor less.
    constexpr bool operator==(const CalInterval&) const = default;
    constexpr std::weak_ordering operator<=>(const CalInterval& other) const
    {
        return TotalDays() <=> other.TotalDays();
    }

    CalInterval& operator+=(const CalInterval& other);
    /// Field by field if each field of this interval is at least that of `other`, else an interval of 0.
    CalInterval& operator-=(const CalInterval& other);
    CalInterval& operator*=(std::uint32_t nFactor);
    /// Field by field; a divisor of 0 gives an interval of 0.
    CalInterval& operator/=(std::uint32_t nDivisor);

    CalInterval& operator++();
    CalInterval operator++(int);
    /// Stops at 0 days.
    CalInterval& operator--();
    CalInterval operator--(int);

private:
    std::uint32_t m_nDays = 0;
    std::uint16_t m_nMonths = 0;
    std::uint16_t m_nYears = 0;
};

inline CalInterval operator+(CalInterval a, const CalInterval& b) { return a += b; }
inline CalInterval operator-(CalInterval a, const CalInterval& b) { return a -= b; }
inline CalInterval operator*(CalInterval a, std::uint32_t nFactor) { return a *= nFactor; }
inline CalInterval operator/(CalInterval a, std::uint32_t nDivisor) { return a /= nDivisor; }

/// How often the shorter of two intervals goes into the longer one, and the days that remain. Two 0 when the
/// shorter one has no length.
std::uint32_t operator/(const CalInterval& a, const CalInterval& b);
std::uint32_t operator%(const CalInterval& a, const CalInterval& b);
