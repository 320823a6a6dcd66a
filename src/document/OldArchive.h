#pragma once

#include "lib/text/LibString.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Reads the binary archive of old design files: a flat stream of little-endian values, over bytes that
/// others own. A read past their end stores nothing and gives false; the archive is of no use after it.
class OldArchive {
public:
    explicit OldArchive(std::string_view bytes) : m_rest(bytes) {}

    bool Read(std::uint32_t& value);
    bool Read(std::int32_t& value);
    bool Read(double& value);
    /// A length, then as many bytes of code page 1252 without a terminator; a zero byte among them ends the
    /// text. The length stands in one byte below 255, else behind the byte 255 in two bytes, else behind
    /// 65535 in four. The mark 65534 announces characters of two bytes, and their own length follows it.
    bool Read(LibString& value);

private:
    std::optional<std::string_view> Take(std::uint64_t count);
    std::optional<std::uint64_t> TakeInteger(std::uint64_t size);
    std::optional<std::uint64_t> TakeLength();
    std::optional<std::string> TakeText();

    std::string_view m_rest;
};
