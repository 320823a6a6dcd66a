#include "cli/words/ProgramWords.h"

#include "drawing/paper/Paper.h"
#include "drawing/paper/Sheets.h"
#include "report/Report.h"

#include <gtest/gtest.h>

#include <bit>
#include <set>

namespace {

constexpr const ProgramWords& (*kPrograms[])() = {WorkbenchWords, CompanionWords};

void ExpectBoth(const Bilingual& text, std::string_view of)
{
    EXPECT_STRNE("", text.english) << of;
    EXPECT_STRNE("", text.german) << of;
    EXPECT_STRNE(text.english, text.german) << of;
}

TEST(ProgramWords, EveryWordIsToldInBothLanguages)
{
    for (const auto program : kPrograms) {
        ExpectBoth(program().purpose, program().name);
        ExpectBoth(program().description, program().name);
        for (const VerbWords& verb : program().verbs) {
            ExpectBoth(verb.text, verb.name);
            EXPECT_EQ('.', std::string_view(verb.text.german).back()) << verb.name;
        }
        for (const OptionWords& option : program().options) {
            ExpectBoth(option.text, option.name);
            EXPECT_EQ('.', std::string_view(option.text.english).back()) << option.name;
            EXPECT_EQ('.', std::string_view(option.text.german).back()) << option.name;
        }
        for (const Passage& passage : program().passages) {
            ExpectBoth(passage.heading, program().name);
            ExpectBoth(passage.text, program().name);
        }
    }
}

TEST(ProgramWords, NoWordStandsTwiceAndEachIsFound)
{
    std::set<std::string_view> names;
    std::uint32_t verbs = 0;
    for (const VerbWords& verb : CompanionWords().verbs) {
        EXPECT_TRUE(names.insert(verb.name).second) << verb.name;
        EXPECT_EQ(&verb, FindVerbWords(verb.name));
        EXPECT_TRUE(std::has_single_bit(static_cast<std::uint32_t>(verb.verb))) << verb.name;
        EXPECT_EQ(0u, verbs & verb.verb) << verb.name;
        verbs |= verb.verb;
    }
    for (const OptionWords& option : CompanionWords().options) {
        EXPECT_TRUE(names.insert(option.name).second) << option.name;
        EXPECT_EQ(&option, FindOptionWords(option.name));
        EXPECT_EQ('-', option.name.front());
        EXPECT_NE(0u, option.verbs & verbs) << option.name << " belongs nowhere";
        EXPECT_EQ(0u, option.verbs & ~verbs) << option.name << " belongs to a verb that is none";
    }
    EXPECT_EQ(nullptr, FindVerbWords("paint"));
    EXPECT_EQ(nullptr, FindOptionWords("report"));
}

TEST(ProgramWords, ASynopsisNamesOptionsOfItsVerbAlone)
{
    for (const VerbWords& verb : CompanionWords().verbs) {
        std::string_view rest = verb.synopsis;
        for (std::size_t at = rest.find("--"); at != std::string_view::npos; at = rest.find("--")) {
            rest.remove_prefix(at);
            const std::string_view name = rest.substr(0, rest.find_first_of(" ]"));
            const OptionWords* const option = FindOptionWords(name);
            ASSERT_NE(nullptr, option) << name;
            EXPECT_NE(0u, option->verbs & verb.verb) << verb.name << ' ' << name;
            rest.remove_prefix(name.size());
        }
    }
}

TEST(ProgramWords, ThePagesAreThoseOfTheReport)
{
    std::vector<std::string_view> pages;
    for (const ReportPage& page : ReportPages()) {
        pages.push_back(page.name);
        EXPECT_EQ(pages.size() == ReportPages().size(), page.only_when_named)
            << "the sentence says: the last";
    }
    EXPECT_EQ(pages, ChoicesOf(FindOptionWords("--page")->choices));
}

TEST(ProgramWords, SheetsAndPapersAreThoseThatAreMade)
{
    std::vector<std::string_view> sheets;
    for (const SheetName& sheet : kSheets) {
        sheets.push_back(sheet.word);
    }
    EXPECT_EQ(sheets, ChoicesOf(FindOptionWords("--sheet")->choices));
    std::vector<std::string_view> papers;
    for (const PaperSize& paper : kPapers) {
        papers.push_back(paper.name);
    }
    EXPECT_EQ(papers, ChoicesOf(FindOptionWords("--paper")->choices));
}

TEST(ProgramWords, TextsAreTakenApart)
{
    using Parts = std::vector<std::string_view>;
    EXPECT_EQ((Parts{"a", "bc", "d"}), ChoicesOf("a|bc|d"));
    EXPECT_EQ((Parts{"en"}), ChoicesOf("en"));
    EXPECT_EQ(Parts{}, ChoicesOf(""));
    EXPECT_EQ((Parts{"one\nline", "two"}), ParagraphsOf("one\nline\n\ntwo"));
}

TEST(ProgramWords, ASentenceNamesTheChoicesThatTheValueDoesNot)
{
    const OptionWords named{"--page", "PAGE", kReport, {"A page.", "Eine Seite."}, "one|two"};
    EXPECT_EQ("A page: one, two.", OptionSentence(named, kEnglish));
    EXPECT_EQ("Eine Seite: one, two.", OptionSentence(named, kGerman));
    const OptionWords told{"--language", "en|de", kReport, {"A language.", "Eine Sprache."}, "en|de"};
    EXPECT_EQ("A language.", OptionSentence(told, kEnglish));
    const OptionWords plain{"--zones", "N", kReport, {"A number.", "Eine Zahl."}, ""};
    EXPECT_EQ("A number.", OptionSentence(plain, kEnglish));
}

} // namespace
