#include "document/RescueNote.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <map>

namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;
/// The years 1970 to 2200, and no more than a day to the east or west.
constexpr std::int64_t kLatest = 7'258'118'400 * kNanoseconds;
constexpr std::int64_t kFarthest = 86400;

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

/// Line breaks and other control characters of a title or path would break the note's lines.
std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ' || c == '%') {
            escaped += '%';
            escaped += kHexDigits[byte / 16];
            escaped += kHexDigits[byte % 16];
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::string Unescaped(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        const bool escape = text.size() > 2 && text[0] == '%';
        const std::size_t high = escape ? kHexDigits.find(text[1]) : std::string::npos;
        const std::size_t low = escape ? kHexDigits.find(text[2]) : std::string::npos;
        const bool good = high != std::string::npos && low != std::string::npos;
        plain += good ? static_cast<char>(high * 16 + low) : text[0];
        text.remove_prefix(good ? 3 : 1);
    }
    return plain;
}

std::optional<std::int64_t> Number(const std::string& text, std::int64_t least, std::int64_t most)
{
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    const bool good = read.ec == std::errc() && read.ptr == end && number >= least && number <= most;
    return good ? std::optional(number) : std::nullopt;
}

} // namespace

RescueNote RescueNote::Now()
{
    using std::chrono::system_clock;
    RescueNote note;
    note.nanoseconds =
        std::chrono::duration_cast<std::chrono::nanoseconds>(system_clock::now().time_since_epoch()).count();
    const std::time_t seconds = note.nanoseconds / kNanoseconds;
    std::tm local = {};
    if (localtime_r(&seconds, &local) != nullptr) {
        note.offset = static_cast<std::int32_t>(local.tm_gmtoff);
    }
    return note;
}

std::string RescueNote::Text() const
{
    return "time " + std::to_string(nanoseconds) + "\noffset " + std::to_string(offset) + "\nreason " +
           reason + "\ntitle " + Escaped(title) + "\npath " + Escaped(path) + "\nseen " + (seen ? "1" : "0") +
           "\n";
}

std::optional<RescueNote> RescueNote::Parse(std::string_view text)
{
    std::map<std::string, std::string, std::less<>> values;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const std::size_t blank = line.find(' ');
        if (blank != std::string_view::npos) {
            values.emplace(line.substr(0, blank), line.substr(blank + 1));
        }
    }
    const auto time = Number(values["time"], 0, kLatest);
    const auto offset = Number(values["offset"], -kFarthest, kFarthest);
    if (!time || !offset || !values.contains("seen")) {
        return std::nullopt;
    }
    return RescueNote{*time,
                      static_cast<std::int32_t>(*offset),
                      values["reason"],
                      Unescaped(values["title"]),
                      Unescaped(values["path"]),
                      values["seen"] == "1"};
}

std::string RescueNote::Time() const
{
    const std::time_t local = nanoseconds / kNanoseconds + offset;
    std::tm parts = {};
    gmtime_r(&local, &parts);
    const int minutes = std::abs(offset) / 60;
    char time[80];
    std::snprintf(time, sizeof time, "%04d-%02d-%02dT%02d:%02d:%02d%c%02d:%02d", parts.tm_year + 1900,
                  parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec,
                  offset < 0 ? '-' : '+', minutes / 60, minutes % 60);
    return time;
}
