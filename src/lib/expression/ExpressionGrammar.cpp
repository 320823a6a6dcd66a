#include "lib/expression/ExprFunctions.h"
#include "lib/expression/ExprTokens.h"
#include "lib/expression/ExprValues.h"
#include "lib/expression/ExpressionEvaluator.h"
#include "lib/text/ErrCode.h"
#include "lib/text/Numbers.h"

#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>

namespace {

/// Both sides of an operator are always evaluated.
struct BinaryOperator {
    std::uint32_t nToken;
    int nLevel; ///< how tight it binds
    double (*pfApply)(double, double);
};

std::uint32_t Bits(double d) { return static_cast<std::uint32_t>(TruncToLow32(d)); }

double Quotient(double a, double b)
{
    if (b == 0.0) {
        throw ErrCode::DivisionByZero;
    }
    return a / b;
}

/// One level of brackets deeper while it lives, however that ends.
class NestingLevel {
public:
    explicit NestingLevel(int& nNesting) : m_nNesting(nNesting)
    {
        if (nNesting >= CExpressionEvaluator::kDeepestNesting) {
            throw ErrCode::OpenBracket;
        }
        ++m_nNesting;
    }
    ~NestingLevel() { --m_nNesting; }
    NestingLevel(const NestingLevel&) = delete;
    NestingLevel& operator=(const NestingLevel&) = delete;

private:
    int& m_nNesting;
};

constexpr int kLoosestLevel = 1;

/// The six levels of operators from the loosest to the tightest. Operators of one level have equal rank and
/// associate to the left, the power too.
constexpr BinaryOperator kBinaryOperators[] = {
    {kTokenLogicalOr, 1, [](double a, double b) { return a == 0.0 && b == 0.0 ? 0.0 : 1.0; }},
    {kTokenLogicalAnd, 1, [](double a, double b) { return a != 0.0 && b != 0.0 ? 1.0 : 0.0; }},
    {kTokenOr, 2, [](double a, double b) { return static_cast<double>(Bits(a) | Bits(b)); }},
    {kTokenAnd, 2, [](double a, double b) { return static_cast<double>(Bits(a) & Bits(b)); }},
    {kTokenGreater, 3, [](double a, double b) { return a > b ? 1.0 : 0.0; }},
    {kTokenLess, 3, [](double a, double b) { return a < b ? 1.0 : 0.0; }},
    {kTokenEqual, 3, [](double a, double b) { return a == b ? 1.0 : 0.0; }},
    {kTokenPlus, 4, [](double a, double b) { return a + b; }},
    {kTokenMinus, 4, [](double a, double b) { return a - b; }},
    {kTokenTimes, 5, [](double a, double b) { return a * b; }},
    {kTokenDivide, 5, Quotient},
    {kTokenPower, 6, [](double a, double b) { return std::pow(a, b); }},
};
static_assert(std::size(kBinaryOperators) == kTokenPower - kTokenLogicalOr + 1);

/// The operator of a token; null for any other token. The table is in the order of the tokens.
const BinaryOperator* FindOperator(std::uint32_t nToken)
{
    const bool bOperator = nToken >= kTokenLogicalOr && nToken <= kTokenPower;
    return bOperator ? &kBinaryOperators[nToken - kTokenLogicalOr] : nullptr;
}

} // namespace

double CExpressionEvaluator::Evaluate(const char* pszExpression)
{
    m_szErrorArg[0] = 0;
    if (pszExpression == nullptr || *pszExpression == 0) {
        m_nError = static_cast<int>(ErrCode::NoInput);
        return kNoValue;
    }
    m_nError = 0;
    double dValue = kNoValue;
    try {
        // Lengths are 32 bits wide.
        if (std::strlen(pszExpression) > std::numeric_limits<std::uint32_t>::max()) {
            throw ErrCode::Unknown;
        }
        ExprResult result;
        ReadExpression(pszExpression, result);
        dValue = result.dValue;
    } catch (ErrCode code) {
        m_nError = static_cast<int>(code);
    } catch (...) {
        m_nError = static_cast<int>(ErrCode::Unknown);
    }
    m_dResult = dValue;
    return m_dResult;
}

void CExpressionEvaluator::ReadExpression(const char* psz, ExprResult& result)
{
    ReadOperators(psz, kLoosestLevel, result);
    const std::uint32_t nToken = ReadExprToken(psz + result.nLength).nToken;
    if (nToken != kTokenEnd) {
        // A token with a code of its own shows the low eight bits of that code: kept.
        const char szToken[] = {static_cast<char>(nToken), 0};
        SetErrorArg(szToken);
        throw ErrCode::UnknownCharacter;
    }
}

/// Operands and the operators between them, of the level `nLoosest` and tighter.
void CExpressionEvaluator::ReadOperators(const char* psz, int nLoosest, ExprResult& result)
{
    ReadFactorial(psz, result);
    for (;;) {
        const ExprToken token = ReadExprToken(psz + result.nLength);
        const BinaryOperator* const pOperator = FindOperator(token.nToken);
        if (pOperator == nullptr || pOperator->nLevel < nLoosest) {
            return;
        }
        result.nLength += token.nLength;
        ExprResult right;
        ReadOperators(psz + result.nLength, pOperator->nLevel + 1, right);
        result.nLength += right.nLength;
        result.dValue = pOperator->pfApply(result.dValue, right.dValue);
    }
}

/// Kept as it stands: the running product is checked for overflow against small numbers too, so that it fails
/// with its first step, and only operands of 1 or less have a factorial.
void CExpressionEvaluator::ReadFactorial(const char* psz, ExprResult& result)
{
    ReadPrimary(psz, result);
    const ExprToken token = ReadExprToken(psz + result.nLength);
    if (token.nToken != kTokenFactorial) {
        return;
    }
    if (result.dValue > 1.0) {
        throw ErrCode::FactorialOverflow;
    }
    result.nLength += token.nLength;
    result.dValue = 1.0;
}

/// Signs bind tighter than everything else.
void CExpressionEvaluator::ReadPrimary(const char* psz, ExprResult& result)
{
    const char* p = psz;
    bool bNegative = false;
    ExprToken token = ReadExprToken(p);
    for (; token.nToken == kTokenPlus || token.nToken == kTokenMinus; token = ReadExprToken(p)) {
        p += token.nLength;
        bNegative ^= token.nToken == kTokenMinus;
    }
    if (token.nToken == kTokenEnd) {
        throw ErrCode::IncompleteExpression;
    }
    p += token.nLength - 1;
    ReadOperand(token.nToken, p, result);
    result.nLength += static_cast<std::uint32_t>(p - psz);
    if (bNegative) {
        result.dValue *= -1.0;
    }
}

void CExpressionEvaluator::ReadOperand(std::uint32_t nToken, const char* psz, ExprResult& result)
{
    if (nToken == kTokenOpen) {
        ReadBracket(psz, result);
    } else if (nToken >= 'a' && nToken <= 'z') {
        ReadName(psz, result);
    } else if ((nToken >= '0' && nToken <= '9') || nToken == '.') {
        result.dValue = DecimalValue(psz);
        result.nLength = NumberLength(psz);
    } else {
        throw ErrCode::MissingOperand;
    }
}

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
    if (function.nId == kIdMod || function.nId == kIdMem) {
        ReadBracket(psz, result);
        result.dValue = function.nId == kIdMod ? Fraction(result.dValue) : MemoryCell(result.dValue);
        return;
    }
    result.nLength = static_cast<std::uint32_t>(ReadLiteral(function, psz, result.dValue) - psz);
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

void CExpressionEvaluator::ReadBracket(const char* psz, ExprResult& result)
{
    const ExprToken open = ReadExprToken(psz);
    if (open.nToken != kTokenOpen) {
        if (result.nToken < ExprFunctions().size()) {
            SetErrorArg(ExprFunctions()[result.nToken].pszName);
        }
        throw ErrCode::MissingParameter;
    }
    std::string content;
    const char* const pszEnd = CopyBracket(psz + open.nLength, content);
    const NestingLevel level(m_nNesting);
    if (result.nArgs == 0) {
        ExprResult inner;
        ReadExpression(content.c_str(), inner);
        result.dValue = inner.dValue;
    } else {
        ReadArguments(content.c_str(), result);
    }
    result.nLength = static_cast<std::uint32_t>(pszEnd - psz);
}

void CExpressionEvaluator::ReadArguments(const char* pszList, ExprResult& result)
{
    constexpr std::uint32_t kMostArguments = 31;
    std::uint32_t nCount = 0;
    while (*pszList != 0) {
        if (++nCount > kMostArguments) {
            throw ErrCode::TooManyArguments;
        }
        const std::size_t nLength = ArgumentLength(pszList);
        const std::string text(pszList, nLength);
        ExprResult argument;
        ReadExpression(text.c_str(), argument);
        result.adArgs[nCount - 1] = argument.dValue;
        pszList += nLength;
        pszList += *pszList == ',' ? 1 : 0;
    }
    result.nArgs = nCount;
    if (nCount != 0) {
        result.dValue = result.adArgs[0];
    }
}
