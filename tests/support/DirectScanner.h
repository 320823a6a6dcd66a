#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The design file's scanner in its plain form, one walk a key, character by character: the judge of the
/// fast one.
class DirectScanner {
public:
    explicit DirectScanner(std::string_view bytes)
    {
        for (std::size_t i = 0; i < bytes.size() && bytes[i] != '\0'; ++i) {
            const bool line_end = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
            if (!line_end) {
                text += bytes[i];
            }
        }
    }

    /// At most `limit` characters of the value; empty for a key that is not found.
    std::string GetValue(const std::string& key, std::size_t limit) const
    {
        const std::vector<std::string> components = Split(key);
        std::size_t current = 0;
        std::size_t matched = 0;
        bool in_match = false;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char c = text[i];
            if (!in_match) {
                in_match = c == '<';
                matched = 0;
                continue;
            }
            // An empty component holds its terminator alone, which no character of a text equals.
            if (components[current].c_str()[matched] != c) {
                in_match = false;
                continue;
            }
            if (++matched < components[current].size()) {
                continue;
            }
            in_match = false;
            if (current + 1 < components.size() && !components[current + 1].empty()) {
                ++current;
                continue;
            }
            return ValueAt(i + 2, limit);
        }
        return "";
    }

private:
    static std::vector<std::string> Split(std::string_view key)
    {
        constexpr std::size_t kMostComponents = 32;
        std::vector<std::string> components{""};
        for (const char c : key) {
            if (c != '/') {
                components.back() += c;
            } else if (components.size() == kMostComponents) {
                break;
            } else {
                components.emplace_back();
            }
        }
        return components;
    }

    std::string ValueAt(std::size_t start, std::size_t limit) const
    {
        std::string value;
        for (std::size_t i = start; i < text.size() && text[i] != '<' && value.size() < limit; ++i) {
            value += text[i];
        }
        return value;
    }

    std::string text;
};
