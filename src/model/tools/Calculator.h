#pragma once

#include <cstddef>
#include <string>

/// The longest input that the expression calculator takes.
inline constexpr std::size_t kLongestExpression = 1023;

struct CalculatorAnswer {
    std::string text; ///< what the result field shows
    bool bNumber;     ///< false for a message
};

/// Evaluates an expression, bytes of code page 1252, with nothing kept from one to the next. The value is
/// shown with six decimals; positive infinity and NaN count as failures and show the evaluator's message. A
/// longer input than the field takes gives a message of its own.
CalculatorAnswer Calculate(const std::string& expression);
