#include "lib/calendar/CalSpan.h"

#include <algorithm>

CalSpan::CalSpan(std::uint16_t nDays, std::uint16_t nHours, std::uint16_t nMinutes, std::uint16_t nSeconds)
{
    const std::uint64_t nTime = nHours * std::uint64_t{3600} + nMinutes * 60u + nSeconds;
    *this = FromSeconds(nDays * std::uint64_t{86400} + nTime);
}

CalSpan CalSpan::FromSeconds(std::uint64_t nSeconds)
{
    CalSpan span;
    span.m_nDays = static_cast<std::uint16_t>(nSeconds / 86400);
    span.m_nHours = static_cast<std::uint16_t>(nSeconds % 86400 / 3600);
    span.m_nMinutes = static_cast<std::uint16_t>(nSeconds % 3600 / 60);
    span.m_nSeconds = static_cast<std::uint16_t>(nSeconds % 60);
    return span;
}

CalSpan& CalSpan::operator+=(const CalSpan& other)
{
    return *this = FromSeconds(TotalSeconds() + other.TotalSeconds());
}

CalSpan& CalSpan::operator-=(const CalSpan& other)
{
    const auto [shorter, longer] = std::minmax({TotalSeconds(), other.TotalSeconds()});
    return *this = FromSeconds(longer - shorter);
}

CalSpan& CalSpan::operator*=(std::uint32_t nFactor) { return *this = FromSeconds(TotalSeconds() * nFactor); }

CalSpan& CalSpan::operator/=(std::uint32_t nDivisor)
{
    if (nDivisor == 0) {
        return *this = CalSpan();
    }
    const std::uint16_t nDays = m_nDays;
    *this = FromSeconds(DaySeconds() / nDivisor);
    m_nDays = nDays;
    return *this;
}

std::uint64_t operator/(const CalSpan& a, const CalSpan& b)
{
    const auto [shorter, longer] = std::minmax({a.TotalSeconds(), b.TotalSeconds()});
    return shorter == 0 ? 0 : longer / shorter;
}

std::uint64_t operator%(const CalSpan& a, const CalSpan& b)
{
    const auto [shorter, longer] = std::minmax({a.TotalSeconds(), b.TotalSeconds()});
    return shorter == 0 ? 0 : longer % shorter;
}
