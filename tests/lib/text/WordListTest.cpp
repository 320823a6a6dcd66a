#include "lib/text/WordList.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

namespace {

struct WordCase {
    const char* word;
    const char* list;
    int place; ///< -1 for nowhere
};

TEST(WordList, FindsATextThatABlankTabOrTheEndFollows)
{
    const WordCase cases[] = {{"b", "a b c", 2}, {"a", "a b c", 0},   {"c", "a b c", 4}, {"b", "a\tb\tc", 2},
                              {"b", "ab b", 1},  {"b", "ba bb b", 4}, {"b", "bc", -1},   {"b", "", -1},
                              {"", "a b", -1},   {"b", "  b", 2},     {"B", "b", -1},    {"a b", "a b c", 0},
                              {"bb", "abbb", 2}, {"b", "ba", -1},     {"ab", "ab", 0}};
    for (const WordCase& c : cases) {
        const char* const found = FindWord(c.word, c.list);
        EXPECT_EQ(c.place, found != nullptr ? found - c.list : -1) << c.word << '|' << c.list;
    }
}

struct RemoveCase {
    const char* word;
    const char* list;
    bool removed;
    const char* expected;
};

TEST(WordList, RemovesAWordWithItsBlanks)
{
    const RemoveCase cases[] = {{"b", "a b c", true, "a c"},      {"a", "a b", true, "b"},
                                {"b", "a  b", true, "a"},         {"a", "a", true, ""},
                                {"b", "a b \t b c", true, "a c"}, {"x", "a b ", false, "a b "},
                                {"b", "ab b", true, "ab"},        {"b", "ab", false, "ab"},
                                {"a", "ab", false, "ab"},         {"", "a b", false, "a b"}};
    for (const RemoveCase& c : cases) {
        char list[32];
        std::strcpy(list, c.list);
        EXPECT_EQ(c.removed, RemoveWord(c.word, list)) << c.list;
        EXPECT_STREQ(c.expected, list) << c.list;
    }
}

TEST(WordList, AddsABlankAndTheWordUnlessItIsThere)
{
    char list[10] = "ab";
    EXPECT_TRUE(AddWord("b", list, sizeof list));
    EXPECT_STREQ("ab b", list);
    EXPECT_TRUE(AddWord("b", list, sizeof list));
    EXPECT_STREQ("ab b", list);
    EXPECT_TRUE(AddWord("cdef", list, sizeof list));
    EXPECT_STREQ("ab b cdef", list) << "just as long as there is room";
    EXPECT_FALSE(AddWord("g", list, sizeof list));
    EXPECT_STREQ("ab b cdef", list);
    char empty[8] = "";
    EXPECT_TRUE(AddWord("a", empty, sizeof empty));
    EXPECT_STREQ(" a", empty);
}

TEST(WordList, CountsWords)
{
    EXPECT_EQ(0, CountWords(""));
    EXPECT_EQ(0, CountWords(" \t "));
    EXPECT_EQ(1, CountWords("one"));
    EXPECT_EQ(3, CountWords(" one\ttwo  three "));
}

TEST(WordList, CompressesRunsOfBlanksToOne)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""}, {"a", "a"}, {"a b", "a b"}, {"a \t\t b", "a b"}, {"\ta  ", " a "}, {"   ", " "}};
    for (const auto& [given, expected] : cases) {
        char list[16];
        std::strcpy(list, given);
        CompressBlanks(list);
        EXPECT_STREQ(expected, list);
    }
}

} // namespace
