#include "model/optics/Readings.h"

#include "lib/text/CharTools.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>

using namespace readings_fault;

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kCellEnds = ",;\t";

std::string_view AfterDigits(std::string_view text)
{
    while (!text.empty() && IsDigit(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

std::string_view AfterSign(std::string_view text)
{
    if (text.starts_with('+') || text.starts_with('-')) {
        text.remove_prefix(1);
    }
    return text;
}

bool IsDecimal(std::string_view text)
{
    text = AfterSign(text);
    std::string_view rest = AfterDigits(text);
    bool digits = rest.size() < text.size();
    if (rest.starts_with('.')) {
        const std::string_view fraction = rest.substr(1);
        rest = AfterDigits(fraction);
        digits = digits || rest.size() < fraction.size();
    }
    if (rest.starts_with('e') || rest.starts_with('E')) {
        const std::string_view exponent = AfterSign(rest.substr(1));
        rest = AfterDigits(exponent);
        digits = digits && rest.size() < exponent.size();
    }
    return digits && rest.empty();
}

/// Takes one line with its end off the front of `text`.
std::string_view TakeReadingsLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// Takes one cell off the front of `line`, which has no cell any more when it is done.
std::string_view TakeCell(std::optional<std::string_view>& line)
{
    const std::size_t end = line->find_first_of(kCellEnds);
    const std::string_view cell = line->substr(0, end);
    if (end == std::string_view::npos) {
        line.reset();
    } else {
        line->remove_prefix(end + 1);
    }
    return cell;
}

/// Reads the zone of a line; null, or what is wrong with it.
const Bilingual* ReadZone(std::string_view line, double before, double outer, MeasuredZone& zone)
{
    std::optional<std::string_view> rest = line;
    const std::optional<double> radius = ReadingValue(TakeCell(rest));
    if (!radius) {
        return &kNoRadius;
    }
    zone.radius = *radius;
    if (!(zone.radius > 0)) {
        return &kNotAbove0;
    }
    if (!(zone.radius > before)) {
        return &kNotRising;
    }
    if (!(zone.radius <= outer)) {
        return &kBeyond;
    }
    while (rest) {
        const std::optional<double> reading = ReadingValue(TakeCell(rest));
        if (!reading) {
            return &kNoNumber;
        }
        if (zone.readings.size() == kMostReadings) {
            return &kManyReadings;
        }
        zone.readings.push_back(*reading);
    }
    return zone.readings.empty() ? &kNoReading : nullptr;
}

bool IsSkippedLine(std::string_view line)
{
    return line.empty() || line.starts_with('#') || line.starts_with("radius");
}

} // namespace

std::optional<double> ReadingValue(std::string_view cell)
{
    while (cell.starts_with(' ')) {
        cell.remove_prefix(1);
    }
    while (cell.ends_with(' ')) {
        cell.remove_suffix(1);
    }
    if (!IsDecimal(cell)) {
        return std::nullopt;
    }
    const double value = DecimalValue(std::string(cell).c_str());
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

ReadingsParse ParseReadings(std::string_view text, double outer)
{
    const bool marked = text.starts_with(kByteOrderMark);
    return ParseReadingLines(text.substr(marked ? kByteOrderMark.size() : 0), outer, 1);
}

ReadingsParse ParseReadingLines(std::string_view text, double outer, int first_line)
{
    ReadingsParse parse;
    int line_number = first_line - 1;
    double before = 0;
    while (!text.empty()) {
        ++line_number;
        const std::string_view line = TakeReadingsLine(text);
        if (IsSkippedLine(line)) {
            continue;
        }
        MeasuredZone zone{};
        const Bilingual* const wrong =
            parse.zones.size() == kMostZones ? &kManyZones : ReadZone(line, before, outer, zone);
        if (wrong != nullptr) {
            parse.fault = {line_number, *wrong};
            return parse;
        }
        before = zone.radius;
        parse.zones.push_back(std::move(zone));
    }
    if (parse.zones.size() < kFewestZones) {
        parse.fault = {std::max(line_number, first_line), kFewZones};
    }
    return parse;
}

std::string FaultText(const ReadingsFault& fault, int language)
{
    constexpr Bilingual kLine{"line ", "Zeile "};
    return kLine.In(language) + std::to_string(fault.line) + ": " + fault.reason.In(language);
}

std::vector<ZoneMean> MeansOf(const std::vector<MeasuredZone>& zones)
{
    std::vector<ZoneMean> means;
    for (const MeasuredZone& zone : zones) {
        double sum = 0;
        for (const double reading : zone.readings) {
            sum += reading;
        }
        means.push_back({zone.radius, sum / static_cast<double>(zone.readings.size())});
    }
    return means;
}
