#include "cli/words/ManPage.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

constexpr VerbWords kVerbs[] = {{"dig",
                                 kReport,
                                 "[HOLE]",
                                 "",
                                 {"Digs in ~/garden.", "Gr\xE4"
                                                       "bt."}}};
constexpr OptionWords kOptions[] = {{"--deep", "N", kReport, {"How\\deep.", "Wie tief."}, ""}};
constexpr Passage kPassages[] = {{{"FILES", "DATEIEN"}, {".hidden\n\n'quoted'", ".hidden"}}};
constexpr ProgramWords kSpade{"spade-cli",
                              {"a spade", "ein Spaten"},
                              "VERB",
                              {"It digs.", "Er gr\xE4"
                                           "bt."},
                              kVerbs,
                              kOptions,
                              kPassages,
                              "fork"};

TEST(ManPage, HasTheTableWithNothingThatReadsAsARequest)
{
    EXPECT_EQ(".TH \"spade\\-cli\" 1 \"\" \"Orreva 1.2.3\" \"User Commands\"\n"
              ".SH NAME\n"
              "spade\\-cli \\- a spade\n"
              ".SH SYNOPSIS\n"
              "\\fBspade\\-cli\\fR VERB\n"
              ".SH DESCRIPTION\n"
              "It digs.\n"
              ".SH VERBS\n"
              ".TP\n"
              "\\fBdig\\fR [HOLE]\n"
              "Digs in \\(ti/garden.\n"
              ".SH OPTIONS\n"
              ".TP\n"
              "\\fB\\-\\-deep\\fR N\n"
              "How\\edeep.\n"
              ".SH FILES\n"
              "\\&.hidden\n"
              ".PP\n"
              "\\&'quoted'\n"
              ".SH SEE ALSO\n"
              "\\fBfork\\fR(1)\n"
              ".PP\n"
              "The manual opens by F1 in the workbench.\n",
              ManPage(kSpade, "1.2.3", kEnglish));
    const std::string german = ManPage(kSpade, "1.2.3", kGerman);
    EXPECT_NE(std::string::npos, german.find(".SH ÜBERSICHT\n"));
    EXPECT_NE(std::string::npos, german.find("\nGräbt.\n"));
}

/// man complains of what it does not understand on standard error.
TEST(ManPage, IsUnderstoodByMan)
{
    if (std::system("command -v groff >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "groff is not installed";
    }
    const TemporaryFolder folder;
    for (const ProgramWords* const program : {&WorkbenchWords(), &CompanionWords()}) {
        for (const int language : {kEnglish, kGerman}) {
            folder.Write("page.1", ManPage(*program, "1.2.3", language));
            EXPECT_EQ(
                0, std::system("groff -man -Kutf8 -Tutf8 -P-cbu -ww -rCHECKSTYLE=3 page.1 >text 2>errors"));
            EXPECT_EQ("", folder.Read("errors")) << program->name;
            EXPECT_NE(std::string::npos,
                      folder.Read("text").find(language == kGerman ? "OPTIONEN" : "OPTIONS"));
        }
    }
}

} // namespace
