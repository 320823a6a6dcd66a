#include "lib/text/LibString.h"

#include <gtest/gtest.h>

namespace {

TEST(LibStringList, AddsTheSeparatorOnlyBetweenEntries)
{
    LibString list;
    list.AddListEntry("one", ';');
    EXPECT_STREQ("one", list);
    list.AddListEntry("two", ';');
    list.AddListEntry("one", ';');
    EXPECT_STREQ("one;two;one", list);
    list.AddListEntry("", ';');
    EXPECT_STREQ("one;two;one;", list);
    list.AddListEntry(list, ';');
    EXPECT_STREQ("one;two;one;;one;two;one;", list);
}

TEST(LibStringList, HasWhatStandsInItAsAWholeEntry)
{
    const LibString list("one; two ;;three");
    EXPECT_TRUE(list.HasListEntry("one", ';'));
    EXPECT_TRUE(list.HasListEntry("two ", ';')) << "blanks before an entry go, those behind it stay";
    EXPECT_TRUE(list.HasListEntry("", ';'));
    EXPECT_TRUE(list.HasListEntry("three", ';'));
    EXPECT_FALSE(list.HasListEntry("two", ';'));
    EXPECT_FALSE(list.HasListEntry("ONE", ';'));
    EXPECT_FALSE(list.HasListEntry("thre", ';'));
    EXPECT_FALSE(list.HasListEntry("one", ','));
    EXPECT_FALSE(LibString().HasListEntry("", ';'));
    EXPECT_STREQ("one; two ;;three", list);
}

struct RemoveCase {
    const char* list;
    const char* entry;
    char separator;
    bool removed;
    const char* expected;
};

TEST(LibStringList, RemovesEntriesAndJoinsTheRestByCommas)
{
    const RemoveCase cases[] = {
        {"a,b,c", "b", ',', true, "a,c"}, {"a,b,c", "a", ',', true, "b,c"},
        {"a,b,c", "c", ',', true, "a,b"}, {"a,b,a", "a", ',', true, "b"},
        {"a", "a", ',', true, ""},        {"", "a", ',', false, ""},
        {"a;b;c", "b", ';', true, "a,c"}, {"a;b;c", "x", ';', false, "a,b,c"},
        {"a, b", "b", ',', true, "a"},    {"a,,b", "", ',', true, "a,b"},
        {"a,,", "a", ',', true, ""},      {"a;,;b", "a", ';', true, ",,b"},
        {"a;b,", "a", ';', true, "b,"},
    };
    for (const RemoveCase& c : cases) {
        LibString list(c.list);
        EXPECT_EQ(c.removed, list.RemoveListEntry(c.entry, c.separator)) << c.list;
        EXPECT_STREQ(c.expected, list) << c.list;
    }
}

TEST(LibStringList, AnEntryMayLieInTheListItself)
{
    LibString list("a,b");
    EXPECT_TRUE(list.RemoveListEntry(list.GetText() + 2, ','));
    EXPECT_STREQ("a", list);
}

} // namespace
