#include "lib/ExpressionEvaluator.h"

#include "lib/ErrCode.h"
#include "lib/ExprValues.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>

ExprResult::ExprResult() : dValue(kNoValue) {}

CExpressionEvaluator::CExpressionEvaluator()
{
    std::fill(std::begin(m_adMemory), std::end(m_adMemory), kNoValue);
}

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
