#include "lib/expression/ExpressionEvaluator.h"
#include "lib/text/ErrCode.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

/// Names of its own, failures that it catches, and formats made of the known ones.
class Derived : public CExpressionEvaluator {
protected:
    bool HandleFunction(const char* pszText, ExprResult& result) override
    {
        switch (pszText[0]) {
        case 't': // twice what its bracket holds
            ReadBracket(pszText + 1, result);
            result.nLength += 1;
            result.dValue *= 2;
            return true;
        case 'n': // the number of its arguments
            result.nArgs = 1;
            ReadBracket(pszText + 1, result);
            result.nLength += 1;
            result.dValue = result.nArgs;
            return true;
        case 'q': // 0 in place of a failure
            try {
                ReadBracket(pszText + 1, result);
                result.nLength += 1;
            } catch (ErrCode) {
                result.dValue = 0.0;
                result.nLength = 1;
            }
            return true;
        case 'x':
            throw 5;
        default:
            return false;
        }
    }
    const char* FormatCustom(const char* pszFormat, double dValue) override
    {
        SetFormat("Dec");
        const char* const pszText = Format(dValue);
        SetFormat(pszFormat);
        return pszText;
    }
};

void ShowInEveryFormat(CExpressionEvaluator& evaluator, double dValue)
{
    for (const char* const pszFormat : {"Bin", "Oct", "Dec", "Hex", "Date", "Time", "Other"}) {
        evaluator.SetFormat(pszFormat);
        try {
            evaluator.Format(dValue);
        } catch (ErrCode) {
            // Not an integer.
        }
    }
}

/// Twice: the second time with the first result in a memory cell.
void Run(CExpressionEvaluator& evaluator, const char* pszText)
{
    for (int i = 0; i < 2; ++i) {
        const double dValue = evaluator.Evaluate(pszText);
        evaluator.GetErrorText();
        ShowInEveryFormat(evaluator, dValue);
        evaluator.StoreResult();
    }
}

} // namespace

/// Any text is evaluated, told about, and its value shown in every format.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    CExpressionEvaluator evaluator;
    Run(evaluator, text.c_str());
    Derived derived;
    Run(derived, text.c_str());
    return 0;
}
