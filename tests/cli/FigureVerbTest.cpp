#include "cli/Shell.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

class FigureCommand : public testing::Test {
protected:
    void Write(const std::string& name, const std::string& text) { folder.Write(name, text); }

    TemporaryFolder folder;

    static constexpr const char* kMirror = "figure --diameter 200 --focal-length 1200 --readings r.csv ";
};

std::string Line(const std::string& text, const std::string& start)
{
    const std::size_t at = text.find("\n" + start);
    return at == std::string::npos ? "" : text.substr(at + 1, text.find('\n', at + 1) - at - 1);
}

TEST_F(FigureCommand, PrintsTheZonesAndTheNumbersOfASphere)
{
    Write("r.csv", "radius,reading\n30,1\n60,1\n90,0.5,1.5\n");
    const CliRun run = Cli(kMirror);
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0u, run.out.find("zone\tradius\treading\tideal\tdeviation\ttransverse\n1\t30\t1\t0.1875\t"));
    EXPECT_EQ("3\t90\t1\t1.6875\t", Line(run.out, "3\t").substr(0, 14));
    EXPECT_NE(std::string::npos, run.out.find("\n\nwavefront_pv\t"));
    const auto number = [&](const char* name) {
        return std::stod(Line(run.out, name).substr(std::string(name).size()));
    };
    const double pv = 200.0 / (2048 * 216) * 1e6;
    EXPECT_NEAR(pv, number("wavefront_pv\t"), 1e-9 * pv);
    EXPECT_NEAR(pv * 4 / std::sqrt(180), number("wavefront_rms\t"), 1e-9 * pv);
    EXPECT_NEAR(pv / 550, number("wavefront_pv_waves\t"), 1e-9);
    EXPECT_NEAR(1 - 5000.0 / 4800, number("focus\t"), 1e-9);
    EXPECT_EQ("conic\t0\t1", Line(run.out, "conic"));
    EXPECT_TRUE(Line(run.out, "wavefront_rms").ends_with("\tnm"));
    EXPECT_TRUE(run.out.ends_with("\tmm\n"));
}

TEST_F(FigureCommand, TakesSourceConicAndWavelength)
{
    Write("r.csv", "30;0.375\n60;1.5\n90;3.375\n");
    // A paraboloid seen by a fixed source; by a moving one it would have the conic -2.
    EXPECT_EQ("conic\t-1\t1", Line(Cli(std::string(kMirror) + "--source fixed").out, "conic"));
    EXPECT_EQ("conic\t-2\t1", Line(Cli(kMirror).out, "conic"));
    const CliRun run = Cli(std::string(kMirror) + "--source moving --conic -2 --wavelength 500");
    EXPECT_EQ("strehl\t1\t1", Line(run.out, "strehl"));
    EXPECT_NE(std::string::npos, Cli(std::string(kMirror) + "--conic 0").out.find("1\t30\t0.375\t0\t"));
}

TEST_F(FigureCommand, InCsvTheZonesAloneAndInJsonAllWithTheProfile)
{
    Write("r.csv", "30,1\n60,1\n90,1\n");
    const CliRun csv = Cli(std::string(kMirror) + "--format csv");
    EXPECT_EQ(0u, csv.out.find("zone,radius,reading,ideal,deviation,transverse\n1,30,1,0.1875,"));
    EXPECT_EQ(4, std::ranges::count(csv.out, '\n'));
    const CliRun json = Cli(std::string(kMirror) + "--format json");
    EXPECT_EQ(0u, json.out.find("{\n  \"zones\": [\n    {\n      \"radius\": 30,\n      \"reading\": 1,\n"
                                "      \"ideal\": 0.1875,\n      \"deviation\": "));
    std::size_t after = 0;
    for (const char* key : {"\"zones\"", "\"wavefront_pv\"", "\"wavefront_rms\"", "\"wavefront_pv_waves\"",
                            "\"strehl\"", "\"transverse_max\"", "\"conic\"", "\"focus\"", "\"profile\""}) {
        const std::size_t at = json.out.find(key);
        ASSERT_NE(std::string::npos, at) << key;
        EXPECT_GE(at, after);
        after = at;
    }
    // Three zones and 101 places of the profile.
    EXPECT_EQ(101, std::ranges::count(json.out.substr(after), '[') - 1);
    Write("r.csv", "30,1e308\n60,-1e308\n90,1e308\n");
    EXPECT_NE(std::string::npos,
              Cli(std::string(kMirror) + "--format json").out.find("\"wavefront_pv\": null"));
    EXPECT_EQ("wavefront_pv\tnan\tnm", Line(Cli(kMirror).out, "wavefront_pv"));
}

TEST_F(FigureCommand, TellsTheLineOfAFault)
{
    Write("r.csv", "# zones\n30,1\n60,x\n");
    CliRun run = Cli(std::string(kMirror) + "-o out.txt");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("", run.out);
    EXPECT_EQ("orreva-cli: r.csv: line 3: a reading is no number\n", run.err);
    EXPECT_FALSE(std::filesystem::exists("out.txt"));
    run = Cli(std::string(kMirror) + "--language de");
    EXPECT_EQ("orreva-cli: r.csv: Zeile 3: ein Messwert ist keine Zahl\n", run.err);
    Write("r.csv", "30,1\n60,1\n100.5,1\n");
    EXPECT_EQ("orreva-cli: r.csv: line 3: the zone lies beyond the edge of the mirror\n", Cli(kMirror).err);
    Write("r.csv", "30,1\n60,1\n100,1\n");
    EXPECT_EQ(0, Cli(kMirror).status);
}

TEST_F(FigureCommand, AFileOfSeveralSeriesIsReadSeriesBySeries)
{
    const std::string first = "30,1\n60,1\n90,1\n";
    const std::string second = "20,0\n50,0.4\n80,1.1\n95,1.6\n";
    std::map<std::string, CliRun> alone;
    for (const std::string& zones : {first, second}) {
        Write("r.csv", zones);
        alone[zones] = Cli(kMirror);
        ASSERT_EQ(0, alone[zones].status);
    }
    const std::string head = "# Orreva: readings of the knife edge\n";
    const std::string both = "# series: Vor der Politur, f\xC3\xBCr A\n" + first + "# series: B\n" + second;
    Write("r.csv", head + both);
    const CliRun text = Cli(kMirror);
    EXPECT_EQ(0, text.status);
    EXPECT_EQ("# Vor der Politur, f\xC3\xBCr A\n" + alone[first].out + "# B\n" + alone[second].out, text.out);

    const CliRun csv = Cli(std::string(kMirror) + "--format csv");
    EXPECT_EQ(0u, csv.out.find("series,zone,radius,reading,ideal,deviation,transverse\n"
                               "\"Vor der Politur, f\xC3\xBCr A\",1,30,1,0.1875,"));
    EXPECT_NE(std::string::npos, csv.out.find("\nB,4,95,1.6,"));
    EXPECT_EQ(1 + 3 + 4, std::ranges::count(csv.out, '\n'));

    const CliRun json = Cli(std::string(kMirror) + "--format json");
    EXPECT_EQ(0u,
              json.out.find("[\n  {\n    \"series\": \"Vor der Politur, f\xC3\xBCr A\",\n    \"zones\": ["));
    EXPECT_NE(std::string::npos, json.out.find("\n  },\n  {\n    \"series\": \"B\",\n"));
    EXPECT_TRUE(json.out.ends_with("\n  }\n]\n"));

    Write("r.csv", "# series: A\n" + first + "# series: B\n20,0\n10,1\n30,1\n");
    const CliRun falling = Cli(kMirror);
    EXPECT_EQ(1, falling.status);
    EXPECT_EQ("", falling.out);
    EXPECT_EQ("orreva-cli: r.csv: line 7: the radii of the zones must rise\n", falling.err);
}

TEST_F(FigureCommand, OneNamedSeriesIsAFileOfReadingsLikeAnyOther)
{
    Write("r.csv", "30,1\n60,1\n90,1\n");
    const CliRun plain = Cli(kMirror);
    Write("r.csv", "# series: A\n# date: 2026-11-21\nradius,reading 1\n30,1\n60,1\n90,1\n");
    EXPECT_EQ(plain.out, Cli(kMirror).out);
}

TEST_F(FigureCommand, ReadingsMayComeFromAPipe)
{
    const std::string readings = "30,1\n60,1\n90,1\n";
    Write("r.csv", readings);
    const CliRun file = Cli(kMirror);
    EXPECT_EQ(0, file.status);
    EXPECT_EQ(file.out, Cli("figure --diameter 200 --focal-length 1200 --readings -", readings).out);
    EXPECT_EQ(file.out, Cli("figure --diameter 200 --focal-length 1200 --readings /dev/stdin", readings).out);
}

TEST_F(FigureCommand, AFileOrMirrorThatIsMissingIsStatusOne)
{
    EXPECT_EQ(1, Cli(kMirror).status);
    EXPECT_EQ("orreva-cli: cannot read r.csv\n", Cli(kMirror).err);
    Write("r.csv", "30,1\n60,1\n90,1\n");
    for (const char* mirror : {"--diameter 0", "--diameter -5", "--focal-length 0", "--focal-length x"}) {
        const CliRun run = Cli(std::string("figure --readings r.csv ") + mirror);
        EXPECT_EQ(1, run.status) << mirror;
        EXPECT_EQ("", run.out) << mirror;
    }
}

TEST_F(FigureCommand, ThePictureOfTheWavefrontTakesTheSameWords)
{
    Write("r.csv", "30,1\n60,1\n90,1\n");
    const std::string draw = "draw --diameter 200 --focal-length 1200 --picture wavefront --size 600x400 ";
    CliRun run = Cli(draw + "--readings r.csv -o w.svg");
    EXPECT_EQ(0, run.status) << run.err;
    const std::string sphere = folder.Read("w.svg");
    EXPECT_NE(std::string::npos, sphere.find("Wavefront: PV 452.1 nm"));
    EXPECT_EQ(0, Cli(draw + "--readings r.csv --source fixed --conic 0 --language de -o w.svg").status);
    EXPECT_NE(std::string::npos, folder.Read("w.svg").find("Wellenfront: PV 0.0 nm"));
    EXPECT_EQ("orreva-cli: the figure needs --readings\n", Cli(draw + "-o w.svg").err);
    EXPECT_EQ(2, Cli("draw --picture field --size 600x400 -o w.svg --readings r.csv").status);
    EXPECT_EQ(2, Cli(draw + "--readings r.csv --wavelength 0 -o w.svg").status);
    Write("r.csv", "30,1\n60,1\n");
    run = Cli(draw + "--readings r.csv -o bad.svg");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("orreva-cli: r.csv: line 2: fewer than 3 zones\n", run.err);
    EXPECT_FALSE(std::filesystem::exists("bad.svg"));
}

TEST_F(FigureCommand, WordsThatAreNotUnderstoodAreStatusTwo)
{
    Write("r.csv", "30,1\n60,1\n90,1\n");
    EXPECT_EQ("orreva-cli: the figure needs --readings\n", Cli("figure").err);
    for (const char* words : {"--source standing", "--conic x", "--conic 1,5", "--conic nan", "--conic ''",
                              "--wavelength 0", "--wavelength -550", "--wavelength inf", "--wavelength 1e999",
                              "--format xml", "--page primary", "a b"}) {
        const CliRun run = Cli(std::string(kMirror) + words);
        EXPECT_EQ(2, run.status) << words;
        EXPECT_EQ("", run.out) << words;
        EXPECT_EQ(1, std::ranges::count(run.err, '\n')) << words;
    }
}

} // namespace
