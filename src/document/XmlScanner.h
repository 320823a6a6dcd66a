#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Finds values in a design file. It knows nothing of nesting: a key is a chain of tag-name prefixes that
/// must occur in this order anywhere in the text, each after the one before; each key starts again at the
/// top. Closing tags end nothing, entities are not decoded, nothing is trimmed. Files out there rely on it.
class XmlScanner {
public:
    XmlScanner() = default;

    /// Reads a file as text: CR LF is one line end, a zero byte ends the text. A file that cannot be read,
    /// or does not fit the memory, leaves the scanner without a text.
    explicit XmlScanner(const char* pszPath);

    /// A scanner over bytes in memory.
    static XmlScanner FromText(std::string_view text);

    bool HasText() const { return m_hasText; }
    /// Whether the text holds "<telescope", as every design file does.
    bool IsDesign() const { return m_text.find("<telescope") != std::string::npos; }

    /// Copies the value of `key` ("telescope/mirror/diameter") into `buffer`, cut to nBufferSize - 1 bytes; a
    /// key that is not found gives the empty text. Null without a text, a key or a buffer, else `buffer`.
    const char* GetValue(const char* key, char* buffer, std::size_t nBufferSize) const;

private:
    void Take(std::string text);
    std::size_t FindComponent(std::string_view component, std::size_t from) const;
    std::size_t SearchComponent(std::string_view component, std::size_t from) const;
    bool IsSwallowed(std::size_t bracket, std::string_view component, std::size_t from) const;

    bool m_hasText = false;
    std::string m_text;
    /// Positions of the opening brackets, by the byte that follows them.
    std::array<std::vector<std::uint32_t>, 256> m_brackets;
    /// What earlier keys found: keys share their first components.
    mutable std::map<std::pair<std::size_t, std::string>, std::size_t> m_found;
};
