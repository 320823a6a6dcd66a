#include "lib/expression/ExprTokens.h"

#include "lib/text/CharTools.h"
#include "lib/text/ErrCode.h"

namespace {

struct Operator {
    char c;
    bool bDoubled;
    std::uint32_t nToken;
};

constexpr Operator kOperators[] = {
    {'|', true, kTokenLogicalOr},  {'&', true, kTokenLogicalAnd}, {'|', false, kTokenOr},
    {'&', false, kTokenAnd},       {'>', false, kTokenGreater},   {'<', false, kTokenLess},
    {'=', false, kTokenEqual},     {'+', false, kTokenPlus},      {'-', false, kTokenMinus},
    {'*', false, kTokenTimes},     {'/', false, kTokenDivide},    {'^', false, kTokenPower},
    {'!', false, kTokenFactorial}, {'(', false, kTokenOpen},      {')', false, kTokenClose},
};

} // namespace

const char* SkipExprBlanks(const char* psz)
{
    bool bOpen = false;
    const char* const pszText = SkipSource(psz, &bOpen);
    if (bOpen) {
        throw ErrCode::OpenComment;
    }
    return pszText;
}

ExprToken ReadExprToken(const char* psz)
{
    const char* const pszText = SkipExprBlanks(psz);
    const auto nBlanks = static_cast<std::uint32_t>(pszText - psz);
    if (*pszText == 0) {
        return {kTokenEnd, nBlanks};
    }
    for (const Operator& op : kOperators) {
        if (*pszText == op.c && (!op.bDoubled || pszText[1] == op.c)) {
            return {op.nToken, nBlanks + (op.bDoubled ? 2 : 1)};
        }
    }
    return {static_cast<std::uint32_t>(static_cast<signed char>(*pszText)), nBlanks + 1};
}

bool IsNameCharacter(char c) { return (c >= 'a' && c <= 'z') || IsDigit(c) || c == '_'; }

std::uint32_t NumberLength(const char* psz)
{
    const char* p = psz;
    for (;;) {
        if (IsDigit(*p) || *p == '.') {
            ++p;
        } else if ((*p == 'e' || *p == 'E') && (p[1] == '+' || p[1] == '-')) {
            p += 2;
        } else if ((*p == 'e' || *p == 'E') && IsDigit(p[1])) {
            ++p;
        } else {
            return static_cast<std::uint32_t>(p - psz);
        }
    }
}

const char* CopyBracket(const char* psz, std::string& content)
{
    for (std::size_t nDepth = 1;;) {
        psz = SkipExprBlanks(psz);
        if (*psz == 0) {
            throw ErrCode::OpenBracket;
        }
        if (*psz == ')' && --nDepth == 0) {
            return psz + 1;
        }
        if (*psz == '(') {
            ++nDepth;
        }
        content += *psz++;
    }
}

std::size_t ArgumentLength(const char* psz)
{
    std::size_t nDepth = 0;
    const char* p = psz;
    for (; *p != 0 && (*p != ',' || nDepth != 0); ++p) {
        if (*p == '(') {
            ++nDepth;
        } else if (*p == ')' && nDepth != 0) {
            --nDepth;
        }
    }
    return static_cast<std::size_t>(p - psz);
}
