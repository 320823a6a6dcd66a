#include "lib/text/ShortestNumber.h"

#include <charconv>
#include <cmath>
#include <iterator>

void AppendNumber(std::string& out, double value)
{
    if (std::isnan(value)) {
        out += "nan"; // whatever its sign
        return;
    }
    char digits[32];
    out.append(digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr);
}
