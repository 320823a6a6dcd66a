#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The small text beside a rescue copy: a word and its value a line.
struct RescueNote {
    std::int64_t nanoseconds = 0; ///< since 1970, UTC
    std::int32_t offset = 0;      ///< of the zone's time, in seconds east of UTC
    std::string reason{};
    std::string title{}; ///< code page 1252
    std::string path{};  ///< bytes of the file system
    bool seen = false;   ///< a start of the program has offered the copy

    /// A note of this moment, the rest empty.
    static RescueNote Now();

    /// Reads Text back; nothing for anything else.
    static std::optional<RescueNote> Parse(std::string_view text);

    std::string Text() const;

    /// ISO 8601, to the second: "2026-11-21T13:05:59+01:00".
    std::string Time() const;
};
