#include "document/OldArchive.h"

#include "lib/text/CodePage.h"

#include <bit>
#include <limits>

namespace {

constexpr std::uint64_t kTwoBytesFollow = 0xFF;
constexpr std::uint64_t kFourBytesFollow = 0xFFFF;
constexpr std::uint64_t kWideMark = 0xFFFE;
/// Told in place of a length; no archive is as long, so that a second mark behind it is damage.
constexpr std::uint64_t kWideText = std::numeric_limits<std::uint64_t>::max();

std::uint64_t LittleEndian(std::string_view bytes)
{
    std::uint64_t value = 0;
    for (std::size_t i = bytes.size(); i > 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
    }
    return value;
}

std::string NarrowText(std::string_view wide)
{
    std::string text;
    for (; !wide.empty(); wide.remove_prefix(2)) {
        text += code_page::ByteFor(static_cast<char32_t>(LittleEndian(wide.substr(0, 2))));
    }
    return text;
}

} // namespace

std::optional<std::string_view> OldArchive::Take(std::uint64_t count)
{
    if (count > m_rest.size()) {
        return std::nullopt;
    }
    const std::string_view taken = m_rest.substr(0, count);
    m_rest.remove_prefix(count);
    return taken;
}

std::optional<std::uint64_t> OldArchive::TakeInteger(std::uint64_t size)
{
    const auto bytes = Take(size);
    return bytes ? std::optional(LittleEndian(*bytes)) : std::nullopt;
}

std::optional<std::uint64_t> OldArchive::TakeLength()
{
    const auto byte = TakeInteger(1);
    if (byte != kTwoBytesFollow) {
        return byte;
    }
    const auto word = TakeInteger(2);
    if (word == kFourBytesFollow) {
        return TakeInteger(4);
    }
    return word == kWideMark ? kWideText : word;
}

std::optional<std::string> OldArchive::TakeText()
{
    auto length = TakeLength();
    const std::uint64_t width = length == kWideText ? 2 : 1;
    if (width == 2) {
        length = TakeLength();
    }
    if (!length || *length > m_rest.size() / width) {
        return std::nullopt;
    }
    const std::string_view bytes = *Take(*length * width);
    return width == 2 ? NarrowText(bytes) : std::string(bytes);
}

bool OldArchive::Read(std::uint32_t& value)
{
    const auto bits = TakeInteger(sizeof value);
    value = bits ? static_cast<std::uint32_t>(*bits) : value;
    return bits.has_value();
}

bool OldArchive::Read(std::int32_t& value)
{
    std::uint32_t bits = 0;
    const bool read = Read(bits);
    value = read ? static_cast<std::int32_t>(bits) : value;
    return read;
}

bool OldArchive::Read(double& value)
{
    const auto bits = TakeInteger(sizeof value);
    value = bits ? std::bit_cast<double>(*bits) : value;
    return bits.has_value();
}

bool OldArchive::Read(LibString& value)
{
    const auto text = TakeText();
    if (text) {
        value = text->c_str();
    }
    return text.has_value();
}
