#include "model/optics/ReadingSeries.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Bilingual kNotOneNumber{"this is no number", "das ist keine Zahl"};
constexpr Bilingual kSeriesName{"Series %d", "Messreihe %d"};

bool IsNameTaken(const ReadingBook& book, const std::string& name)
{
    return std::ranges::find(book.series, name, &ReadingSeries::name) != book.series.end();
}

/// The first name of a numbered format, from `number` on, that no series of the book has.
template <class NameOf>
std::string FreeName(const ReadingBook& book, int number, NameOf nameOf)
{
    std::string name = nameOf(number);
    while (IsNameTaken(book, name)) { // a book has an end
        name = nameOf(++number);
    }
    return name;
}

/// The radii at which the rings of a mask or of the calculator are measured.
void AddZone(ReadingSeries& series, double radius)
{
    series.zones.push_back({FormatText("%0.4f", radius), {}});
}

void TakeMaskZones(ReadingSeries& series, const CouderMask& mask)
{
    series.mask_type = mask.mask_type;
    series.light_source = mask.light_source;
    for (std::int32_t i = 0; i < std::min(mask.zone_count, MAX_MASK_ZONES); ++i) {
        AddZone(series, ZoneCentre({mask.GetInnerRadius(i), mask.GetOuterRadius(i)}, mask.centre_method));
    }
}

void TakeCalculatedZones(ReadingSeries& series, const ZoneFields& fields, double D)
{
    series.mask_type = fields.view.mask_type;
    series.light_source = fields.view.light_source;
    const double c = DecimalValue(fields.centre_percent.c_str());
    const double Dz = D - 2 * DecimalValue(fields.edge_width.c_str());
    const double N = DecimalValue(fields.wanted_zones.c_str());
    const std::int32_t count = std::isfinite(N) ? std::min(TruncToInt32(N), MAX_MASK_ZONES) : 0;
    for (std::int32_t i = 0; i < count; ++i) {
        AddZone(series, ZoneCentre({ZoneRadius(Dz, N, i, c), ZoneRadius(Dz, N, i + 1, c)},
                                   fields.view.centre_method));
    }
}

bool HasText(const std::string& cell) { return cell.find_first_not_of(' ') != std::string::npos; }

/// What was typed in one line, without the blanks around it.
std::string TypedLine(std::string_view text)
{
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    const std::size_t first = line.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : line.substr(first, line.find_last_not_of(' ') + 1 - first);
}

/// What was typed as the cell keeps it: a number with a point, any other text as it stands.
std::string TypedCell(std::string_view text)
{
    std::string cell = TypedLine(text);
    std::string number = cell;
    std::ranges::replace(number, ',', '.');
    return ReadingValue(number) ? number : cell;
}

const Bilingual* RadiusFault(const ReadingSeries& series, std::size_t zone, double outer)
{
    const std::optional<double> radius = ReadingValue(series.zones[zone].radius);
    if (!radius) {
        return &readings_fault::kNoRadius;
    }
    if (!(*radius > 0)) {
        return &readings_fault::kNotAbove0;
    }
    for (std::size_t before = zone; before-- > 0;) {
        if (const std::optional<double> inner = ReadingValue(series.zones[before].radius)) {
            if (!(*radius > *inner)) {
                return &readings_fault::kNotRising;
            }
            break;
        }
    }
    return *radius <= outer ? nullptr : &readings_fault::kBeyond;
}

/// The first fault of a zone: of a cell, or that it has no reading at all.
std::optional<SeriesFault> ZoneFault(const ReadingSeries& series, std::size_t zone, double outer)
{
    for (std::size_t column = 0; column <= series.zones[zone].readings.size(); ++column) {
        if (const Bilingual* const reason = CellFault(series, zone, column, outer)) {
            return SeriesFault{zone, column, *reason};
        }
    }
    if (SpreadOf(series.zones[zone]).count == 0) {
        return SeriesFault{zone, kRadiusColumn + 1, readings_fault::kNoReading};
    }
    return std::nullopt;
}

std::vector<std::string_view> PartsOf(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

} // namespace

ReadingSeries NewSeries(const ReadingBook& book, const CouderMask* mask, const ZoneFields& fields, double D,
                        std::string date, int language)
{
    ReadingSeries series;
    series.name = FreeName(book, 1, [&](int n) { return FormatText(kSeriesName.In(language), n); });
    series.date = std::move(date);
    if (mask != nullptr && mask->zone_count > 0) {
        TakeMaskZones(series, *mask);
    } else {
        TakeCalculatedZones(series, fields, D);
    }
    return series;
}

ReadingSeries CopyOfSeries(const ReadingBook& book, const ReadingSeries& series)
{
    ReadingSeries copy = series;
    copy.name = FreeName(book, 2, [&](int n) { return series.name + " (" + std::to_string(n) + ")"; });
    return copy;
}

bool RenameSeries(ReadingBook& book, std::size_t index, std::string_view name)
{
    std::string line = TypedLine(name);
    const auto holder = std::ranges::find(book.series, line, &ReadingSeries::name);
    const bool free =
        holder == book.series.end() || holder == book.series.begin() + static_cast<std::ptrdiff_t>(index);
    if (line.empty() || !free || index >= book.series.size()) {
        return false;
    }
    book.series[index].name = std::move(line);
    return true;
}

std::string CellOf(const ReadingSeries& series, std::size_t zone, std::size_t column)
{
    if (zone >= series.zones.size()) {
        return {};
    }
    const SeriesZone& row = series.zones[zone];
    if (column == kRadiusColumn) {
        return row.radius;
    }
    return column <= row.readings.size() ? row.readings[column - 1] : std::string();
}

bool StoreCell(ReadingSeries& series, std::size_t zone, std::size_t column, std::string_view text)
{
    if (zone >= kMostZones || column > kMostReadings) {
        return false;
    }
    std::string cell = TypedCell(text);
    if (cell == CellOf(series, zone, column)) {
        return true;
    }
    if (series.zones.size() <= zone) {
        series.zones.resize(zone + 1);
    }
    SeriesZone& row = series.zones[zone];
    if (column == kRadiusColumn) {
        row.radius = std::move(cell);
        return true;
    }
    if (row.readings.size() < column) {
        row.readings.resize(column);
    }
    row.readings[column - 1] = std::move(cell);
    while (!row.readings.empty() && !HasText(row.readings.back())) {
        row.readings.pop_back();
    }
    return true;
}

bool PasteBlock(ReadingSeries& series, std::size_t zone, std::size_t column, std::string_view block)
{
    if (block.ends_with('\n')) {
        block.remove_suffix(1);
    }
    ReadingSeries changed = series;
    for (std::string_view line : PartsOf(block, '\n')) {
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        std::size_t at = column;
        for (const std::string_view cell : PartsOf(line, '\t')) {
            if (!StoreCell(changed, zone, at++, cell)) {
                return false;
            }
        }
        ++zone;
    }
    series = std::move(changed);
    return true;
}

std::size_t RunsOf(const ReadingSeries& series)
{
    std::size_t runs = 0;
    for (const SeriesZone& zone : series.zones) {
        runs = std::max(runs, zone.readings.size());
    }
    return runs;
}

const Bilingual* CellFault(const ReadingSeries& series, std::size_t zone, std::size_t column, double outer)
{
    if (zone >= series.zones.size()) {
        return nullptr;
    }
    if (column == kRadiusColumn) {
        return RadiusFault(series, zone, outer);
    }
    const std::string cell = CellOf(series, zone, column);
    return !HasText(cell) || ReadingValue(cell) ? nullptr : &kNotOneNumber;
}

ZoneSpread SpreadOf(const SeriesZone& zone)
{
    std::vector<double> values;
    for (const std::string& cell : zone.readings) {
        if (const std::optional<double> value = ReadingValue(cell)) {
            values.push_back(*value);
        }
    }
    ZoneSpread spread{values.size()};
    const auto count = static_cast<double>(values.size());
    double squares = 0;
    for (const double value : values) {
        spread.mean += value;
    }
    spread.mean = values.empty() ? 0 : spread.mean / count;
    for (const double value : values) {
        squares += (value - spread.mean) * (value - spread.mean);
    }
    spread.spread = values.size() < 2 ? 0 : std::sqrt(squares / (count - 1));
    return spread;
}

std::string SeriesFaultText(const SeriesFault& fault, int language)
{
    constexpr Bilingual kZone{"zone %d, ", "Zone %d, "};
    constexpr Bilingual kRadius{"radius: ", "Radius: "};
    constexpr Bilingual kReading{"reading %d: ", "Messwert %d: "};
    const std::string zone = FormatText(kZone.In(language), static_cast<int>(fault.zone) + 1);
    const std::string place = fault.column == kRadiusColumn
                                  ? std::string(kRadius.In(language))
                                  : FormatText(kReading.In(language), static_cast<int>(fault.column));
    return zone + place + fault.reason.In(language);
}

SeriesReading ReadSeries(const ReadingSeries& series, double outer)
{
    SeriesReading reading;
    for (std::size_t zone = 0; zone < series.zones.size(); ++zone) {
        reading.fault = ZoneFault(series, zone, outer);
        if (reading.fault) {
            return reading;
        }
        reading.zones.push_back(
            {*ReadingValue(series.zones[zone].radius), SpreadOf(series.zones[zone]).mean});
    }
    if (reading.zones.size() < kFewestZones) {
        reading.fault = {reading.zones.size(), kRadiusColumn, readings_fault::kFewZones};
    }
    return reading;
}
