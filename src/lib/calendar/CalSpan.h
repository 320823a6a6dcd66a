#pragma once

#include <compare>
#include <cstdint>

/// A duration of up to 65535 days, kept as days and a time of day below 24 hours. Days wrap at 16 bits.
class CalSpan {
public:
    constexpr CalSpan() = default;
    /// Hours, minutes and seconds beyond a day go to the days.
    CalSpan(std::uint16_t nDays, std::uint16_t nHours, std::uint16_t nMinutes, std::uint16_t nSeconds);
    static CalSpan FromSeconds(std::uint64_t nSeconds);

    std::uint16_t GetDays() const { return m_nDays; }
    std::uint16_t GetHours() const { return m_nHours; }
    std::uint16_t GetMinutes() const { return m_nMinutes; }
    std::uint16_t GetSeconds() const { return m_nSeconds; }
    /// Seconds of the time of day, without the days.
    std::uint32_t DaySeconds() const { return m_nHours * 3600u + m_nMinutes * 60u + m_nSeconds; }
    /// All seconds, days included.
    std::uint64_t TotalSeconds() const { return m_nDays * std::uint64_t{86400} + DaySeconds(); }

    /// Comparisons look at hours, minutes and seconds only, not at the days: kept.
    bool operator==(const CalSpan& other) const { return DaySeconds() == other.DaySeconds(); }
    std::strong_ordering operator<=>(const CalSpan& other) const
    {
        return DaySeconds() <=> other.DaySeconds();
    }

    CalSpan& operator+=(const CalSpan& other);
    /// The magnitude of the difference.
    CalSpan& operator-=(const CalSpan& other);
    CalSpan& operator*=(std::uint32_t nFactor);
    /// Divides the time of day and keeps the days; a divisor of 0 gives a span of 0.
    CalSpan& operator/=(std::uint32_t nDivisor);

private:
    std::uint16_t m_nDays = 0;
    std::uint16_t m_nHours = 0;
    std::uint16_t m_nMinutes = 0;
    std::uint16_t m_nSeconds = 0;
};

inline CalSpan operator+(CalSpan a, const CalSpan& b) { return a += b; }
inline CalSpan operator-(CalSpan a, const CalSpan& b) { return a -= b; }
inline CalSpan operator*(CalSpan a, std::uint32_t nFactor) { return a *= nFactor; }
inline CalSpan operator/(CalSpan a, std::uint32_t nDivisor) { return a /= nDivisor; }

/// How often the shorter of two spans goes into the longer one, and the seconds that remain, by their whole
/// lengths with the days. Two 0 when the shorter one is 0.
std::uint64_t operator/(const CalSpan& a, const CalSpan& b);
std::uint64_t operator%(const CalSpan& a, const CalSpan& b);
