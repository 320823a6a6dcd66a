#include "model/analysis/QuickNewReading.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"

#include <cmath>

namespace {

constexpr Bilingual kUnread{"; not read: \"%s\"", "; nicht gelesen: \"%s\""};
constexpr std::size_t kLongestTail = 40;

/// Up to two decimals without zeros at their end; a number that no telescope has, in short.
std::string ReadMillimetres(double value)
{
    if (std::abs(value) >= 1e9) {
        return FiniteText("%g mm", {value});
    }
    std::string text = FiniteText("%0.2f", {value});
    while (text.ends_with('0')) {
        text.pop_back();
    }
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return (text == "-0" || text.empty() ? "0" : text) + " mm";
}

std::string Unread(const std::string& text, int language)
{
    std::string tail = UnreadTail(text.c_str());
    if (tail.empty()) {
        return "";
    }
    if (tail.size() > kLongestTail) {
        tail.resize(kLongestTail);
        tail += "...";
    }
    return FormatText(kUnread.In(language), tail.c_str());
}

} // namespace

std::string QuickNewReading(const std::string& aperture, const std::string& focal_length, int language)
{
    const double D = DecimalValue(aperture.c_str());
    const double f = DecimalValue(focal_length.c_str());
    return ReadMillimetres(D) + ", " + ReadMillimetres(f) + ", " + FiniteText("f/%0.1f", {f / D}) +
           Unread(aperture, language) + Unread(focal_length, language);
}
