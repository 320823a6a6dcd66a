#include "model/tools/Calculator.h"

#include "lib/expression/ExprValues.h"
#include "lib/expression/ExpressionEvaluator.h"
#include "lib/text/FormatText.h"

CalculatorAnswer Calculate(const std::string& expression)
{
    if (expression.size() > kLongestExpression) {
        return {FormatText("Expression of more than %d characters.", static_cast<int>(kLongestExpression)),
                false};
    }
    CExpressionEvaluator evaluator;
    const double dValue = evaluator.Evaluate(expression.c_str());
    if (IsNoValue(dValue)) {
        return {evaluator.GetErrorText(), false};
    }
    return {FormatText("%f", dValue), true};
}
