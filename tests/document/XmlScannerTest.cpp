#include "document/XmlScanner.h"

#include "model/record/RecordFields.h"
#include "support/DirectScanner.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <optional>
#include <random>

namespace {

std::string Value(std::string_view text, const std::string& key)
{
    char buffer[1024];
    const XmlScanner scanner = XmlScanner::FromText(text);
    const char* const value = scanner.GetValue(key.c_str(), buffer, sizeof buffer);
    return value != nullptr ? value : "null";
}

TEST(XmlScanner, WalksTheComponentsInOrder)
{
    const char* const text =
        "<telescope><mirror><diameter>250</diameter></mirror><tube><type>3</type></tube>";
    EXPECT_EQ("250", Value(text, "telescope/mirror/diameter"));
    EXPECT_EQ("3", Value(text, "telescope/tube/type"));
    EXPECT_EQ("", Value(text, "telescope/tube/diameter")) << "the diameter stands before the tube";
    EXPECT_EQ("", Value(text, "telescope/nothing"));
}

TEST(XmlScanner, KnowsNoNestingAndNoClosingTags)
{
    EXPECT_EQ("5", Value("<a></a><b>5</b>", "a/b"));
    EXPECT_EQ("5", Value("<!-- <a --> <b>5", "a/b")) << "a comment takes part";
}

TEST(XmlScanner, ANameIsAPrefix)
{
    EXPECT_EQ("box>5", Value("<thickness_box>5</thickness_box><thickness>6</thickness>", "thickness"));
    EXPECT_EQ("ess>5", Value("<thickness>5</thickness>", "thick"));
}

TEST(XmlScanner, NamesAreCaseSensitive) { EXPECT_EQ("2", Value("<Type>1</Type><type>2</type>", "type")); }

TEST(XmlScanner, OneCharacterBehindTheNameIsSkippedUnseen)
{
    EXPECT_EQ("lang=\"de\">Titel", Value("<title lang=\"de\">Titel</title>", "title"));
    EXPECT_EQ("abc", Value("<title<abc", "title")) << "also a bracket";
}

TEST(XmlScanner, OfTwoBracketsInARowTheSecondIsLost)
{
    EXPECT_EQ("", Value("<<type>1", "type"));
    EXPECT_EQ("1", Value("<<<type>1", "type")) << "the third opens again";
    EXPECT_EQ("", Value("<<<<type>1", "type"));
    EXPECT_EQ("", Value("<ty<type>1", "type")) << "lost in a match that had begun";
    EXPECT_EQ("1", Value("<tz<type>1", "type"));
    EXPECT_EQ("1", Value("<ty<ty<type>1", "type"));
    EXPECT_EQ("1", Value("<a><<b>2<b>1", "a/b"));
    EXPECT_EQ("1", Value("<a<b>1", "a/b")) << "a component's match leaves nothing behind";
}

TEST(XmlScanner, AValueEndsAtABracketOrTheEnd)
{
    EXPECT_EQ("f", Value("<title>f<5</title>", "title"));
    EXPECT_EQ(" open ", Value("<title> open ", "title"));
    EXPECT_EQ("", Value("<title>", "title"));
    EXPECT_EQ("", Value("<title", "title"));
    EXPECT_EQ("", Value("<titl", "title"));
    EXPECT_EQ("", Value("", "title"));
}

TEST(XmlScanner, NothingIsTrimmedOrDecoded)
{
    EXPECT_EQ(" \t&amp;\nx ", Value("<title> \t&amp;\nx </title>", "title"));
}

TEST(XmlScanner, AValueIsCutToTheBuffer)
{
    const std::string text = "<title>" + std::string(2000, 'x') + "</title>";
    EXPECT_EQ(std::string(1023, 'x'), Value(text, "title"));
    const XmlScanner scanner = XmlScanner::FromText("<title>abc");
    char buffer[8];
    EXPECT_STREQ("abc", scanner.GetValue("title", buffer, 4));
    EXPECT_STREQ("ab", scanner.GetValue("title", buffer, 3));
    EXPECT_STREQ("", scanner.GetValue("title", buffer, 1));
    EXPECT_EQ(nullptr, scanner.GetValue("title", buffer, 0));
}

TEST(XmlScanner, NullWithoutATextAKeyOrABuffer)
{
    char buffer[8] = "before";
    EXPECT_EQ(nullptr, XmlScanner().GetValue("title", buffer, sizeof buffer));
    EXPECT_STREQ("before", buffer);
    const XmlScanner scanner = XmlScanner::FromText("");
    EXPECT_EQ(nullptr, scanner.GetValue(nullptr, buffer, sizeof buffer));
    EXPECT_EQ(nullptr, scanner.GetValue("title", nullptr, sizeof buffer));
    EXPECT_STREQ("", scanner.GetValue("title", buffer, sizeof buffer)) << "an empty text is a text";
}

TEST(XmlScanner, AFileThatCannotBeReadIsNoText)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(XmlScanner((folder / "missing").c_str()).HasText());
    EXPECT_FALSE(XmlScanner((folder / "").c_str()).HasText()) << "a folder";
    folder.Write("empty", "");
    EXPECT_TRUE(XmlScanner((folder / "empty").c_str()).HasText());
    folder.Write("windows", "<title>a\r\nb\rc\r</title>");
    const XmlScanner scanner((folder / "windows").c_str());
    char buffer[32];
    EXPECT_STREQ("a\nb\rc\r", scanner.GetValue("title", buffer, sizeof buffer));
}

TEST(XmlScanner, AZeroByteEndsTheText)
{
    using namespace std::string_literals;
    EXPECT_EQ("a", Value("<title>a\0b<type>1"s, "title"));
    EXPECT_EQ("", Value("<title>a\0b<type>1"s, "type"));
}

TEST(XmlScanner, AnEmptyComponentEndsTheKey)
{
    EXPECT_EQ("1", Value("<a>1<b>2", "a//b"));
    EXPECT_EQ("1", Value("<a>1<b>2", "a/"));
    EXPECT_EQ("", Value("<a>1<b>2", "/b"));
    EXPECT_EQ("", Value("<a>1<b>2", ""));
}

TEST(XmlScanner, AKeySplitsIntoThirtyTwoComponentsAndNoMore)
{
    for (const int count : {31, 32, 33, 40}) {
        std::string key;
        std::string text;
        for (int i = 1; i <= count; ++i) {
            const std::string name(1, static_cast<char>('A' + i));
            key += i > 1 ? "/" : "";
            key += name;
            text += '<';
            text += name;
            text += '>';
            text += std::to_string(i);
        }
        EXPECT_EQ(std::to_string(std::min(count, 32)), Value(text, key)) << count;
        EXPECT_EQ(DirectScanner(text).GetValue(key, 1023), Value(text, key)) << count;
    }
}

// Against the plain walk
// -------------------------------------------------------------------------------------

class Chance {
public:
    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(engine); }
    template <typename T>
    const T& Of(const std::vector<T>& choices)
    {
        return choices[Below(choices.size())];
    }

private:
    std::mt19937 engine{20040101};
};

void ExpectAlike(const std::string& text, const std::vector<std::string>& keys)
{
    const XmlScanner scanner = XmlScanner::FromText(text);
    const DirectScanner judge(text);
    for (const std::string& key : keys) {
        char buffer[64];
        ASSERT_EQ(judge.GetValue(key, sizeof buffer - 1),
                  scanner.GetValue(key.c_str(), buffer, sizeof buffer))
            << key << " in\n"
            << text;
    }
}

std::vector<std::string> KeysOfTheFile()
{
    std::vector<std::string> keys;
    for (const RecordField& field : RecordFields()) {
        keys.push_back(std::string("telescope/") + field.key);
    }
    return keys;
}

TEST(XmlScanner, AgreesWithThePlainWalkOnSmallAlphabets)
{
    Chance chance;
    const std::vector<std::string> alphabets{"<ab",   "<<<<ab",  "<a",
                                             "<aab>", "<ab\r\n", std::string("<ab\0", 4)};
    const std::vector<std::string> keys{"a",   "b",   "aa",      "ab",        "aab",   "abab",
                                        "a/b", "a/a", "aa/b/ab", "ab/a/aa/b", "ba/aba"};
    for (int round = 0; round < 30000; ++round) {
        const std::string& alphabet = chance.Of(alphabets);
        std::string text;
        for (std::size_t n = chance.Below(40); n > 0; --n) {
            text += alphabet[chance.Below(alphabet.size())];
        }
        ASSERT_NO_FATAL_FAILURE(ExpectAlike(text, keys));
    }
}

TEST(XmlScanner, AgreesWithThePlainWalkOnLettersOfTheFile)
{
    Chance chance;
    const std::string alphabet = "<telscopmir/ ";
    const std::vector<std::string> keys{"telescope", "t/m", "te/mi/s", "tel", "s/t", "p/p/p"};
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (std::size_t n = chance.Below(300); n > 0; --n) {
            text += chance.Below(3) == 0 ? '<' : alphabet[chance.Below(alphabet.size())];
        }
        ASSERT_NO_FATAL_FAILURE(ExpectAlike(text, keys));
    }
}

TEST(XmlScanner, AgreesWithThePlainWalkOnShuffledTagsForEveryKey)
{
    Chance chance;
    const std::vector<std::string> keys = KeysOfTheFile();
    std::vector<std::string> words{"<",  "<<",  "<<<", ">",  " ",  "12.5", "\n",
                                   "<t", "<te", "<mi", "<d", "</", "\r\n"};
    for (const std::string& key : keys) {
        std::string_view rest(key);
        while (!rest.empty()) {
            const std::string_view name = rest.substr(0, rest.find('/'));
            rest.remove_prefix(std::min(rest.size(), name.size() + 1));
            const std::string opened = std::string("<").append(name);
            words.push_back(opened + ">");
            words.emplace_back(name);
            words.push_back(opened.substr(0, 2 + chance.Below(name.size())));
        }
    }
    for (int round = 0; round < 2000; ++round) {
        std::string text = "<telescope>";
        for (std::size_t n = chance.Below(200); n > 0; --n) {
            text += chance.Of(words);
        }
        ASSERT_NO_FATAL_FAILURE(ExpectAlike(text, keys));
    }
}

TEST(XmlScanner, AgreesWithThePlainWalkOnRunsOfBrackets)
{
    const std::vector<std::string> keys{"telescope", "telescope/mirror/diameter", "telescope/tube"};
    for (std::size_t before = 0; before < 20; ++before) {
        for (const char* run : {"<", "<t", "<te", "<telescop", "<m", "<mirro", "<d", "<x"}) {
            std::string text;
            for (const char* tag : {"telescope>", "mirror>", "diameter>1", "tube>2"}) {
                for (std::size_t i = 0; i < before; ++i) {
                    text += run;
                }
                text += std::string("<") + tag;
            }
            ASSERT_NO_FATAL_FAILURE(ExpectAlike(text, keys));
        }
    }
}

} // namespace
