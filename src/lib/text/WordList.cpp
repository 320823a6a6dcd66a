#include "lib/text/WordList.h"

#include "lib/text/CharTools.h"

#include <cstring>

namespace {

bool EndsWord(char c) { return c == 0 || IsBlank(c); }

const char* WordEnd(const char* p)
{
    while (!EndsWord(*p)) {
        ++p;
    }
    return p;
}

/// Where `word` stands as a word of its own.
const char* FindWholeWord(const char* word, const char* list)
{
    const std::size_t length = std::strlen(word);
    for (const char* p = SkipBlanks(list); length != 0 && *p != 0; p = SkipBlanks(WordEnd(p))) {
        if (StartsWith(word, p) != nullptr && EndsWord(p[length])) {
            return p;
        }
    }
    return nullptr;
}

} // namespace

const char* FindWord(const char* word, const char* list)
{
    const std::size_t length = std::strlen(word);
    for (const char* p = list; length != 0 && (p = FindText(word, p)) != nullptr; ++p) {
        if (EndsWord(p[length])) {
            return p;
        }
    }
    return nullptr;
}

bool RemoveWord(const char* word, char* list)
{
    bool removed = false;
    while (const char* const found = FindWholeWord(word, list)) {
        char* const start = list + (found - list);
        const char* const rest = SkipBlanks(found + std::strlen(word));
        std::memmove(start, rest, std::strlen(rest) + 1);
        if (*start == 0) {
            TrimRight(list);
        }
        removed = true;
    }
    return removed;
}

bool AddWord(const char* word, char* list, std::size_t size)
{
    if (FindWholeWord(word, list) != nullptr) {
        return true;
    }
    const std::size_t length = std::strlen(list);
    const std::size_t added = std::strlen(word);
    if (length + 1 + added + 1 > size) {
        return false;
    }
    list[length] = ' ';
    std::memcpy(list + length + 1, word, added + 1);
    return true;
}

std::int32_t CountWords(const char* list)
{
    std::int32_t n = 0;
    for (const char* p = SkipBlanks(list); *p != 0; p = SkipBlanks(WordEnd(p))) {
        ++n;
    }
    return n;
}

void CompressBlanks(char* list)
{
    char* to = list;
    for (const char* p = list; *p != 0;) {
        *to++ = IsBlank(*p) ? ' ' : *p;
        p = IsBlank(*p) ? SkipBlanks(p) : p + 1;
    }
    *to = 0;
}
