#include "cli/words/Completion.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

namespace {

bool HasProgram(const std::string& name)
{
    return std::system(("command -v " + name + " >/dev/null 2>&1").c_str()) == 0;
}

/// What bash proposes for the last of `words`, sorted; the companion is a function that knows two numbers.
class BashProposals : public testing::Test {
protected:
    BashProposals() { folder.Write("completion", BashCompletion(CompanionWords())); }

    std::string Propose(const std::string& words) const
    {
        folder.Write("ask", "orreva-cli() { printf 'mirror/diameter\\t200\\tmm\\nfocal_ratio\\t6\\t1\\n'; }\n"
                            "source completion\nCOMP_WORDS=(" +
                                words +
                                ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_orreva_cli\n"
                                "printf '%s\\n' \"${COMPREPLY[@]}\" | LC_ALL=C sort >proposed\n");
        EXPECT_EQ(0, std::system("bash ask 2>errors"));
        EXPECT_EQ("", folder.Read("errors")) << words;
        std::string proposed;
        std::istringstream lines(folder.Read("proposed"));
        for (std::string line; std::getline(lines, line);) {
            proposed += (proposed.empty() ? "" : " ") + line;
        }
        return proposed;
    }

    TemporaryFolder folder;
};

TEST_F(BashProposals, FirstAVerbThenItsOptions)
{
    EXPECT_EQ("rays report rescue", Propose("orreva-cli r"));
    EXPECT_EQ("--help", Propose("orreva-cli --he"));
    EXPECT_EQ("--zones", Propose("orreva-cli report --z")) << "and no --zoom, which belongs to draw";
    EXPECT_EQ("--zoom", Propose("orreva-cli draw --z"));
    EXPECT_EQ("--zones", Propose("orreva-cli --title report report --z")) << "a value is no verb";
    EXPECT_EQ("--zones", Propose("orreva-cli --details report --z"));
    EXPECT_EQ("", Propose("orreva-cli nothing --z"));
}

TEST_F(BashProposals, ThenValues)
{
    EXPECT_EQ("de en", Propose("orreva-cli report --language ''"));
    EXPECT_EQ("secondary star summary", Propose("orreva-cli report --page s"));
    EXPECT_EQ("csv", Propose("orreva-cli values --format c"));
    EXPECT_EQ("focal_ratio mirror/diameter", Propose("orreva-cli values --only ''"));
    EXPECT_EQ("mirror/diameter=", Propose("orreva-cli sweep --vary ''"));
    EXPECT_EQ("", Propose("orreva-cli draw --size ''"));
}

TEST_F(BashProposals, ThenFiles)
{
    folder.Write("my telescope.orreva.xml", "");
    EXPECT_EQ("my telescope.orreva.xml", Propose("orreva-cli report my"));
    EXPECT_EQ("my telescope.orreva.xml", Propose("orreva-cli draw -o my"));
    EXPECT_EQ("fta", Propose("orreva-cli export f"));
    EXPECT_EQ("my telescope.orreva.xml", Propose("orreva-cli export fta my"));
    folder.Write("completion", BashCompletion(WorkbenchWords()) + "_orreva_cli() { _orreva; }\n");
    EXPECT_EQ("my telescope.orreva.xml", Propose("orreva my"));
    EXPECT_EQ("--help --version", Propose("orreva -"));
}

TEST(ZshProposals, AreUnderstoodByTheShell)
{
    if (!HasProgram("zsh")) {
        GTEST_SKIP() << "zsh is not installed";
    }
    const TemporaryFolder folder;
    folder.Write("_orreva-cli", ZshCompletion(CompanionWords()));
    folder.Write("_orreva", ZshCompletion(WorkbenchWords()));
    EXPECT_EQ(0, std::system("zsh -n _orreva-cli && zsh -n _orreva"));
}

TEST(ZshProposals, EscapeWhatTheShellWouldRead)
{
    static constexpr VerbWords kVerbs[] = {
        {"dig", kReport, "", "round|square", {"Digs: it's [deep].", "Gräbt."}}};
    static constexpr OptionWords kOptions[] = {{"--how", "a|b", kReport, {"How: it's.", "Wie."}, "a|b"},
                                               {"--file", "FILE", kReport, {"A file.", "Eine Datei."}, ""},
                                               {"--not", "", kRays, {"Not its own.", "Nicht seine."}, ""}};
    const std::string script = ZshCompletion({"spade", {"", ""}, "", {"", ""}, kVerbs, kOptions, {}, "fork"});
    EXPECT_EQ(0u, script.find("#compdef spade\n"));
    EXPECT_NE(std::string::npos, script.find("  'dig:Digs\\: it'\\''s \\[deep\\].'\n"));
    EXPECT_NE(std::string::npos, script.find("    dig)\n      _arguments -s \\\n"
                                             "        '*--how[How\\: it'\\''s.]:a|b:(a b)' \\\n"
                                             "        '*--file[A file.]:FILE:_files' \\\n"
                                             "        '1:form:(round square)' \\\n"
                                             "        '*:file:_files' ;;\n"));
    EXPECT_EQ(std::string::npos, script.find("--not"));
}

} // namespace
