// The file of a book of series: what a spreadsheet opens, and what is read as a file of readings.

#include "model/optics/ReadingSeries.h"

#include "lib/text/CodePage.h"
#include "lib/text/ShortestNumber.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::string_view kBookMark = "\xEF\xBB\xBF";
constexpr std::string_view kSignature = "# Orreva: readings of the knife edge";
constexpr std::string_view kSeriesKey = "# series:";
constexpr std::string_view kDateKey = "# date:";
constexpr std::string_view kSourceKey = "# source:";
constexpr std::string_view kMaskKey = "# mask:";
constexpr std::string_view kConicKey = "# conic:";
constexpr std::string_view kWavelengthKey = "# wavelength:";
constexpr std::string_view kCellSeparators = ",;\t";
constexpr std::size_t kMostBookLines = 1'000'000;

constexpr std::array<const char*, 2> kSourceWords{"moving", "fixed"};
constexpr std::array<const char*, 2> kMaskWords{"couder", "everest"};

template <std::size_t N>
const char* WordOf(const std::array<const char*, N>& words, std::int32_t number)
{
    return words[number == 1 ? 1 : 0];
}

template <std::size_t N>
std::int32_t NumberOf(const std::array<const char*, N>& words, std::string_view word)
{
    return word == words[1] ? 1 : 0;
}

/// A cell as csv takes it.
std::string BookCell(const std::string& cell)
{
    if (cell.find_first_of(",;\t\"") == std::string::npos) {
        return cell;
    }
    std::string quoted = "\"";
    for (const char c : cell) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + '"';
}

std::string ZoneLine(const SeriesZone& zone)
{
    // A radius that looks like a line to be skipped is set in.
    const bool skipped = zone.radius.starts_with('#') || zone.radius.starts_with("radius");
    std::string line = BookCell((skipped ? " " : "") + zone.radius);
    for (const std::string& reading : zone.readings) {
        line += ',' + BookCell(reading);
    }
    return line.empty() ? "," : line; // an empty line would be skipped
}

std::string_view TrimmedValue(std::string_view text)
{
    constexpr std::string_view kAround = " ,;\t\"";
    const std::size_t first = text.find_first_not_of(kAround);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kAround) + 1 - first);
}

/// Whether a line has a key; then `value` is what stands behind it, without the empty cells and the quotes
/// that a spreadsheet adds.
bool HasKey(std::string_view line, std::string_view key, std::string_view& value)
{
    if (line.starts_with('"')) {
        line.remove_prefix(1);
    }
    if (!line.starts_with(key)) {
        return false;
    }
    value = TrimmedValue(line.substr(key.size()));
    return true;
}

std::string_view TakeBookLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// Takes a cell, with or without quotes, off the front of a line; false behind the last one.
bool TakeBookCell(std::optional<std::string_view>& line, std::string& cell)
{
    if (!line) {
        return false;
    }
    cell.clear();
    bool quoted = false;
    std::size_t i = 0;
    for (; i < line->size(); ++i) {
        const char c = (*line)[i];
        const bool quote = c == '"' && (quoted || cell.empty());
        if (quote && quoted && i + 1 < line->size() && (*line)[i + 1] == '"') {
            cell += '"';
            ++i;
        } else if (quote) {
            quoted = !quoted;
        } else if (!quoted && kCellSeparators.find(c) != std::string_view::npos) {
            line->remove_prefix(i + 1);
            return true;
        } else {
            cell += c;
        }
    }
    line.reset();
    return true;
}

/// A text of the file as the core keeps it, in one line.
std::string BookValue(std::string_view utf8)
{
    std::string text = Cp1252FromUtf8(utf8);
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

/// Adds the zone of a line; false beyond the limits.
bool AddZoneLine(ReadingSeries& series, std::string_view text)
{
    if (series.zones.size() == kMostZones) {
        return false;
    }
    std::optional<std::string_view> line = text;
    std::string cell;
    SeriesZone zone;
    TakeBookCell(line, cell);
    zone.radius = BookValue(cell);
    zone.radius.erase(0, std::min(zone.radius.find_first_not_of(' '), zone.radius.size()));
    while (TakeBookCell(line, cell)) {
        zone.readings.push_back(BookValue(cell));
        if (zone.readings.size() > 4 * kMostReadings) {
            return false;
        }
    }
    while (!zone.readings.empty() && zone.readings.back().empty()) {
        zone.readings.pop_back();
    }
    if (zone.readings.size() > kMostReadings) {
        return false;
    }
    series.zones.push_back(std::move(zone));
    return true;
}

bool IsUtf8Text(std::string_view text)
{
    while (!text.empty()) {
        const char32_t character = code_page::TakeCharacter(text);
        if (character == 0 || character == 0xFFFD) {
            return false;
        }
    }
    return true;
}

bool IsBookDataLine(std::string_view line)
{
    return !line.empty() && !line.starts_with('#') && !line.starts_with("\"#") &&
           !line.starts_with("radius") && !line.starts_with("\"radius\"");
}

void TakeSeriesHead(ReadingSeries& series, std::string_view line)
{
    std::string_view value;
    if (HasKey(line, kDateKey, value)) {
        series.date = TrimmedValue(BookValue(value));
    } else if (HasKey(line, kSourceKey, value)) {
        series.light_source = NumberOf(kSourceWords, value);
    } else if (HasKey(line, kMaskKey, value)) {
        series.mask_type = NumberOf(kMaskWords, value);
    }
}

void TakeBookHead(ReadingBook& book, std::string_view line)
{
    std::string_view value;
    if (HasKey(line, kConicKey, value)) {
        book.conic = ReadingValue(value).value_or(book.conic);
    } else if (HasKey(line, kWavelengthKey, value)) {
        const double wavelength = ReadingValue(value).value_or(book.wavelength);
        book.wavelength = wavelength > 0 ? wavelength : book.wavelength;
    }
}

/// A stretch of the text that holds one series, and the number of its first line.
struct BookSection {
    std::string_view text;
    int first_line;
};

/// Parts a file of readings before each line that names a series. What stands before the first of them is a
/// series of its own only if it has zones, or if there is no other.
std::vector<BookSection> SectionsOf(std::string_view text)
{
    std::vector<BookSection> sections;
    std::string_view rest = text;
    std::string_view value;
    const char* start = text.data();
    int start_line = 1;
    bool named = false;
    bool data = false;
    const auto close = [&](const char* end) {
        if (named || data) {
            sections.push_back({{start, static_cast<std::size_t>(end - start)}, start_line});
        }
    };
    for (int number = 1; !rest.empty(); ++number) {
        const char* const begin = rest.data();
        const std::string_view line = TakeBookLine(rest);
        if (HasKey(line, kSeriesKey, value)) {
            close(begin);
            start = begin;
            start_line = number;
            named = true;
        }
        data = data || IsBookDataLine(line);
    }
    close(text.data() + text.size());
    if (sections.empty()) {
        sections.push_back({text, 1});
    }
    return sections;
}

/// The series of a section; false beyond the limits.
bool TakeSection(std::string_view text, ReadingSeries& series)
{
    std::string_view value;
    while (!text.empty()) {
        const std::string_view line = TakeBookLine(text);
        if (HasKey(line, kSeriesKey, value)) {
            series.name = TrimmedValue(BookValue(value));
        } else if (!IsBookDataLine(line)) {
            TakeSeriesHead(series, line);
        } else if (!AddZoneLine(series, line)) {
            return false;
        }
    }
    return true;
}

std::string_view WithoutBookMark(std::string_view text)
{
    return text.starts_with(kBookMark) ? text.substr(kBookMark.size()) : text;
}

} // namespace

std::string ReadingsPath(std::string_view design_path)
{
    constexpr std::string_view kDesignEnding = ".orreva.xml";
    constexpr std::string_view kPlainEnding = ".xml";
    if (design_path.ends_with(kDesignEnding)) {
        design_path.remove_suffix(kDesignEnding.size());
    } else if (design_path.ends_with(kPlainEnding)) {
        design_path.remove_suffix(kPlainEnding.size());
    }
    return std::string(design_path) + ".foucault.csv";
}

std::string SeriesText(const ReadingSeries& series)
{
    const auto head = [](std::string_view key, const std::string& value) {
        return std::string(key) + ' ' + value + '\n';
    };
    std::string text = head(kSeriesKey, series.name) + head(kDateKey, series.date) +
                       head(kSourceKey, WordOf(kSourceWords, series.light_source)) +
                       head(kMaskKey, WordOf(kMaskWords, series.mask_type)) + "radius";
    for (std::size_t run = 1; run <= RunsOf(series); ++run) {
        text += ",reading " + std::to_string(run);
    }
    text += '\n';
    for (const SeriesZone& zone : series.zones) {
        text += ZoneLine(zone) + '\n';
    }
    return Utf8FromCp1252(text);
}

std::string BookText(const ReadingBook& book)
{
    std::string text(kSignature);
    const auto number = [&text](std::string_view key, double value) {
        text += std::string(key) + ' ';
        AppendNumber(text, value);
        text += '\n';
    };
    text += '\n';
    number(kConicKey, book.conic);
    number(kWavelengthKey, book.wavelength);
    for (const ReadingSeries& series : book.series) {
        text += SeriesText(series);
    }
    return text;
}

std::optional<ReadingBook> ParseBook(std::string_view text)
{
    text = WithoutBookMark(text);
    std::string_view value;
    ReadingBook book;
    bool ours = false;
    std::string_view rest = text;
    for (std::size_t lines = 0; !rest.empty(); ++lines) {
        const std::string_view line = TakeBookLine(rest);
        ours = ours || HasKey(line, kSignature, value);
        TakeBookHead(book, line);
        if (lines == kMostBookLines) {
            return std::nullopt;
        }
    }
    if (!ours || !IsUtf8Text(text)) {
        return std::nullopt;
    }
    for (const BookSection& section : SectionsOf(text)) {
        ReadingSeries series;
        if (book.series.size() == kMostSeries || !TakeSection(section.text, series)) {
            return std::nullopt;
        }
        if (!series.name.empty() || !series.zones.empty()) {
            book.series.push_back(std::move(series));
        }
    }
    return book;
}

std::size_t SeriesCount(std::string_view text) { return SectionsOf(WithoutBookMark(text)).size(); }

SeriesImport ImportSeries(std::string_view text, double outer, const std::string& name)
{
    text = WithoutBookMark(text);
    SeriesImport import;
    for (const BookSection& section : SectionsOf(text)) {
        import.fault = ParseReadingLines(section.text, outer, section.first_line).fault;
        if (import.fault) {
            import.series.clear();
            return import;
        }
        ReadingSeries& series = import.series.emplace_back();
        TakeSection(section.text, series);
        series.name = series.name.empty() ? name : series.name;
    }
    return import;
}
