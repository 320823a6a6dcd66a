#pragma once

#include "lib/calendar/CalSpan.h"

#include <compare>
#include <cstdint>

/// A time of day in a zone of so many hours east of Greenwich, -12 to 12. Only the zone is checked.
class CalTime {
public:
    /// A zone outside of its range sets all four fields to 0.
    CalTime(std::uint16_t nHour, std::uint16_t nMinute, std::uint16_t nSecond, std::int16_t nZone = 0);
    /// From seconds since midnight.
    static CalTime FromSeconds(std::int32_t nSeconds, std::int16_t nZone = 0);
    /// From a fraction of a day; one above 0 is reduced to its fraction, and all are cut to whole seconds.
    static CalTime FromDayFraction(double dDays, std::int16_t nZone = 0);
    /// The system's local time, in zone 0.
    static CalTime Now();

    std::uint16_t GetHour() const { return m_nHour; }
    std::uint16_t GetMinute() const { return m_nMinute; }
    std::uint16_t GetSecond() const { return m_nSecond; }
    std::int16_t GetZone() const { return m_nZone; }
    std::int32_t TotalSeconds() const { return m_nHour * 3600 + m_nMinute * 60 + m_nSecond; }
    double DayFraction() const { return TotalSeconds() / 86400.0; }

    /// Moves to another zone within -12 to 12, any other is ignored. A total of exactly 86400 seconds stays
    /// and reads 24:00:00.
    void ChangeZone(std::int16_t nZone);

    /// Comparisons take the right side in the left side's zone.
    bool operator==(const CalTime& other) const { return TotalSeconds() == SecondsHere(other); }
    std::weak_ordering operator<=>(const CalTime& other) const
    {
        return TotalSeconds() <=> SecondsHere(other);
    }

private:
    std::int32_t SecondsHere(CalTime other) const;
    void SetSeconds(std::int32_t nSeconds);

    std::uint16_t m_nHour = 0;
    std::uint16_t m_nMinute = 0;
    std::uint16_t m_nSecond = 0;
    std::int16_t m_nZone = 0;
};

/// The magnitude of the seconds between two times of day.
CalSpan operator-(const CalTime& a, const CalTime& b);

/// The zone of a longitude in degrees, east positive.
std::int16_t ZoneOfLongitude(double dLongitude);
/// Seconds shifted by the difference of local time between two longitudes in degrees.
std::int32_t ShiftByLongitude(std::int32_t nSeconds, double dLongitude1, double dLongitude2);
