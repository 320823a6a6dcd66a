#include "lib/text/CodePage.h"

std::string Cp1252FromUtf8(std::string_view utf8)
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        bytes += code_page::ByteFor(code_page::TakeCharacter(utf8));
    }
    return bytes;
}

std::string Utf8FromCp1252(std::string_view bytes)
{
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const char32_t character =
            byte >= 0x80 && byte < 0xA0 ? code_page::kUpperControls[byte - 0x80] : byte;
        if (character < 0x80) {
            utf8 += static_cast<char>(character);
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xC0 | (character >> 6));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (character >> 12));
            utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return utf8;
}
