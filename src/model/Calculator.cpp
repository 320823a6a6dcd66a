#include "model/Calculator.h"

#include "lib/ExprValues.h"
#include "lib/ExpressionEvaluator.h"
#include "lib/FormatText.h"

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
