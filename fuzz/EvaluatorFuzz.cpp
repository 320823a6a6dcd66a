#include "lib/ErrCode.h"
#include "lib/ExpressionEvaluator.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// Any text is evaluated, told about, and its value shown in every format.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    CExpressionEvaluator evaluator;
    const double dValue = evaluator.Evaluate(text.c_str());
    evaluator.GetErrorText();
    for (const char* const pszFormat : {"Bin", "Oct", "Dec", "Hex", "Date", "Time", "Other"}) {
        evaluator.SetFormat(pszFormat);
        try {
            evaluator.Format(dValue);
        } catch (ErrCode) {
            // Not an integer.
        }
    }
    evaluator.StoreResult();
    return 0;
}
