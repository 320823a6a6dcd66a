#include "cli/Shell.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace {

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) {
        lines.push_back(line);
    }
    return lines;
}

bool HasLine(const std::string& text, const std::string& line)
{
    const auto lines = Lines(text);
    return std::ranges::find(lines, line) != lines.end();
}

class CommandLine : public testing::Test {
protected:
    TemporaryFolder folder;
};

TEST_F(CommandLine, WhatIsNotUnderstoodEndsWithTwoAndNamesTheWord)
{
    const struct {
        const char* words;
        const char* word;
    } rows[] = {
        {"", "--help"},
        {"paint", "paint"},
        {"report --frobnicate", "--frobnicate"},
        {"report --page nothing", "nothing"},
        {"report --page", "--page"},
        {"report --language fr", "fr"},
        {"report a.orreva.xml b.orreva.xml", "b.orreva.xml"},
        {"report a.orreva.xml --diameter 200", "--diameter"},
        {"report a.orreva.xml --title x", "--title"},
        {"report --set mirror/size=3", "mirror/size=3"},
        {"report --set mirror/poisson=3", "mirror/poisson=3"},
        {"report --set mirror/modulus=3", "mirror/modulus=3"},
        {"report --set mirror/diameter", "mirror/diameter"},
        {"report --template cardboard", "cardboard"},
        {"report --method mine", "mine"},
        {"report --source torch", "torch"},
        {"rays --mode parallel", "--pointer"},
        {"rays --pointer 1,2", "--mode"},
        {"rays --mode sideways --pointer 1,2", "sideways"},
        {"rays --mode parallel --pointer 12", "12"},
        {"rays --mode parallel --pointer 1,x", "1,x"},
        {"rays --mode parallel --pointer 1,2 --details", "--details"},
        {"draw --picture section --size 10x10", "-o"},
        {"draw --picture section -o x.png", "--size"},
        {"draw --size 10x10 -o x.png", "--picture"},
        {"draw --picture moon --size 10x10 -o x.png", "moon"},
        {"draw --picture section --size 10 -o x.png", "10"},
        {"draw --picture section --size 0x10 -o x.png", "0x10"},
        {"draw --picture section --size 10x99999 -o x.png", "10x99999"},
        {"draw --picture section --size 10x10 --zoom 6 -o x.png", "6"},
        {"draw --picture section --size 10x10 -o x.bmp", "x.bmp"},
        {"import", "import"},
        {"export", "export"},
        {"export nothing2", "nothing2"},
        {"rays --mode parallel --pointer +-1,2", "+-1,2"},
        {"draw --picture summary --size 10x10 --zoom 2 -o x.png", "--zoom"},
        {"draw --picture polygon --size 10x10 --value 2 -o x.png", "--value"},
        {"save -o ''", "-o"},
        {"frob --help", "frob"},
    };
    for (const auto& row : rows) {
        const CliRun run = Cli(row.words);
        EXPECT_EQ(2, run.status) << row.words;
        EXPECT_EQ("", run.out) << row.words;
        EXPECT_EQ(1u, Lines(run.err).size()) << row.words << run.err;
        EXPECT_NE(std::string::npos, run.err.find(row.word)) << row.words << ": " << run.err;
    }
}

TEST_F(CommandLine, HelpAndVersionStandAloneOrBehindAVerb)
{
    for (const char* const words : {"--help", "report --help", "--help draw"}) {
        const CliRun run = Cli(words);
        EXPECT_EQ(0, run.status) << words;
        EXPECT_NE(std::string::npos, run.out.find("orreva-cli report")) << words;
    }
    EXPECT_NE(std::string::npos, Cli("--help --language de").out.find("Entwurfsdatei"));
    EXPECT_TRUE(HasLine(Cli("report --page summary --title --help").out, "--help")) << "a value is no option";
    EXPECT_NE(0, Cli("calc -- --version").status) << "nor is an expression";
    const CliRun version = Cli("--version");
    EXPECT_EQ(0, version.status);
    EXPECT_EQ("orreva-cli 0.3.1.34\n", version.out);
}

TEST_F(CommandLine, AMissingFileEndsWithOneAndNoOutput)
{
    std::filesystem::create_directory("folder");
    for (const char* const words :
         {"report missing.orreva.xml", "save missing.orreva.xml -o out", "save folder -o out",
          "rays missing --mode focal --pointer 1,2", "import missing -o out"}) {
        const CliRun run = Cli(words);
        EXPECT_EQ(1, run.status) << words;
        EXPECT_EQ("", run.out) << words;
        EXPECT_NE("", run.err) << words;
        EXPECT_FALSE(std::filesystem::exists("out")) << words;
    }
}

TEST_F(CommandLine, AFileThatCannotBeWrittenEndsWithOne)
{
    for (const char* const words :
         {"save -o missing/x", "report -o missing/x", "draw --picture summary --size 10x10 -o missing/x.png",
          "save -o /dev/full"}) {
        const CliRun run = Cli(words);
        EXPECT_EQ(1, run.status) << words;
        EXPECT_NE("", run.err) << words;
    }
}

TEST_F(CommandLine, OptionsMayStandBeforeOrBehindTheOtherWords)
{
    const std::string expected = Cli("report --page summary --language de --diameter 200").out;
    EXPECT_EQ(expected, Cli("--language de --diameter 200 report --page summary").out);
    EXPECT_EQ(expected, Cli("--page summary report --diameter 200 --language de").out);
    EXPECT_TRUE(HasLine(expected, "Durchmesser:\t200.0 mm (7.87\")")) << expected;
}

TEST_F(CommandLine, SummaryOfTheProposedTelescope)
{
    const CliRun run = Cli("report --page summary");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.err);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_LT(6u, lines.size());
    EXPECT_EQ("# summary", lines[0]);
    EXPECT_EQ("Untitleld Telescope", lines[1]);
    EXPECT_EQ("Primary", lines[2]);
    EXPECT_EQ("Diameter:\t250.0 mm (9.84\")", lines[3]);
    EXPECT_EQ("Focal Length:\t1500.0 mm (59.06\")", lines[4]);
    EXPECT_EQ("Focal Ratio:\tf/6.00", lines[5]);
    EXPECT_EQ("Thickness:\t41.7 mm (1.64\")", lines[6]);
    // z is read a second time, so the diameter is right and the angle is not yet a number
    EXPECT_TRUE(HasLine(run.out, "Secondary\t12.57 mm (–°)")) << run.out;
}

TEST_F(CommandLine, FieldsAreReadAsTheirFieldsDo)
{
    const CliRun run = Cli("report --page summary --diameter 200,9 --focal-length 1200.5 --title 'Töpfers Ω' "
                           "--set mirror/thickness=33,5");
    EXPECT_TRUE(HasLine(run.out, "Töpfers ?")) << "a character that the code page lacks";
    EXPECT_TRUE(HasLine(run.out, "Diameter:\t200.0 mm (7.87\")")) << "a comma ends the number";
    EXPECT_TRUE(HasLine(run.out, "Focal Length:\t1200.5 mm (47.26\")"));
    EXPECT_TRUE(HasLine(run.out, "Thickness:\t33.5 mm (1.32\")")) << "the comma is a point for --set";
}

TEST_F(CommandLine, SettingsGoThroughTheSettersInTheirOrderAndRecalculateOnce)
{
    const std::string save =
        Cli("save --set tube/type=3 --set mirror/diameter=-5 --set mirror/diameter=200 "
            "--set title=a=b --set material= --set weight/misc=12.5 "
            "--set focuser/type=unset --set mirror/material=x --set mirror/material=unset "
            "--set weight/cell=7 --set weight/cell=unset")
            .out;
    // 'material' alone is no key
    EXPECT_EQ("", save);
    const std::string bytes = Cli("save --set tube/type=3 --set mirror/diameter=-5 --set mirror/diameter=200 "
                                  "--set title=a=b --set weight/misc=12.5 --set focuser/type=unset "
                                  "--set mirror/material=x --set mirror/material=unset --set weight/cell=7 "
                                  "--set weight/cell=unset")
                                  .out;
    for (const char* const line :
         {"  <title>a=b</title>", "    <diameter>200.000000</diameter>", "    <type>3</type>",
          "    <material></material>", "    <misc>12.500000</misc>", "    <cell>1.#INF00</cell>"}) {
        EXPECT_TRUE(HasLine(bytes, line)) << line;
    }
    // after the second recalculation the angle is a number: (1500 * m - z * 200) / (1500 - z) with the stored
    // m
    const std::string summary = Cli("report --page summary --set title=x").out;
    EXPECT_TRUE(HasLine(summary, "Secondary\t12.57 mm (0.48°)")) << summary;
}

TEST_F(CommandLine, SaveWritesTheDesignFilesOwnBytes)
{
    const CliRun run = Cli("save --title 'Größe' -o x.orreva.xml");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.out);
    const std::string bytes = folder.Read("x.orreva.xml");
    EXPECT_NE(std::string::npos, bytes.find("<title>Gr\xF6\xDF"
                                            "e</title>\n"));
    EXPECT_EQ(bytes, Cli("save x.orreva.xml").out) << "and reads them back";
    EXPECT_TRUE(HasLine(Cli("report x.orreva.xml --page summary").out, "Größe"));
}

TEST_F(CommandLine, ASavedTelescopeOpensWithItsDefaults)
{
    Cli("save --diameter 200 --focal-length 1200 -o a");
    const std::string opened = Cli("report a --page summary").out;
    EXPECT_TRUE(HasLine(opened, "Diameter:\t200.0 mm (7.87\")"));
    EXPECT_TRUE(HasLine(opened, "Focal Ratio:\tf/6.00"));
}

TEST_F(CommandLine, RaysOfTheParallelSetEndWithTheStatusLine)
{
    const CliRun run = Cli("rays --mode parallel --pointer 100,65");
    EXPECT_EQ(0, run.status);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_LT(40u, lines.size());
    EXPECT_EQ(0u, lines.back().find("Angle: 1.406° Image: ")) << "the pointer stands on the upper tube line";
    EXPECT_EQ(' ', lines.back().back());
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        std::istringstream row(lines[i]);
        double x0, y0, x1, y1;
        std::string end;
        ASSERT_TRUE(row >> x0 >> y0 >> x1 >> y1 >> end) << lines[i];
        EXPECT_TRUE(end == "hit" || end == "lost") << lines[i];
    }
    const std::string hidden = Cli("rays --mode parallel --pointer 100,65 --hide-lost").out;
    EXPECT_EQ(std::string::npos, hidden.find(" lost\n"));
}

TEST_F(CommandLine, ATubeThatMustNotBeTracedGivesTheStatusLineAlone)
{
    const CliRun run = Cli("rays --mode parallel --pointer 100,65 --set tube/inside_diameter_hat=-100");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ(1u, Lines(run.out).size()) << run.out;
    EXPECT_EQ(0u, run.out.find("Angle: "));
}

TEST_F(CommandLine, PicturesComeInThreeForms)
{
    const struct {
        const char* name;
        const char* start;
    } rows[] = {{"a.png", "\x89PNG"}, {"a.svg", "<?xml"}, {"a.pdf", "%PDF"}};
    for (const char* const picture : {"section", "summary", "tube-panel", "mirror-panel", "field", "ronchi",
                                      "polygon", "sector", "illumination", "secondary-choice"}) {
        for (const auto& row : rows) {
            const CliRun run =
                Cli(std::string("draw --size 640x700 --picture ") + picture + " -o " + row.name);
            EXPECT_EQ(0, run.status) << picture << run.err;
            EXPECT_EQ(0u, folder.Read(row.name).find(row.start)) << picture;
        }
    }
}

TEST_F(CommandLine, TheDiameterOfAPolygonIsNoTelescopes)
{
    Cli("save -o a");
    EXPECT_EQ(0, Cli("draw a --picture polygon --diameter 300 --size 300x300 -o a.png").status);
    EXPECT_EQ(2, Cli("draw a --picture section --diameter 300 --size 300x300 -o b.png").status);
}

TEST_F(CommandLine, APipeIsAFile)
{
    ASSERT_EQ(0, Cli("save --title Piped -o a.orreva.xml").status);
    const std::string design = folder.Read("a.orreva.xml");
    EXPECT_EQ(design, Cli("save -", design).out);
    EXPECT_EQ(design, Cli("save /dev/stdin", design).out);
    EXPECT_EQ(design, Cli("save - -o -", design).out);
    ASSERT_EQ(0, std::system("mkfifo pipe; cat a.orreva.xml >pipe &"));
    EXPECT_EQ(design, Cli("save pipe").out);
    EXPECT_EQ(design, Cli("save a.orreva.xml -o /dev/stdout").out);
    EXPECT_EQ(design, Cli("save a.orreva.xml -o /proc/self/fd/1").out);
    ASSERT_EQ(0, std::system(ORREVA_CLI " save a.orreva.xml -o /dev/fd/1 >appended && " ORREVA_CLI
                                        " save a.orreva.xml -o /dev/stdout >>appended"));
    EXPECT_EQ(design + design, folder.Read("appended"));
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(CommandLine, ADeviceWithoutAnEndIsNotRead)
{
    const CliRun run = Cli("report /dev/zero");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("", run.out);
    EXPECT_EQ("orreva-cli: cannot read /dev/zero\n", run.err);
}

TEST_F(CommandLine, AFileAbove64MebibytesIsNotRead)
{
    const std::string path = folder.Write("a.orreva.xml", "<telescope>");
    std::filesystem::resize_file(path, std::uintmax_t{64} << 20);
    EXPECT_EQ(0, Cli("save a.orreva.xml -o out").status);
    std::filesystem::resize_file(path, (std::uintmax_t{64} << 20) + 1);
    const CliRun run = Cli("save a.orreva.xml -o out2");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("orreva-cli: cannot read a.orreva.xml\n", run.err);
    EXPECT_FALSE(std::filesystem::exists("out2"));
}

TEST_F(CommandLine, WhatDoesNotFitTheMemoryEndsWithOneAndALine)
{
#ifdef ORREVA_SANITIZED
    GTEST_SKIP() << "a sanitizer takes more room than is left here";
#endif
    const std::string path = folder.Write("a.orreva.xml", "<telescope>");
    std::filesystem::resize_file(path, std::uintmax_t{60} << 20);
    const int status =
        std::system("( ulimit -v 150000; exec " ORREVA_CLI " save a.orreva.xml -o out >said 2>&1 )");
    EXPECT_EQ(1, WEXITSTATUS(status));
    EXPECT_EQ("orreva-cli: not enough memory\n", folder.Read("said"));
    EXPECT_FALSE(std::filesystem::exists("out"));
}

TEST_F(CommandLine, AReaderThatGoesAwayHasSeenEnough)
{
    for (const char* const words :
         {"report --page foucault --zones 90000", "report --page foucault --zones 90000 -o /dev/stdout",
          "report --page foucault --zones 90000 -o -", "report --format csv --page foucault --zones 90000",
          "calc $(seq 1 9999)"}) {
        const std::string line =
            std::string("{ ") + ORREVA_CLI + " " + words + " 2>err; echo $? >status; } | head -c 10 >begin";
        ASSERT_EQ(0, std::system(line.c_str()));
        EXPECT_EQ("0\n", folder.Read("status")) << words;
        EXPECT_EQ("", folder.Read("err")) << words;
        EXPECT_EQ(10u, folder.Read("begin").size()) << words;
    }
}

TEST_F(CommandLine, TheListOfZonesHasAnEnd)
{
    const std::vector<std::string> lines = Lines(Cli("report --page foucault --zones 100001").out);
    ASSERT_EQ(100004u, lines.size()) << "the page, the optimum, the titles, the zones, and the last line";
    EXPECT_EQ(0u, lines[100002].find("100000\t"));
    EXPECT_EQ("more than 100000 zones", lines[100003]);
    EXPECT_EQ(100003u, Lines(Cli("report --page foucault --zones 100000").out).size());
    EXPECT_EQ("more than 100000 zones", Lines(Cli("report --page foucault --zones 1e9").out).back());
}

TEST_F(CommandLine, TheListOfEyepiecesIsTheNearest)
{
    for (const char* const place : {"user", "first", "second"}) {
        std::filesystem::create_directories(folder.Path() / place / "orreva");
    }
    const Environment user("XDG_DATA_HOME", (folder / "user").c_str());
    const Environment system("XDG_DATA_DIRS", (folder / "first" + ":" + (folder / "second")).c_str());
    const auto page = [] { return Lines(Cli("report --page eyepieces").out); };
    EXPECT_EQ(1u, page().size()) << "no list, and no word but the page's";
    for (const char* const place : {"second/orreva/", "first/orreva/", "user/orreva/", ""}) {
        folder.Write(std::string(place) + "eyepiece.dat", "In " + std::string(place) + ",10,50\n");
        EXPECT_EQ("In " + std::string(place), page().at(1));
    }
}

TEST_F(CommandLine, TheListOfEyepiecesHasAnEnd)
{
    std::string list;
    for (int i = 0; i < 100000; ++i) {
        list += std::to_string(1000000 + i) + ",10,50\n";
    }
    folder.Write("eyepiece.dat", list);
    std::vector<std::string> lines = Lines(Cli("report --page eyepieces").out);
    ASSERT_EQ(1u + 6 * 100000, lines.size());
    EXPECT_EQ("1099999", lines[1 + 6 * 99999]);
    folder.Write("eyepiece.dat", list + "0,10,50\n");
    lines = Lines(Cli("report --page eyepieces").out);
    ASSERT_EQ(2u + 6 * 100000, lines.size());
    EXPECT_EQ("1000000", lines[1]) << "the first of the file";
    EXPECT_EQ("more than 100000 eyepieces", lines.back());
}

TEST_F(CommandLine, EqualSeedsDrawEqualPatterns)
{
    for (const char* const words : {"--seed 7 -o a.png", "--seed 7 -o b.png", "--seed 8 -o c.png"}) {
        EXPECT_EQ(0, Cli(std::string("draw --picture ronchi --size 640x700 ") + words).status);
    }
    EXPECT_EQ(folder.Read("a.png"), folder.Read("b.png"));
    EXPECT_NE(folder.Read("a.png"), folder.Read("c.png"));
}

TEST_F(CommandLine, CalcAnswersItsWords)
{
    const CliRun run = Cli("calc 1+2*3 -- -5+3");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("7.000000\n-2.000000\n", run.out);
    EXPECT_EQ("-2.000000\n", Cli("calc -5+3").out) << "a minus sign does not make it an option";
    EXPECT_EQ(1, Cli("calc '1+'").status);
    EXPECT_NE("", Cli("calc '1+'").out);
}

TEST_F(CommandLine, CalcAnswersEachLineOfStandardInput)
{
    const CliRun run = Cli("calc", "1+1\n\n2*3");
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_EQ(3u, lines.size());
    EXPECT_EQ("2.000000", lines[0]);
    EXPECT_EQ("6.000000", lines[2]);
    EXPECT_EQ("", Cli("calc", "").out);
}

TEST_F(CommandLine, CalcAnswersAnEmptyLineWithItsMessage)
{
    const CliRun run = Cli("calc", "\n1\n");
    EXPECT_EQ("No input data.\n1.000000\n", run.out);
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("No input data.\n", Cli("calc ''").out);
}

TEST_F(CommandLine, CalcPutsControlCharactersOutAsTheyAre)
{
    // The code of `)` is 271, whose low eight bits are 15.
    EXPECT_EQ("Unknown character [ \x0F ].\n", Cli("calc '1)'").out);
    // Above 0x7F the codes of the open places of the code page stand for control characters.
    EXPECT_EQ("Unknown character [ \xC2\x81 ].\n", Cli("calc", "1\xC2\x81").out);
    EXPECT_EQ("1.000000\n", Cli("calc", "1\r\n").out) << "a carriage return is a blank of the line";
}

TEST_F(CommandLine, CalcTakesAByteOf0ForAQuestionMark)
{
    const CliRun run = Cli("calc", std::string("1\0+1\n2\n", 7));
    EXPECT_EQ("Unknown character [ ? ].\n2.000000\n", run.out);
    EXPECT_EQ(1, run.status);
}

TEST_F(CommandLine, CalcTakes1023Characters)
{
    const std::string longest = std::string(1022, ' ') + "1";
    EXPECT_EQ("1.000000\n", Cli("calc", longest).out);
    const CliRun run = Cli("calc", " " + longest + "\n2");
    EXPECT_EQ("Expression of more than 1023 characters.\n2.000000\n", run.out);
    EXPECT_EQ(1, run.status);
}

TEST_F(CommandLine, AllPagesWithoutAChoiceInTheirOrder)
{
    folder.Write("eyepiece.dat", "Ortho 12,12,45\n");
    std::vector<std::string> titles;
    for (const std::string& line : Lines(Cli("report").out)) {
        if (line.starts_with("# ")) {
            titles.push_back(line.substr(2));
        }
    }
    const std::vector<std::string> expected{"summary", "primary",   "secondary", "tube",     "focuser",
                                            "cell",    "eyepieces", "balance",   "foucault", "ronchi",
                                            "star",    "marks",     "field"};
    EXPECT_EQ(expected, titles);
}

TEST_F(CommandLine, PagesComeInTheOrderNamedAsOftenAsNamed)
{
    std::vector<std::string> titles;
    for (const std::string& line : Lines(Cli("report --page cell --page star --page cell").out)) {
        if (line.starts_with("# ")) {
            titles.push_back(line.substr(2));
        }
    }
    EXPECT_EQ((std::vector<std::string>{"cell", "star", "cell"}), titles);
}

TEST_F(CommandLine, FoucaultTakesTheTextsOfItsFields)
{
    const std::string page = Cli("report --page foucault --diameter 200 --focal-length 1200").out;
    // 0.95 * 40000 / (sqrt(2400^3 * 3.7e-05) * 16) = 3.32
    EXPECT_TRUE(HasLine(page, "optimum\t3.3")) << page;
    EXPECT_EQ(3 + 3u, Lines(page).size()) << page;
    EXPECT_EQ(3 + 7u, Lines(Cli("report --page foucault --zones 7,9").out).size())
        << "a comma ends the number";
    EXPECT_EQ(3u, Lines(Cli("report --page foucault --zones -3").out).size());
    EXPECT_NE(std::string::npos,
              Cli("report --page foucault --template everest --method texereau --source fixed")
                  .out.find("Zone\tCenter Radius (Texereau)\tSchnittweitendifferenz"));
}

TEST_F(CommandLine, FieldReportWritesNoDots)
{
    const CliRun run = Cli("report --page field");
    EXPECT_EQ("", run.err);
    EXPECT_EQ(251u, Lines(run.out).size());
    EXPECT_EQ(0u, Lines(run.out)[1].find("0.006\t"));
}

TEST_F(CommandLine, OddNumbersNeverHang)
{
    for (const char* const value : {"0", "-1", "1e300", "1e-300", "unset", "1e999", "-1e300"}) {
        for (const char* const key : {"mirror/diameter", "mirror/focal_length", "tube/inside_diameter_hat",
                                      "secondary/diameter", "focuser/height", "tube/distance_front"}) {
            const std::string set = std::string(" --set ") + key + "=" + value;
            EXPECT_EQ(0, Cli("report --details" + set + " -o out").status) << set;
            for (const char* const mode : {"parallel", "focal", "pointer"}) {
                EXPECT_EQ(0, Cli(std::string("rays --pointer 10,10 -o out --mode ") + mode + set).status)
                    << set << mode;
            }
            EXPECT_EQ(0, Cli("draw --picture section --mode parallel --size 300x200 -o a.png" + set).status)
                << set;
        }
    }
}

} // namespace
