#pragma once

#include <cstddef>
#include <cstdint>

/// Lists of words in one plain text, split by blanks and tabs.

/// Where `word` first stands in `list` with a blank, a tab or the end behind it, null for nowhere. What
/// stands before it is not looked at: "b" is found in "ab". The empty word stands nowhere.
const char* FindWord(const char* word, const char* list);
/// Takes `word` out wherever it stands as a word of its own, not as the end of another, with the blanks
/// behind it, or before it at the end of the list. True if it stood there.
bool RemoveWord(const char* word, char* list);
/// Adds a blank and `word` unless it is there as a word of its own. `size` is the room of `list`; true if the
/// word is in it now.
bool AddWord(const char* word, char* list, std::size_t size);
std::int32_t CountWords(const char* list);
/// Makes one blank of each run of blanks and tabs.
void CompressBlanks(char* list);
