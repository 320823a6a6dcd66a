#include "lib/calendar/CalTime.h"

#include "lib/calendar/LocalTime.h"
#include "lib/text/Numbers.h"

#include <cmath>

namespace {

constexpr std::int32_t kDaySeconds = 86400;

bool IsZone(std::int16_t nZone) { return nZone >= -12 && nZone <= 12; }

} // namespace

CalTime::CalTime(std::uint16_t nHour, std::uint16_t nMinute, std::uint16_t nSecond, std::int16_t nZone)
{
    if (IsZone(nZone)) {
        m_nHour = nHour;
        m_nMinute = nMinute;
        m_nSecond = nSecond;
        m_nZone = nZone;
    }
}

CalTime CalTime::FromSeconds(std::int32_t nSeconds, std::int16_t nZone)
{
    CalTime time(0, 0, 0, nZone);
    if (IsZone(nZone)) {
        time.SetSeconds(nSeconds);
    }
    return time;
}

CalTime CalTime::FromDayFraction(double dDays, std::int16_t nZone)
{
    const double dFraction = dDays > 0.0 ? dDays - std::floor(dDays) : dDays;
    return FromSeconds(TruncToInt32(dFraction * kDaySeconds), nZone);
}

CalTime CalTime::Now()
{
    const std::tm now = LocalTime();
    return {static_cast<std::uint16_t>(now.tm_hour), static_cast<std::uint16_t>(now.tm_min),
            static_cast<std::uint16_t>(now.tm_sec)};
}

void CalTime::ChangeZone(std::int16_t nZone)
{
    if (!IsZone(nZone)) {
        return;
    }
    std::int32_t nSeconds = TotalSeconds() + (nZone - m_nZone) * 3600;
    if (nSeconds < 0) {
        nSeconds += kDaySeconds;
    } else if (nSeconds > kDaySeconds) {
        nSeconds -= kDaySeconds;
    }
    SetSeconds(nSeconds);
    m_nZone = nZone;
}

std::int32_t CalTime::SecondsHere(CalTime other) const
{
    other.ChangeZone(m_nZone);
    return other.TotalSeconds();
}

void CalTime::SetSeconds(std::int32_t nSeconds)
{
    m_nHour = static_cast<std::uint16_t>(nSeconds / 3600);
    m_nMinute = static_cast<std::uint16_t>(nSeconds % 3600 / 60);
    m_nSecond = static_cast<std::uint16_t>(nSeconds % 60);
}

CalSpan operator-(const CalTime& a, const CalTime& b)
{
    const std::int32_t nSeconds = a.TotalSeconds() - b.TotalSeconds();
    return CalSpan::FromSeconds(static_cast<std::uint64_t>(nSeconds < 0 ? -nSeconds : nSeconds));
}

std::int16_t ZoneOfLongitude(double dLongitude)
{
    return static_cast<std::int16_t>(TruncToInt32(dLongitude / 15 + (dLongitude < 0.0 ? -0.5 : 0.5)));
}

std::int32_t ShiftByLongitude(std::int32_t nSeconds, double dLongitude1, double dLongitude2)
{
    return TruncToInt32(nSeconds + (dLongitude1 / 15 - dLongitude2 / 15) * 3600);
}
