#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The core keeps text as bytes of code page 1252. These two are the only crossings to and from UTF-8.
/// A character that the code page lacks, a byte that is no UTF-8, and a character 0, at which a text of the
/// core would end, become `?`; the five bytes that the code page leaves open stand for the control character
/// of the same number.
std::string Cp1252FromUtf8(std::string_view utf8);
std::string Utf8FromCp1252(std::string_view bytes);

namespace code_page {

/// Unicode of the bytes 0x80 to 0x9F; the others are their own number.
inline constexpr char16_t kUpperControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char ByteFor(char32_t character)
{
    if ((character > 0 && character < 0x80) || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    for (int i = 0; i < 32; ++i) {
        if (kUpperControls[i] == character) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

/// Takes one character off the front of `text`; 0xFFFD for a byte that is no UTF-8.
constexpr char32_t TakeCharacter(std::string_view& text)
{
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<char32_t>(static_cast<unsigned char>(text[i])) : char32_t{0};
    };
    const char32_t lead = byte(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    char32_t character = length <= 1 ? lead : lead & (0x7Fu >> length);
    bool valid = length != 0;
    for (std::size_t i = 1; valid && i < length; ++i) {
        valid = (byte(i) & 0xC0) == 0x80;
        character = (character << 6) | (byte(i) & 0x3F);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (!valid || overlong || surrogate || character > 0x10FFFF) {
        text.remove_prefix(1);
        return 0xFFFD;
    }
    text.remove_prefix(length);
    return character;
}

template <std::size_t N>
struct Literal {
    char bytes[N] = {};
    consteval Literal(const char (&utf8)[N])
    {
        std::string_view rest(utf8, N - 1);
        for (std::size_t i = 0; !rest.empty(); ++i) {
            bytes[i] = ByteFor(TakeCharacter(rest));
        }
    }
};

} // namespace code_page

/// A source text in UTF-8 as a constant of the code page: "Öffnen"_cp1252.
template <code_page::Literal text>
constexpr const char* operator""_cp1252()
{
    return text.bytes;
}
