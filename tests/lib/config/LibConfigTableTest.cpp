#include "lib/config/LibConfig.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

namespace {

std::unique_ptr<CConfigTable> Table(const char* list)
{
    auto table = std::make_unique<CConfigTable>();
    table->AddList(list, ';');
    return table;
}

TEST(ConfigEntry, RemovesBlanksAtTheNamesStartOnly)
{
    const CConfigEntry entry(" \tname ", " value ");
    EXPECT_STREQ("name ", entry.m_szName);
    EXPECT_STREQ(" value ", entry.m_szValue);
}

TEST(ConfigTable, AddsAndReplaces)
{
    const auto table = std::make_unique<CConfigTable>();
    EXPECT_EQ(0, table->Count());
    EXPECT_TRUE(table->Add("a", "1", false));
    EXPECT_TRUE(table->Add("A", "2", false)) << "names differ by case";
    EXPECT_FALSE(table->Add("a", "3", false));
    EXPECT_STREQ("1", table->GetValue("a"));
    EXPECT_TRUE(table->Add("a", "3", true));
    EXPECT_STREQ("3", table->GetValue("a"));
    EXPECT_TRUE(table->Add("b", "", true));
    EXPECT_FALSE(table->Add(nullptr, "x", true));
    EXPECT_FALSE(table->Add("", "x", true));
    EXPECT_FALSE(table->Add("c", nullptr, true));
    EXPECT_EQ(3, table->Count());
    EXPECT_EQ(0, table->Find("a"));
    EXPECT_EQ(1, table->Find("A"));
    EXPECT_EQ(2, table->Find("b"));
    EXPECT_EQ(-1, table->Find("c"));
    table->Clear();
    EXPECT_EQ(0, table->Count());
    EXPECT_EQ(-1, table->Find("a"));
    EXPECT_TRUE(table->Add("a", "1", false));
    EXPECT_EQ(0, table->Find("a"));
}

TEST(ConfigTable, ANameIsSoughtAsItWasGiven)
{
    const auto table = std::make_unique<CConfigTable>();
    EXPECT_TRUE(table->Add(" a", "1", false));
    EXPECT_EQ(-1, table->Find(" a"));
    EXPECT_EQ(0, table->Find("a"));
}

TEST(ConfigTable, IsReadAndWrittenByIndexAndByName)
{
    const auto table = Table("a=1;b=2");
    EXPECT_STREQ("b", table->GetName(1));
    EXPECT_STREQ("2", table->GetValue(1));
    EXPECT_EQ(1, table->SetValue(1, "x"));
    EXPECT_STREQ("x", table->GetValue("b"));
    EXPECT_EQ(1, table->SetValue("a", "y"));
    EXPECT_STREQ("y", table->GetValue(0));
    for (const int i : {-1, 2, 9999, 10000, 2147483647}) {
        EXPECT_EQ(nullptr, table->GetName(i));
        EXPECT_EQ(nullptr, table->GetValue(i));
        EXPECT_EQ(0, table->SetValue(i, "x"));
    }
    EXPECT_EQ(nullptr, table->GetValue("c"));
    EXPECT_EQ(0, table->SetValue("c", "x"));
    EXPECT_EQ(2, table->Count());
}

TEST(ConfigTable, Holds10000Entries)
{
    const auto table = std::make_unique<CConfigTable>();
    for (int i = 0; i < 10000; ++i) {
        ASSERT_TRUE(table->Add(std::to_string(i).c_str(), "v", false)) << i;
    }
    EXPECT_FALSE(table->Add("one more", "v", false));
    EXPECT_TRUE(table->Add("9999", "new", true));
    EXPECT_EQ(10000, table->Count());
    EXPECT_EQ(9999, table->Find("9999"));
    EXPECT_STREQ("new", table->GetValue(9999));
}

TEST(ConfigTable, AddsLines)
{
    const auto table = std::make_unique<CConfigTable>();
    EXPECT_TRUE(table->AddLine(" \ta =b=c "));
    EXPECT_STREQ("a ", table->GetName(0));
    EXPECT_STREQ("b=c ", table->GetValue(0));
    EXPECT_TRUE(table->AddLine("flag"));
    EXPECT_STREQ("", table->GetValue("flag"));
    EXPECT_TRUE(table->AddLine("flag=on"));
    EXPECT_STREQ("on", table->GetValue("flag"));
    EXPECT_FALSE(table->AddLine("=x"));
    EXPECT_FALSE(table->AddLine(""));
    EXPECT_FALSE(table->AddLine(nullptr));
    EXPECT_EQ(2, table->Count());
}

TEST(ConfigTable, AddsLists)
{
    const auto table = std::make_unique<CConfigTable>();
    EXPECT_EQ(74, table->AddList(nullptr, ';'));
    EXPECT_EQ(0, table->AddList("", ';'));
    EXPECT_EQ(0, table->Count());
    EXPECT_EQ(0, table->AddList(" a = 1 ;b;; =x; a =2", ';'));
    ASSERT_EQ(2, table->Count());
    EXPECT_STREQ("a ", table->GetName(0));
    EXPECT_STREQ("2", table->GetValue(0));
    EXPECT_STREQ("b", table->GetName(1));
}

TEST(ConfigTable, Unquotes)
{
    const auto table = Table("a=\"1\" rest;b=x \"2\";c=\"open;d=\"");
    table->Unquote(0);
    EXPECT_STREQ("1", table->GetValue("a"));
    table->Unquote(-1);
    table->Unquote(4);
    table->Unquote(10000);
    table->UnquoteAll();
    EXPECT_STREQ("1", table->GetValue("a"));
    EXPECT_STREQ("x \"2\"", table->GetValue("b"));
    EXPECT_STREQ("open", table->GetValue("c"));
    EXPECT_STREQ("", table->GetValue("d"));
}

TEST(ConfigTable, Dumps)
{
    const TemporaryFolder folder;
    const auto table = Table("a=1;b=2 %s;c");
    const auto dumped = [&](auto dump) {
        std::FILE* const file = std::fopen((folder / "dump").c_str(), "wb");
        dump(file);
        std::fclose(file);
        return folder.Read("dump");
    };
    EXPECT_EQ("a=1<br>\nb=2 %s<br>\nc=<br>\n", dumped([&](std::FILE* file) { table->Dump(file); }));
    EXPECT_EQ("a=1:0<br>\nb=2 %s:1<br>\nc=:0<br>\n",
              dumped([&](std::FILE* file) { table->DumpMarked(file, "b"); }));
    EXPECT_EQ("a=1:0<br>\nb=2 %s:0<br>\nc=:0<br>\n",
              dumped([&](std::FILE* file) { table->DumpMarked(file, nullptr); }));
}

} // namespace
