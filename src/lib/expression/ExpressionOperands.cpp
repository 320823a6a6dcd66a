#include "lib/expression/ExprFunctions.h"
#include "lib/expression/ExprLiterals.h"
#include "lib/expression/ExprTokens.h"
#include "lib/expression/ExprValues.h"
#include "lib/expression/ExpressionEvaluator.h"
#include "lib/text/CharTools.h"
#include "lib/text/ErrCode.h"

#include <cmath>
#include <cstdio>

namespace {

/// Place behind the bracket that a literal's name asks for.
const char* TakeOpen(const char* psz)
{
    psz = SkipExprBlanks(psz);
    if (*psz != '(') {
        throw ErrCode::MissingOpenBracket;
    }
    return psz + 1;
}

const char* TakeClose(const char* psz)
{
    psz = SkipExprBlanks(psz);
    if (*psz != ')') {
        throw ErrCode::MissingCloseBracket;
    }
    return psz + 1;
}

/// Value of a digit, 16 for a character that is none. Capitals are none.
int DigitValue(char c)
{
    if (IsDigit(c)) {
        return c - '0';
    }
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : 16;
}

/// 1.1.1 is day 0; days before it count up again.
double DayNumber(const CalDate& date) { return (date - CalDate(1, 1, 1)).GetDays(); }

} // namespace

double CExpressionEvaluator::Fraction(double d) { return std::modf(d, &m_dFraction); }

/// An empty cell, and a number that no cell has, is told by the error but goes on as 0.
double CExpressionEvaluator::MemoryCell(double dCell)
{
    const std::int32_t nCell = RequireInteger(dCell);
    char szCell[16];
    std::snprintf(szCell, sizeof szCell, "%d", nCell);
    SetErrorArg(szCell);
    if (nCell >= 0 && nCell < kMemoryCells && !IsNoValue(m_adMemory[nCell])) {
        return m_adMemory[nCell];
    }
    m_nError = static_cast<int>(ErrCode::CellNotSet);
    return 0.0;
}

/// The value of a literal in brackets, by the function that names it; `psz` stands behind the name. The place
/// behind the closing bracket.
const char* CExpressionEvaluator::ReadLiteral(const ExprFunction& function, const char* psz, double& dValue)
{
    switch (function.nId) {
    case kIdAscii:
        return ReadAscii(psz, dValue);
    case kIdBin:
        return ReadBased(psz, 2, function.pszName, dValue);
    case kIdOct:
        return ReadBased(psz, 8, function.pszName, dValue);
    case kIdHex:
        return ReadBased(psz, 16, function.pszName, dValue);
    case kIdTime:
        dValue = ReadTimeLiteral(ReadLiteralText(psz, function.pszName).c_str());
        return TakeClose(psz);
    case kIdDate:
        dValue = DayNumber(ReadDateLiteral(ReadLiteralText(psz, function.pszName).c_str()));
        return TakeClose(psz);
    default:
        SetErrorArg("Unknown Function");
        throw ErrCode::UnhandledFunction;
    }
}

/// One character, taken as it is: "ascii(()" is 40.
const char* CExpressionEvaluator::ReadAscii(const char* psz, double& dValue)
{
    psz = SkipExprBlanks(TakeOpen(psz));
    if (*psz == ')') {
        throw ErrCode::EmptyBrackets;
    }
    if (*psz == 0) {
        throw ErrCode::MissingCloseBracket;
    }
    dValue = static_cast<signed char>(*psz);
    return TakeClose(psz + 1);
}

/// Digits of a base, without blanks between them.
const char* CExpressionEvaluator::ReadBased(const char* psz, int nBase, const char* pszName, double& dValue)
{
    const char* const pszDigits = SkipExprBlanks(TakeOpen(psz));
    const char* p = pszDigits;
    dValue = 0.0;
    for (; *p != 0 && *p != ')' && SkipExprBlanks(p) == p; ++p) {
        if (*p == '(') {
            SetErrorArg(pszName);
            throw ErrCode::NoParentheses;
        }
        const int nDigit = DigitValue(*p);
        if (nDigit >= nBase) {
            const char szDigit[] = {*p, 0};
            SetErrorArg(szDigit);
            throw ErrCode::UnknownCharacter;
        }
        dValue = dValue * nBase + nDigit;
    }
    if (p == pszDigits) {
        throw ErrCode::EmptyBrackets;
    }
    return TakeClose(p);
}

/// The text of a date or time literal; `psz` moves to the bracket behind it, or to the end of the text.
std::string CExpressionEvaluator::ReadLiteralText(const char*& psz, const char* pszName)
{
    psz = TakeOpen(psz);
    const char* const pszStart = psz;
    for (; *psz != 0 && *psz != ')'; ++psz) {
        if (*psz == '(') {
            SetErrorArg(pszName);
            throw ErrCode::NoParentheses;
        }
    }
    return {pszStart, psz};
}
