#include "lib/text/FiniteText.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <cmath>
#include <string_view>

std::string FiniteText(const char* format, std::initializer_list<double> values)
{
    std::string text;
    const double* value = values.begin();
    std::string_view rest(format);
    for (std::size_t at = rest.find('%'); at != std::string_view::npos; at = rest.find('%')) {
        text += rest.substr(0, at);
        rest.remove_prefix(at);
        if (rest.starts_with("%%")) {
            text += '%';
            rest.remove_prefix(2);
            continue;
        }
        const std::size_t letter = rest.find_first_of("fge");
        if (letter == std::string_view::npos || value == values.end()) {
            break;
        }
        const std::string conversion(rest.substr(0, letter + 1));
        text += std::isfinite(*value) ? FormatText(conversion.c_str(), *value) : "–"_cp1252;
        ++value;
        rest.remove_prefix(letter + 1);
    }
    return text += rest;
}
