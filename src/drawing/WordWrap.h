#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// The lines of `text` when it is broken between words so that each fits into `width` pixels. A line break in
/// the text ends a line, a word that is too long stands alone and whole, and the blanks at a break are
/// dropped. `measure` gives the width in pixels of a piece of text; a byte is measured twice at most. An
/// empty text has no lines.
template <class Measure>
std::vector<std::string_view> WrapWords(std::string_view text, double width, Measure measure)
{
    std::vector<std::string_view> lines;
    std::size_t start = 0; // of the line
    std::size_t end = 0;   // of the last word that fits
    double used = 0;
    const auto finishLine = [&](std::size_t next) {
        lines.push_back(text.substr(start, end - start));
        start = end = next;
        used = 0;
    };
    while (end < text.size()) {
        if (text[end] == '\n' || text[end] == '\r') {
            const bool pair = text.substr(end, 2) == "\r\n";
            finishLine(end + (pair ? 2 : 1));
            continue;
        }
        // A word with the blanks before it.
        const std::size_t word = text.find_first_not_of(' ', end);
        const std::size_t next = text.find_first_of(" \r\n", word == text.npos ? text.size() : word);
        const std::string_view piece = text.substr(end, next == text.npos ? text.npos : next - end);
        const double wide = measure(piece);
        const bool isFirst = end == start;
        if (!isFirst && used + wide > width) {
            finishLine(word == text.npos ? text.size() : word);
            continue;
        }
        end += piece.size();
        used += wide;
    }
    if (start < text.size()) {
        finishLine(text.size());
    }
    return lines;
}
