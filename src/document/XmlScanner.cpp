#include "document/XmlScanner.h"

#include "lib/files/FileBytes.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace {

constexpr std::size_t kMostComponents = 32;
constexpr std::size_t kNotFound = std::string::npos;

std::size_t Bucket(char c) { return static_cast<unsigned char>(c); }

/// Cuts the text at a zero byte and takes the CR of each CR LF away, in its own place.
void MakePlainText(std::string& text)
{
    text.resize(std::min(text.find('\0'), text.size()));
    std::size_t kept = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || text.c_str()[i + 1] != '\n') {
            text[kept++] = text[i];
        }
    }
    text.resize(kept);
}

} // namespace

XmlScanner::XmlScanner(const char* pszPath)
{
    try {
        if (auto bytes = ReadFileBytes(pszPath)) {
            Take(std::move(*bytes));
        }
    } catch (const std::bad_alloc&) {
        *this = XmlScanner(); // a text that does not fit the memory is none
    }
}

XmlScanner XmlScanner::FromText(std::string_view text)
{
    XmlScanner scanner;
    scanner.Take(std::string(text));
    return scanner;
}

void XmlScanner::Take(std::string text)
{
    MakePlainText(text);
    m_hasText = true;
    m_text = std::move(text);
    for (std::size_t at = m_text.find('<'); at != kNotFound; at = m_text.find('<', at + 1)) {
        const char next = m_text.c_str()[at + 1];
        if (next != '<') { // begins no name
            m_brackets[Bucket(next)].push_back(static_cast<std::uint32_t>(at));
        }
    }
}

/// Whether the bracket is lost because a match of the component is under way when the walk reaches it: the
/// character that ends a failed match is not looked at again. A match under way began at the bracket before,
/// with nothing but the component's beginning between the two, unless that one is lost itself. Brackets in a
/// row are lost by turns.
bool XmlScanner::IsSwallowed(std::size_t bracket, std::string_view component, std::size_t from) const
{
    const std::string_view text = m_text;
    bool swallowed = false;
    for (std::size_t later = bracket; later > from;) {
        const std::size_t first = std::max(from, text.find_last_not_of('<', later - 1) + 1);
        swallowed = swallowed != ((later - first) % 2 != 0);
        const std::size_t reach = std::max(from, first - std::min(first, component.size()));
        const std::size_t back = text.substr(reach, first - reach).rfind('<');
        const std::size_t before = reach + back;
        if (back == kNotFound || !component.starts_with(text.substr(before + 1, first - before - 1))) {
            break;
        }
        swallowed = !swallowed;
        later = before;
    }
    return swallowed;
}

/// Position behind the first `<` with the component behind it, from `from` on.
std::size_t XmlScanner::FindComponent(std::string_view component, std::size_t from) const
{
    const auto [entry, is_new] = m_found.try_emplace({from, std::string(component)}, kNotFound);
    if (is_new) {
        entry->second = SearchComponent(component, from);
    }
    return entry->second;
}

std::size_t XmlScanner::SearchComponent(std::string_view component, std::size_t from) const
{
    const std::string_view text = m_text;
    const auto& brackets = m_brackets[Bucket(component.front())];
    for (auto at = std::lower_bound(brackets.begin(), brackets.end(), from); at != brackets.end(); ++at) {
        if (text.substr(*at + 1).starts_with(component) && !IsSwallowed(*at, component, from)) {
            return *at + 1 + component.size();
        }
    }
    return kNotFound;
}

const char* XmlScanner::GetValue(const char* key, char* buffer, std::size_t nBufferSize) const
{
    if (!m_hasText || key == nullptr || buffer == nullptr || nBufferSize == 0) {
        return nullptr;
    }
    buffer[0] = 0;

    std::string_view rest(key);
    std::size_t position = 0;
    for (std::size_t i = 0; i < kMostComponents && !rest.empty() && position != kNotFound; ++i) {
        const std::string_view component = rest.substr(0, rest.find('/'));
        rest.remove_prefix(std::min(rest.size(), component.size() + 1));
        if (component.empty()) {
            break; // marks the end of the key
        }
        position = FindComponent(component, position);
    }
    if (position == kNotFound || position == 0) {
        return buffer;
    }
    // The character behind the last name is taken to be the closing bracket.
    const std::size_t start = std::min(position + 1, m_text.size());
    const std::size_t end = std::min(m_text.find('<', start), m_text.size());
    const std::size_t length = std::min(end - start, nBufferSize - 1);
    std::memcpy(buffer, m_text.data() + start, length);
    buffer[length] = 0;
    return buffer;
}
