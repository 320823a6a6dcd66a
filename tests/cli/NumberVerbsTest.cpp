#include "cli/Shell.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) {
        lines.push_back(line);
    }
    return lines;
}

class NumberVerbs : public testing::Test {
protected:
    void Design(const char* name, const std::string& words)
    {
        ASSERT_EQ(0, Cli("save " + words + " -o " + name).status);
    }
    TemporaryFolder folder;
};

constexpr const char* kExamples = ORREVA_SOURCE_DIR "/share/examples/";

// values --------------------------------------------------------------------------------------------------

TEST_F(NumberVerbs, ValuesPrintsNameNumberAndUnit)
{
    const CliRun run = Cli("values");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.err);
    const auto lines = LinesOf(run.out);
    ASSERT_EQ(71u, lines.size());
    EXPECT_EQ("misc/wanted_100percent_fow\t12\tmm", lines[0]);
    EXPECT_EQ("mirror/focal_length\t1500\tmm", lines[1]);
    EXPECT_EQ("mirror/density\t2.4\tg/cm3", lines[4]);
    EXPECT_EQ("tube/type\t0\t1", lines[5]);
    EXPECT_EQ("focal_ratio\t6\t1", lines[45]);
    EXPECT_EQ(std::string::npos, run.out.find("nan")) << "no first reading shows";
}

TEST_F(NumberVerbs, ValuesInTheOrderNamedAndAsOften)
{
    EXPECT_EQ("focal_ratio\t5\t1\nmirror/diameter\t300\tmm\nfocal_ratio\t5\t1\n",
              Cli("values --only focal_ratio --diameter 300 --only mirror/diameter --only focal_ratio").out);
    EXPECT_EQ("name,value,unit\nfocal_ratio,6,1\nfocal_ratio,6,1\n",
              Cli("values --only focal_ratio --only focal_ratio --format csv").out);
    EXPECT_EQ("{\n"
              "  \"focal_plane_height\": {\n"
              "    \"value\": 214.25,\n"
              "    \"unit\": \"mm\"\n"
              "  },\n"
              "  \"focal_ratio\": {\n"
              "    \"value\": 6,\n"
              "    \"unit\": \"1\"\n"
              "  }\n"
              "}\n",
              Cli("values --only focal_plane_height --only focal_ratio --format json").out);
}

TEST_F(NumberVerbs, ValuesThatAreNotFinite)
{
    const std::string words =
        "values --diameter 0 --focal-length -1 --only focal_ratio --only resolution_dawes "
        "--only limiting_magnitude_2 --only field_at_75_percent";
    EXPECT_EQ("focal_ratio\t-inf\t1\nresolution_dawes\tinf\tarcsec\nlimiting_magnitude_2\t-inf\tmag\n"
              "field_at_75_percent\tnan\tmm\n",
              Cli(words).out);
    const std::string json = Cli(words + " --format json").out;
    EXPECT_EQ(4, std::ranges::count(LinesOf(json), "    \"value\": null,"));
}

TEST_F(NumberVerbs, ValuesKeepsAGivenWeight)
{
    EXPECT_EQ(
        "mirror/density\t2.4\tg/cm3\nweight/mirror\t5000\tg\nweight/cell\t2500\tg\n",
        Cli("values --set weight/mirror=5000 --only mirror/density --only weight/mirror --only weight/cell")
            .out);
}

TEST_F(NumberVerbs, ValuesOfEveryExample)
{
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kExamples)) {
        const CliRun run = Cli("values " + entry.path().string());
        EXPECT_EQ(0, run.status);
        EXPECT_EQ(71u, LinesOf(run.out).size()) << entry.path();
        EXPECT_EQ(std::string::npos, run.out.find("nan")) << entry.path();
        EXPECT_EQ(0, Cli("check " + entry.path().string()).status % 3) << "0 or 3";
        EXPECT_EQ("value\tfirst\tsecond\tunit\n",
                  Cli("compare " + entry.path().string() + " " + entry.path().string()).out);
        ++examples;
    }
    EXPECT_GE(examples, 7);
}

// sweep ---------------------------------------------------------------------------------------------------

TEST_F(NumberVerbs, SweepShowsFourValuesByDefault)
{
    const auto lines = LinesOf(Cli("sweep --vary secondary/diameter=50:70:3").out);
    ASSERT_EQ(4u, lines.size());
    EXPECT_EQ("secondary/diameter\tfull_field\tlinear_obstruction\ttube_length\tfocal_plane_height",
              lines[0]);
    EXPECT_TRUE(lines[1].starts_with("50\t"));
    EXPECT_TRUE(lines[2].starts_with("60\t"));
    EXPECT_TRUE(lines[3].starts_with("70\t"));
    EXPECT_NE(std::string::npos, lines[1].find("\t20\t")) << "50 of 250 mm obstruct 20 %";
}

TEST_F(NumberVerbs, ARowOfASweepIsTheTelescopeOfValues)
{
    const std::string names =
        " mirror/density weight/mirror secondary/offset full_field full_field_angle total_weight "
        "field_at_75_percent cell_nine";
    std::string show;
    std::string only;
    std::istringstream rest(names);
    for (std::string name; rest >> name;) {
        show += " --show " + name;
        only += " --only " + name;
    }
    for (const std::string& telescope :
         {std::string("--diameter 300 --set weight/mirror=4000"),
          std::string(kExamples) + "truss-400-1800.orreva.xml --set tube/type=unset"}) {
        const auto rows =
            LinesOf(Cli("sweep " + telescope +
                        " --vary mirror/focal_length=900:1500,5:2 --vary focuser/height=-3:80:2" + show)
                        .out);
        ASSERT_EQ(5u, rows.size());
        std::size_t row = 1;
        for (const char* const focal : {"900", "1500,5"}) {
            for (const char* const height : {"-3", "80"}) {
                std::string expected = std::string(focal) + "\t" + height;
                std::ranges::replace(expected, ',', '.');
                for (const std::string& line :
                     LinesOf(Cli("values " + telescope + " --set mirror/focal_length=" + focal +
                                 " --set focuser/height=" + height + only)
                                 .out)) {
                    expected += line.substr(line.find('\t'), line.rfind('\t') - line.find('\t'));
                }
                EXPECT_EQ(expected, rows[row++]);
            }
        }
    }
}

TEST_F(NumberVerbs, SweepInOtherForms)
{
    EXPECT_EQ("focuser/spare,focuser_total_height,focuser_total_height\n0,55,55\n",
              Cli("sweep --vary focuser/spare=0:9:1 --show focuser_total_height --show focuser_total_height "
                  "--format csv")
                  .out);
    EXPECT_EQ("[\n"
              "  {\n"
              "    \"focuser/spare\": 0,\n"
              "    \"focuser_total_height\": 55\n"
              "  },\n"
              "  {\n"
              "    \"focuser/spare\": -5,\n"
              "    \"focuser_total_height\": 50\n"
              "  }\n"
              "]\n",
              Cli("sweep --vary focuser/spare=0:-5:2 --show focuser_total_height --format json").out);
}

TEST_F(NumberVerbs, AReaderThatGoesAwayEndsAnyVerbQuietly)
{
    for (const char* const words : {"sweep --vary mirror/diameter=100:400:100000000",
                                    "sweep --vary mirror/diameter=100:400:9999999 --jobs 3 --format json",
                                    "report --page foucault --zones 99999", "values"}) {
        const std::string script =
            std::string("'( ") + ORREVA_CLI + " " + words + "; echo $? >&2 ) 2>status | head -n 1 >first'";
        ASSERT_EQ(0, std::system(("bash -c " + script).c_str()));
        std::ifstream status("status");
        std::string told{std::istreambuf_iterator<char>(status), {}};
        EXPECT_EQ("0\n", told) << words;
    }
}

TEST_F(NumberVerbs, CheckWithoutAReaderIsQuietToo)
{
    // The reader is gone before the check has begun.
    const std::string script =
        std::string("'( sleep 0.3; ") + ORREVA_CLI + " check --diameter 0; echo $? >&2 ) 2>status | true'";
    ASSERT_EQ(0, std::system(("bash -c " + script).c_str()));
    std::ifstream status("status");
    EXPECT_EQ("0\n", std::string(std::istreambuf_iterator<char>(status), {}));
}

TEST_F(NumberVerbs, WhatANumberVerbDoesNotUnderstandIsNamed)
{
    const struct {
        const char* words;
        const char* word;
    } rows[] = {
        {"values --only weight", "weight"},
        {"values --only mirror/poisson", "mirror/poisson"},
        {"values --only title", "title"},
        {"values --only focal_ratio --only focal_ratio --format json", "focal_ratio"},
        {"values --format yaml", "yaml"},
        {"values --vary mirror/diameter=1:2:3", "--vary"},
        {"values a b", "b"},
        {"sweep", "--vary"},
        {"sweep --vary mirror/diameter", "mirror/diameter"},
        {"sweep --vary mirror/size=1:2:3", "mirror/size=1:2:3"},
        {"sweep --vary tube/type=0:5:6", "tube/type=0:5:6"},
        {"sweep --vary title=1:2:3", "title=1:2:3"},
        {"sweep --vary mirror/poisson=1:2:3", "mirror/poisson=1:2:3"},
        {"sweep --vary focal_ratio=1:2:3", "focal_ratio=1:2:3"},
        {"sweep --vary mirror/diameter=1", "mirror/diameter=1"},
        {"sweep --vary mirror/diameter=1:2", "mirror/diameter=1:2"},
        {"sweep --vary mirror/diameter=1:2:3:4", "1:2:3:4"},
        {"sweep --vary mirror/diameter=:2:3", "=:2:3"},
        {"sweep --vary mirror/diameter=1::3", "=1::3"},
        {"sweep --vary mirror/diameter=1:2:", "=1:2:"},
        {"sweep --vary mirror/diameter=x:2:3", "x:2:3"},
        {"sweep --vary mirror/diameter=1:2mm:3", "2mm"},
        {"sweep --vary mirror/diameter=1:unset:3", "unset"},
        {"sweep --vary mirror/diameter=1:nan:3", "nan"},
        {"sweep --vary mirror/diameter=1:inf:3", "inf"},
        {"sweep --vary mirror/diameter=1:1.#INF:3", "1.#INF"},
        {"sweep --vary mirror/diameter=1:1e999:3", "1e999"},
        {"sweep --vary mirror/diameter=1:1.2.3:3", "1.2.3"},
        {"sweep --vary mirror/diameter=1:0x10:3", "0x10"},
        {"sweep --vary mirror/diameter=1:2:0", "1:2:0"},
        {"sweep --vary mirror/diameter=1:2:-3", "-3"},
        {"sweep --vary mirror/diameter=1:2:+3", "+3"},
        {"sweep --vary mirror/diameter=1:2:3.0", "3.0"},
        {"sweep --vary 'mirror/diameter=1:2: 3'", "1:2: 3"},
        {"sweep --vary mirror/diameter=1:2:99999999999999999999", "99999999999999999999"},
        {"sweep --vary mirror/diameter=1:2:100000001", "100000001"},
        {"sweep --vary mirror/diameter=1:2:10001 --vary mirror/focal_length=1:2:10000",
         "mirror/focal_length"},
        {"sweep --vary mirror/diameter=1:2:2 --vary mirror/diameter=1:2:3", "mirror/diameter=1:2:3"},
        {"sweep --vary mirror/diameter=1:2:1 --vary mirror/focal_length=1:2:1 --vary focuser/height=1:2:1 "
         "--vary focuser/spare=1:2:1 --vary tube/distance_back=1:2:1",
         "tube/distance_back"},
        {"sweep --vary mirror/diameter=1:2:3 --show size", "size"},
        {"sweep --vary mirror/diameter=1:2:3 --show mirror/diameter --format json", "mirror/diameter"},
        {"sweep --vary mirror/diameter=1:2:3 --show focal_ratio --show focal_ratio --format json",
         "focal_ratio"},
        {"sweep --vary mirror/diameter=1:2:3 --jobs 0", "0"},
        {"sweep --vary mirror/diameter=1:2:3 --jobs 257", "257"},
        {"sweep --vary mirror/diameter=1:2:3 --jobs two", "two"},
        {"sweep --vary mirror/diameter=1:2:3 --only focal_ratio", "--only"},
        {"compare", "compare"},
        {"compare a", "a"},
        {"compare a b c", "c"},
        {"compare a b --diameter 3", "--diameter"},
        {"compare - -", "-"},
        {"check --only focal_ratio", "--only"},
        {"check a b", "b"},
        {"check --format xml", "xml"},
    };
    for (const auto& row : rows) {
        const CliRun run = Cli(row.words);
        EXPECT_EQ(2, run.status) << row.words;
        EXPECT_EQ("", run.out) << row.words;
        EXPECT_EQ(1u, LinesOf(run.err).size()) << row.words << run.err;
        EXPECT_NE(std::string::npos, run.err.find(row.word)) << row.words << ": " << run.err;
    }
}

TEST_F(NumberVerbs, AMissingFileEndsWithOneAndNoOutput)
{
    Design("there.xml", "");
    for (const char* const words :
         {"values missing -o out", "check missing -o out", "compare missing there.xml -o out",
          "compare there.xml missing -o out", "sweep missing --vary mirror/diameter=1:2:3 -o out"}) {
        const CliRun run = Cli(words);
        EXPECT_EQ(1, run.status) << words;
        EXPECT_EQ("", run.out) << words;
        EXPECT_EQ("orreva-cli: cannot read missing\n", run.err) << words;
        EXPECT_FALSE(std::filesystem::exists("out")) << words;
    }
}

// compare -------------------------------------------------------------------------------------------------

TEST_F(NumberVerbs, CompareTellsWhatDiffers)
{
    Design("one.xml", "--title 'First, \"one\"' --set mirror/material=Pyrex --set weight/misc=1");
    Design("two.xml",
           "--title 'First, two' --set mirror/material=Pyrex --set weight/misc=2,5 --set balance/misc=0");
    const CliRun run = Cli("compare one.xml two.xml");
    EXPECT_EQ(0, run.status);
    const auto lines = LinesOf(run.out);
    ASSERT_LE(4u, lines.size());
    EXPECT_EQ("value\tfirst\tsecond\tunit", lines[0]);
    EXPECT_EQ("title\tFirst, \"one\"\tFirst, two\t", lines[1]);
    EXPECT_EQ("weight/misc\t1\t2.5\tg", lines[2]);
    EXPECT_TRUE(lines[3].starts_with("total_weight\t")) << lines[3];

    const auto csv = LinesOf(Cli("compare one.xml two.xml --format csv").out);
    EXPECT_EQ("value,first,second,unit", csv.at(0));
    EXPECT_EQ("title,\"First, \"\"one\"\"\",\"First, two\",", csv.at(1));
    EXPECT_EQ("weight/misc,1,2.5,g", csv.at(2));

    const std::string json = Cli("compare one.xml two.xml --format json").out;
    EXPECT_TRUE(json.starts_with("[\n"
                                 "  {\n"
                                 "    \"value\": \"title\",\n"
                                 "    \"first\": \"First, \\\"one\\\"\",\n"
                                 "    \"second\": \"First, two\",\n"
                                 "    \"unit\": \"\"\n"
                                 "  },\n"))
        << json;
    EXPECT_EQ("[]\n", Cli("compare one.xml one.xml --format json").out);
    EXPECT_EQ("value,first,second,unit\n", Cli("compare one.xml one.xml --format csv").out);
}

TEST_F(NumberVerbs, CompareOfNonsense)
{
    Design("odd.xml", "--diameter 0 --focal-length -1e308 --set description='a\tb\nc'");
    Design("odder.xml", "--diameter -3 --focal-length 0 --set description='a b c'");
    const CliRun run = Cli("compare odd.xml odder.xml");
    EXPECT_EQ(0, run.status);
    const auto lines = LinesOf(run.out);
    EXPECT_TRUE(std::ranges::all_of(lines, [](const std::string& line) {
        return std::ranges::count(line, '\t') == 3;
    })) << run.out;
    EXPECT_EQ(0, Cli("compare odd.xml odder.xml --format json").status);
}

// check ---------------------------------------------------------------------------------------------------

TEST_F(NumberVerbs, CheckFindsNothingAndSaysNothing)
{
    const std::string good = "--diameter 200 --focal-length 1200 --set secondary/diameter=50";
    const CliRun run = Cli("check " + good);
    EXPECT_EQ(0, run.status) << run.out;
    EXPECT_EQ("", run.out);
    EXPECT_EQ("", run.err);
    EXPECT_EQ("[]\n", Cli("check --format json " + good).out);
    EXPECT_EQ("severity,code,name,text\n", Cli("check --format csv " + good).out);
}

TEST_F(NumberVerbs, CheckTellsErrorsWithThree)
{
    const CliRun run = Cli("check --set tube/inside_diameter_hat=240 --language de");
    EXPECT_EQ(3, run.status);
    EXPECT_TRUE(run.out.starts_with(
        "error\ttube-narrower-than-mirror\ttube/inside_diameter_hat\tInnendurchmesser des "
        "Tubus: 240.00 mm ist enger als der Spiegel von 250.00 mm. Geben Sie"))
        << run.out;
    EXPECT_EQ(3, Cli("check --set tube/distance_front=1").status) << "a warning alone";
    const CliRun note = Cli("check --set secondary/diameter=80");
    EXPECT_EQ(0, note.status) << "a note alone";
    EXPECT_TRUE(
        note.out.starts_with("note\tobstruction-large\tlinear_obstruction\tThe secondary obstructs 32.00 %"))
        << note.out;
    const std::string json = Cli("check --set secondary/diameter=80 --format json").out;
    EXPECT_TRUE(json.starts_with("[\n"
                                 "  {\n"
                                 "    \"severity\": \"note\",\n"
                                 "    \"code\": \"obstruction-large\",\n"
                                 "    \"name\": \"linear_obstruction\",\n"
                                 "    \"text\": \"The secondary"))
        << json;
}

TEST_F(NumberVerbs, CheckOfNonsense)
{
    for (const char* const words :
         {"check --diameter 0", "check --diameter -1e308 --focal-length 1e308",
          "check --set focuser/height=-1e999", "check --set tube/type=-5 --diameter nan"}) {
        EXPECT_EQ(3, Cli(words).status) << words;
    }
}

} // namespace
