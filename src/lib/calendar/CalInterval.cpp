#include "lib/calendar/CalInterval.h"

#include <algorithm>

CalInterval& CalInterval::operator+=(const CalInterval& other)
{
    m_nDays += other.m_nDays;
    m_nMonths = static_cast<std::uint16_t>(m_nMonths + other.m_nMonths);
    m_nYears = static_cast<std::uint16_t>(m_nYears + other.m_nYears);
    return *this;
}

CalInterval& CalInterval::operator-=(const CalInterval& other)
{
    if (m_nDays < other.m_nDays || m_nMonths < other.m_nMonths || m_nYears < other.m_nYears) {
        return *this = CalInterval();
    }
    m_nDays -= other.m_nDays;
    m_nMonths = static_cast<std::uint16_t>(m_nMonths - other.m_nMonths);
    m_nYears = static_cast<std::uint16_t>(m_nYears - other.m_nYears);
    return *this;
}

CalInterval& CalInterval::operator*=(std::uint32_t nFactor)
{
    m_nDays *= nFactor;
    m_nMonths = static_cast<std::uint16_t>(m_nMonths * nFactor);
    m_nYears = static_cast<std::uint16_t>(m_nYears * nFactor);
    return *this;
}

CalInterval& CalInterval::operator/=(std::uint32_t nDivisor)
{
    if (nDivisor == 0) {
        return *this = CalInterval();
    }
    m_nDays /= nDivisor;
    m_nMonths = static_cast<std::uint16_t>(m_nMonths / nDivisor);
    m_nYears = static_cast<std::uint16_t>(m_nYears / nDivisor);
    return *this;
}

CalInterval& CalInterval::operator++()
{
    ++m_nDays;
    return *this;
}

CalInterval CalInterval::operator++(int)
{
    const CalInterval before = *this;
    ++*this;
    return before;
}

CalInterval& CalInterval::operator--()
{
    m_nDays -= m_nDays != 0 ? 1 : 0;
    return *this;
}

CalInterval CalInterval::operator--(int)
{
    const CalInterval before = *this;
    --*this;
    return before;
}

std::uint32_t operator/(const CalInterval& a, const CalInterval& b)
{
    const auto [shorter, longer] = std::minmax({a.TotalDays(), b.TotalDays()});
    return shorter == 0 ? 0 : longer / shorter;
}

std::uint32_t operator%(const CalInterval& a, const CalInterval& b)
{
    const auto [shorter, longer] = std::minmax({a.TotalDays(), b.TotalDays()});
    return shorter == 0 ? 0 : longer % shorter;
}
