#include "lib/text/Numbers.h"

#include "lib/text/CharTools.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

std::int32_t TruncToInt32(double value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= static_cast<double>(Limits::max())) {
        return Limits::max();
    }
    if (value <= static_cast<double>(Limits::min())) {
        return Limits::min();
    }
    return static_cast<std::int32_t>(value);
}

namespace {

const char* SkipWhiteSpace(const char* p)
{
    while (*p == ' ' || (*p >= '\t' && *p <= '\r')) {
        ++p;
    }
    return p;
}

const char* SkipDigits(const char* p)
{
    while (IsDigit(*p)) {
        ++p;
    }
    return p;
}

/// End of the decimal number that begins at `p`, `p` itself when there is none.
const char* DecimalEnd(const char* p)
{
    const char* end = SkipDigits(p);
    bool digits = end != p;
    if (*end == '.') {
        const char* const fraction = end + 1;
        const char* const fractionEnd = SkipDigits(fraction);
        digits = digits || fractionEnd != fraction;
        end = fractionEnd;
    }
    if (!digits) {
        return p;
    }
    if (*end == 'e' || *end == 'E') {
        const char* exponent = end + 1;
        exponent += *exponent == '+' || *exponent == '-' ? 1 : 0;
        const char* const exponentEnd = SkipDigits(exponent);
        end = exponentEnd != exponent ? exponentEnd : end;
    }
    return end;
}

} // namespace

double DecimalValue(const char* psz)
{
    const char* const start = SkipWhiteSpace(psz);
    const char* const number = start + (*start == '-' || *start == '+' ? 1 : 0);
    const char* const end = DecimalEnd(number);
    // strtod alone would also take hexadecimal numbers and words, so it gets the decimal number and no more.
    return end == number ? 0.0 : std::strtod(std::string(start, end).c_str(), nullptr);
}

std::string UnreadTail(const char* psz)
{
    const char* const start = SkipWhiteSpace(psz);
    const char* const number = start + (*start == '-' || *start == '+' ? 1 : 0);
    const char* const end = DecimalEnd(number);
    std::string tail = SkipWhiteSpace(end == number ? start : end);
    while (!tail.empty() && *SkipWhiteSpace(&tail.back()) == 0) {
        tail.pop_back();
    }
    return tail;
}

std::int32_t IntegerValue(const char* psz)
{
    const char* const start = SkipWhiteSpace(psz);
    const bool negative = *start == '-';
    double value = 0.0; // exact far beyond 32 bits
    for (const char* p = start + (negative || *start == '+' ? 1 : 0); IsDigit(*p); ++p) {
        value = value * 10.0 + (*p - '0');
    }
    return TruncToInt32(negative ? -value : value);
}

namespace {

constexpr std::size_t kLongestText = 1000;

bool IsReadable(const char* psz) { return psz != nullptr && std::strlen(psz) <= kLongestText; }

/// The first comma counts as a point.
std::string WithPoint(const char* psz)
{
    std::string copy(psz);
    if (const std::size_t comma = copy.find(','); comma != std::string::npos) {
        copy[comma] = '.';
    }
    return copy;
}

} // namespace

double TextToDouble(const char* psz)
{
    if (!IsReadable(psz)) {
        return 0.0;
    }
    const char* const text = SkipBlanks(psz);
    if (StartsWith("1.#INF", text) != nullptr) {
        return HUGE_VAL;
    }
    return DecimalValue(WithPoint(text).c_str());
}

bool IsNumberText(const char* psz)
{
    if (!IsReadable(psz)) {
        return false;
    }
    const std::string text = WithPoint(psz);
    const char* const start = SkipWhiteSpace(text.c_str());
    const char* const number = start + (*start == '-' || *start == '+' ? 1 : 0);
    const char* const end = DecimalEnd(number);
    return end != number && *SkipWhiteSpace(end) == 0;
}
