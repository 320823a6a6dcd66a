#include "cli/words/HelpText.h"

#include "support/Environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

/// Characters of UTF-8.
std::ptrdiff_t Length(const std::string& line)
{
    return std::ranges::count_if(line, [](char byte) { return (byte & 0xC0) != 0x80; });
}

constexpr VerbWords kVerbs[] = {
    {"dig",
     kReport,
     "[HOLE] [--deep NUMBER] [--with a long bracket that stays together as it is]",
     "",
     {"Digs.", "Gr\xE4"
               "bt."}}};
constexpr OptionWords kOptions[] = {
    {"--deep", "NUMBER", kReport, {"How deep.", "Wie tief."}, ""},
    {"--with-a-name-of-length", "", kReport, {"Long.", "Lang."}, ""},
};
constexpr Passage kPassages[] = {{{"FILES", "DATEIEN"}, {"One.\n\nTwo.", "Eins.\n\nZwei."}}};
constexpr ProgramWords kSpade{"spade",
                              {"a spade", "ein Spaten"},
                              "VERB",
                              {"It digs.", "Er gr\xE4"
                                           "bt."},
                              kVerbs,
                              kOptions,
                              kPassages,
                              "fork"};

TEST(HelpText, IsMadeOfTheTableInEitherLanguage)
{
    EXPECT_EQ("spade: a spade\n"
              "\n"
              "Usage: spade VERB\n"
              "\n"
              "It digs.\n"
              "\n"
              "Verbs\n"
              "  spade dig [HOLE] [--deep NUMBER]\n"
              "            [--with a long bracket that stays together as it is]\n"
              "      Digs.\n"
              "\n"
              "Options\n"
              "  --deep NUMBER           How deep.\n"
              "  --with-a-name-of-length\n"
              "                          Long.\n"
              "\n"
              "FILES\n"
              "  One.\n"
              "  Two.\n",
              HelpText(kSpade, kEnglish));
    const std::string german = HelpText(kSpade, kGerman);
    EXPECT_EQ(0u, german.find("spade: ein Spaten\n\nAufruf: spade VERB\n\nEr gräbt.\n\nBefehle\n"));
    EXPECT_NE(std::string::npos,
              german.find("\n      Gräbt.\n\nOptionen\n  --deep NUMBER           Wie tief.\n"));
}

TEST(HelpText, NoLineIsLongerThanATerminal)
{
    int lines = 0;
    for (const ProgramWords* const program : {&WorkbenchWords(), &CompanionWords()}) {
        for (const int language : {kEnglish, kGerman}) {
            std::istringstream text(HelpText(*program, language));
            for (std::string line; std::getline(text, line); ++lines) {
                EXPECT_LE(Length(line), 80) << line;
                EXPECT_TRUE(line.empty() || line.back() != ' ') << line;
            }
        }
    }
    EXPECT_GT(lines, 150);
}

TEST(HelpText, TheVersionHasItsProgram) { EXPECT_EQ("spade 1.2\n", VersionText(kSpade, "1.2")); }

TEST(HelpText, TheTerminalsLanguageIsThatOfTheFirstVariableThatIsSet)
{
    const struct {
        const char* all;
        const char* messages;
        const char* lang;
        int language;
    } rows[] = {
        {"", "", "", kEnglish},
        {"", "", "de_DE.UTF-8", kGerman},
        {"", "", "de", kGerman},
        {"", "en_GB.UTF-8", "de_DE.UTF-8", kEnglish},
        {"", "de_AT", "en_GB.UTF-8", kGerman},
        {"C", "de_DE", "de_DE", kEnglish},
        {"de_CH.UTF-8", "C", "C", kGerman},
    };
    for (const auto& row : rows) {
        const Environment all("LC_ALL", row.all);
        const Environment messages("LC_MESSAGES", row.messages);
        const Environment lang("LANG", row.lang);
        EXPECT_EQ(row.language, TerminalLanguage()) << row.all << '|' << row.messages << '|' << row.lang;
    }
}

} // namespace
