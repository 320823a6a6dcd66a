#include "lib/calendar/CalDate.h"
#include "lib/calendar/Calendar.h"
#include "lib/expression/ExprValues.h"
#include "lib/expression/ExpressionEvaluator.h"
#include "lib/text/ErrCode.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

namespace {

constexpr int kMostDigits = 127;

/// Longest of all: the largest double with kMostDigits behind the point.
char g_szResult[512];

template <typename... Values>
void Print(const char* pszFormat, Values... values)
{
    std::snprintf(g_szResult, sizeof g_szResult, pszFormat, values...);
}

/// Nothing for 0, and for the one number whose magnitude does not fit.
void PrintBinary(std::int32_t nValue)
{
    constexpr double kLimit = 2147483647.0;
    char szDigits[65];
    char* p = szDigits + 64;
    *p = 0;
    if (nValue >= -kLimit) {
        for (auto n = static_cast<std::uint32_t>(nValue); n != 0; n /= 2) {
            *--p = static_cast<char>('0' + n % 2);
        }
    }
    Print("%s", p);
}

void PrintDate(std::int32_t nDay)
{
    constexpr std::int32_t kLastDay = 10000000;
    if (nDay > kLastDay) {
        return;
    }
    const CalDate date = AddDays(CalDate(1, 1, 1), nDay);
    Print("%02d.%02d.%04d", int{date.GetDay()}, int{date.GetMonth()}, date.GetYear());
}

void PrintTime(std::int32_t nSeconds)
{
    Print("%d:%02d:%02d", nSeconds / 3600, nSeconds % 3600 / 60, nSeconds % 60);
}

struct IntegerFormat {
    std::string_view name;
    void (*pfPrint)(std::int32_t);
};

constexpr IntegerFormat kIntegerFormats[] = {
    {"Bin", PrintBinary},
    {"Oct", [](std::int32_t n) { Print("%o", static_cast<unsigned>(n)); }},
    {"Hex", [](std::int32_t n) { Print("%x", static_cast<unsigned>(n)); }},
    {"Date", PrintDate},
    {"Time", PrintTime},
};

} // namespace

bool CExpressionEvaluator::SetPrecision(int nPrecision)
{
    const bool bTaken = nPrecision >= 0 && nPrecision <= kMostDigits;
    m_nPrecision = bTaken ? nPrecision : m_nPrecision;
    return bTaken;
}

bool CExpressionEvaluator::SetFixedPrecision(int nPrecision)
{
    const bool bTaken = nPrecision >= 0 && nPrecision <= kMostDigits;
    m_nFixedPrecision = bTaken ? nPrecision : m_nFixedPrecision;
    return bTaken;
}

const char* CExpressionEvaluator::Format(double dValue)
{
    g_szResult[0] = 0;
    if (IsNoValue(dValue)) {
        return g_szResult;
    }
    if (std::strcmp(m_pszFormat, "Dec") == 0) {
        PrintDecimal(dValue);
        return g_szResult;
    }
    for (const IntegerFormat& format : kIntegerFormats) {
        if (format.name == m_pszFormat) {
            format.pfPrint(RequireInteger(dValue));
            return g_szResult;
        }
    }
    const char* const pszCustom = FormatCustom(m_pszFormat, dValue);
    // The text may stand in the buffer that it is printed into.
    const std::string text = pszCustom != nullptr ? pszCustom : "(null)";
    Print("%s", text.c_str());
    return g_szResult;
}

void CExpressionEvaluator::PrintDecimal(double dValue)
{
    constexpr double kFixedLimit = 9999999999.0;
    if (m_bFixed && dValue < kFixedLimit) {
        Print("%.*f", m_nFixedPrecision, dValue);
    } else {
        Print("%.*g", m_nPrecision, dValue);
    }
}

/// The integer test: the value as an integer of 32 bits, or ErrCode::IntegerTest.
std::int32_t CExpressionEvaluator::RequireInteger(double dValue)
{
    const std::int32_t nValue = TruncToLow32(dValue);
    if (nValue != dValue) {
        m_nError = static_cast<int>(ErrCode::NotAnInteger);
        throw ErrCode::IntegerTest;
    }
    return nValue;
}
