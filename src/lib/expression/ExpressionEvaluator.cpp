#include "lib/expression/ExpressionEvaluator.h"

#include "lib/expression/ExprValues.h"
#include "lib/text/ErrCode.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

ExprResult::ExprResult() : dValue(kNoValue) {}

CExpressionEvaluator::CExpressionEvaluator()
{
    std::fill(std::begin(m_adMemory), std::end(m_adMemory), kNoValue);
}

const char* CExpressionEvaluator::GetErrorText() const
{
    static char szText[sizeof m_szErrorArg + 64];
    const char* const pszMessage = ErrorMessage(m_nError);
    const char* const pszMark = std::strstr(pszMessage, "%s");
    if (pszMark == nullptr) {
        return pszMessage;
    }
    const int nHead = static_cast<int>(pszMark - pszMessage);
    std::snprintf(szText, sizeof szText, "%.*s%s%s", nHead, pszMessage, m_szErrorArg, pszMark + 2);
    return szText;
}

void CExpressionEvaluator::SetErrorArg(const char* psz)
{
    if (m_szErrorArg[0] == 0) {
        std::snprintf(m_szErrorArg, sizeof m_szErrorArg, "%s", psz);
    }
}

int CExpressionEvaluator::StoreResult()
{
    const double* const pFree = std::find_if(std::begin(m_adMemory), std::end(m_adMemory), IsNoValue);
    return StoreResultIn(static_cast<int>(pFree - m_adMemory));
}

int CExpressionEvaluator::StoreResultIn(int nCell)
{
    constexpr int kNoCell = 25;
    if (nCell < 0 || nCell >= kMemoryCells) {
        return kNoCell;
    }
    m_adMemory[nCell] = m_dResult;
    return 0;
}

bool CExpressionEvaluator::HandleFunction(const char*, ExprResult&) { return false; }

const char* CExpressionEvaluator::FormatCustom(const char*, double) { return nullptr; }
