#include "lib/CharTools.h"
#include "lib/ErrCode.h"
#include "lib/ExprFunctions.h"
#include "lib/ExprLiterals.h"
#include "lib/ExprTokens.h"
#include "lib/ExprValues.h"
#include "lib/ExpressionEvaluator.h"

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

void CExpressionEvaluator::ReadName(const char* psz, ExprResult& result)
{
    const ExprName name = FindExprName(psz);
    const ExprFunction& function = ExprFunctions()[name.nRow];
    result.nToken = name.nRow;
    if (function.nId == kIdNone) {
        ReadUnknownName(psz, result);
        return;
    }
    result.nLength = 0;
    CallFunction(function, psz + name.nLength, result);
    result.nLength += name.nLength;
}

/// `psz` stands behind the name, and so counts the length.
void CExpressionEvaluator::CallFunction(const ExprFunction& function, const char* psz, ExprResult& result)
{
    if (const double* const pConstant = ExprConstant(function.nId)) {
        result.dValue = *pConstant;
        return;
    }
    if (const OneArgumentFunction pfApply = FindOneArgumentFunction(function.nId)) {
        ReadBracket(psz, result);
        result.dValue = pfApply(result.dValue);
        return;
    }
    if (FindTwoArgumentFunction(function.nId) != nullptr) {
        ReadTwoArguments(function, psz, result);
        return;
    }
    const char* pszEnd = psz;
    switch (function.nId) {
    case kIdMod:
        ReadBracket(psz, result);
        result.dValue = Fraction(result.dValue);
        return;
    case kIdMem:
        ReadBracket(psz, result);
        result.dValue = MemoryCell(result.dValue);
        return;
    case kIdAscii:
        pszEnd = ReadAscii(psz, result.dValue);
        break;
    case kIdBin:
        pszEnd = ReadBased(psz, 2, function.pszName, result.dValue);
        break;
    case kIdOct:
        pszEnd = ReadBased(psz, 8, function.pszName, result.dValue);
        break;
    case kIdHex:
        pszEnd = ReadBased(psz, 16, function.pszName, result.dValue);
        break;
    case kIdTime:
        result.dValue = ReadTimeLiteral(ReadLiteralText(pszEnd, function.pszName).c_str());
        pszEnd = TakeClose(pszEnd);
        break;
    case kIdDate:
        result.dValue = DayNumber(ReadDateLiteral(ReadLiteralText(pszEnd, function.pszName).c_str()));
        pszEnd = TakeClose(pszEnd);
        break;
    default:
        SetErrorArg("Unknown Function");
        throw ErrCode::UnhandledFunction;
    }
    result.nLength = static_cast<std::uint32_t>(pszEnd - psz);
}

void CExpressionEvaluator::ReadTwoArguments(const ExprFunction& function, const char* psz, ExprResult& result)
{
    result.nArgs = 2;
    ReadBracket(psz, result);
    if (result.nArgs != 2) {
        SetErrorArg(function.pszName);
        throw ErrCode::WrongArgumentCount;
    }
    result.dValue = FindTwoArgumentFunction(function.nId)(result.adArgs[0], result.adArgs[1]);
}

void CExpressionEvaluator::ReadUnknownName(const char* psz, ExprResult& result)
{
    if (HandleFunction(psz, result)) {
        return;
    }
    const char* pszEnd = psz;
    while (IsNameCharacter(*pszEnd)) {
        ++pszEnd;
    }
    SetErrorArg(std::string(psz, pszEnd).c_str());
    throw ErrCode::UnknownFunction;
}

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
