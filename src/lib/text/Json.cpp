#include "lib/text/Json.h"

#include "lib/text/CodePage.h"
#include "lib/text/ShortestNumber.h"

#include <cmath>

namespace {

constexpr std::size_t kIndent = 2;

/// The letter behind the backslash of a character that has a short form; 0 if it has none.
char ShortEscape(char c)
{
    switch (c) {
    case '"':
    case '\\':
        return c;
    case '\b':
        return 'b';
    case '\f':
        return 'f';
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    default:
        return 0;
    }
}

void AppendControl(std::string& out, char c)
{
    constexpr char kDigits[] = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(c);
    out += "\\u00";
    out += kDigits[code / 16];
    out += kDigits[code % 16];
}

} // namespace

void AppendJsonText(std::string& out, std::string_view utf8)
{
    out += '"';
    while (!utf8.empty()) {
        const std::string_view before = utf8;
        const char32_t character = code_page::TakeCharacter(utf8);
        const std::string_view bytes = before.substr(0, before.size() - utf8.size());
        const char c = bytes.front();
        if (bytes.size() > 1) {
            out += bytes;
        } else if (character >= 0x80) {
            out += '?';
        } else if (const char letter = ShortEscape(c); letter != 0) {
            out += '\\';
            out += letter;
        } else if (character < 0x20) {
            AppendControl(out, c);
        } else {
            out += c;
        }
    }
    out += '"';
}

void AppendJsonNumber(std::string& out, double value)
{
    if (std::isfinite(value)) {
        AppendNumber(out, value);
    } else {
        out += "null";
    }
}

void JsonWriter::Key(std::string_view utf8)
{
    Separate();
    AppendJsonText(m_out, utf8);
    m_out += ": ";
    m_behindKey = true;
}

void JsonWriter::Text(std::string_view utf8)
{
    Separate();
    AppendJsonText(m_out, utf8);
}

void JsonWriter::Number(double value)
{
    Separate();
    AppendJsonNumber(m_out, value);
}

void JsonWriter::Begin(char bracket)
{
    Separate();
    m_out += bracket;
    ++m_depth;
    m_first = true;
}

void JsonWriter::End(char bracket)
{
    --m_depth;
    if (!m_first) {
        NewLine();
    }
    m_out += bracket;
    m_first = false;
    if (m_depth == 0) {
        m_out += '\n';
    }
}

void JsonWriter::Separate()
{
    if (m_behindKey) {
        m_behindKey = false;
        return;
    }
    if (m_depth == 0) {
        return;
    }
    if (!m_first) {
        m_out += ',';
    }
    NewLine();
    m_first = false;
}

void JsonWriter::NewLine()
{
    m_out += '\n';
    m_out.append(m_depth * kIndent, ' ');
}
