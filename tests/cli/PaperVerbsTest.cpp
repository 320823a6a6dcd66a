// Workshop sheets and reports on paper, as files: what a reader of PDF files sees of them.

#include "cli/Shell.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <regex>
#include <sstream>

namespace {

class PaperVerbs : public testing::Test {
protected:
    /// Makes a file and gives its bytes.
    std::string Make(const std::string& words, const std::string& name = "out.pdf")
    {
        const CliRun run = Cli(words + " -o '" + (folder / name) + "'");
        EXPECT_EQ(0, run.status) << run.err;
        EXPECT_EQ("", run.out + run.err);
        return folder.Read(name);
    }
    /// What a tool of the PDF reader says; nothing if this machine has none.
    std::optional<std::string> Tool(const std::string& words)
    {
        const std::string line = words + " > '" + (folder / "tool") + "' 2>/dev/null";
        if (std::system("command -v pdftocairo > /dev/null 2>&1") != 0) {
            return std::nullopt;
        }
        EXPECT_EQ(0, std::system(line.c_str())) << words;
        return folder.Read("tool");
    }

    TemporaryFolder folder;
};

std::size_t PagesIn(const std::string& pdf)
{
    static const std::regex kPage("/Type /Page\\b");
    return static_cast<std::size_t>(
        std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), kPage), std::sregex_iterator()));
}

TEST_F(PaperVerbs, WhatIsNotUnderstoodEndsWithTwoAndNamesTheWord)
{
    const struct {
        const char* words;
        const char* word;
    } rows[] = {
        {"sheets", "-o"},
        {"sheets -o out.png", "out.png"},
        {"sheets --sheet moon -o out.pdf", "moon"},
        {"sheets --paper A5 -o out.pdf", "A5"},
        {"sheets --zones 65 -o out.pdf", "65"},
        {"sheets --page tube -o out.pdf", "--page"},
        {"sheets --format csv -o out.pdf", "--format"},
        {"report --format csv -o out.pdf", "--format"},
        {"report --paper a4 -o out.pdf", "a4"},
        {"report --paper A4", "--paper"},
    };
    for (const auto& row : rows) {
        const CliRun run = Cli(row.words);
        EXPECT_EQ(2, run.status) << row.words;
        EXPECT_NE(std::string::npos, run.err.find(row.word)) << run.err;
        EXPECT_EQ(1, std::ranges::count(run.err, '\n'));
    }
    EXPECT_EQ(0, folder.Count());
}

TEST_F(PaperVerbs, WhatCannotBeMadeEndsWithOneAndOneLine)
{
    for (const char* const words :
         {"sheets --diameter 3000 --focal-length 9000 --sheet couder-mask", "sheets --diameter 0",
          "sheets --diameter 200 --set secondary/diameter=0 --sheet secondary",
          "sheets missing.orreva.xml"}) {
        const CliRun run = Cli(words + std::string(" -o out.pdf"));
        EXPECT_EQ(1, run.status) << words;
        EXPECT_EQ(1, std::ranges::count(run.err, '\n')) << run.err;
        EXPECT_EQ("", run.out);
    }
    EXPECT_EQ(0, folder.Count());
    EXPECT_EQ("orreva-cli: couder-mask: es w\xC3\xBCrden mehr als 100 Seiten gebraucht\n",
              Cli("sheets --diameter 3000 --language de -o out.pdf").err);
}

TEST_F(PaperVerbs, SheetsGoToStandardOutput)
{
    for (const char* const words : {"sheets --sheet marks -o -", "sheets --sheet marks -o /dev/stdout"}) {
        const CliRun run = Cli(words);
        EXPECT_EQ(0, run.status) << run.err;
        EXPECT_TRUE(run.out.starts_with("%PDF-")) << words;
        EXPECT_EQ(1u, PagesIn(run.out));
    }
    EXPECT_EQ(0, folder.Count());
}

TEST_F(PaperVerbs, SheetsComeInTheOrderNamed)
{
    EXPECT_EQ(6u, PagesIn(Make("sheets --diameter 200 --focal-length 1200")));
    EXPECT_EQ(3u, PagesIn(Make("sheets --sheet secondary --sheet marks --sheet secondary")));
    const std::string pdf = Make("sheets --sheet tube --sheet secondary --paper Letter --title 'A & B'");
    EXPECT_NE(std::string::npos, pdf.find("/MediaBox [0 0 792.000000 612.000000]")) << "the tube lies";
    EXPECT_LT(pdf.find("/MediaBox [0 0 792"), pdf.find("/MediaBox [0 0 612"));
    EXPECT_NE(std::string::npos, pdf.find(std::string("/Title (\xFE\xFF\0A\0 \0&\0 \0B)", 20)));
}

TEST_F(PaperVerbs, AFileIsTakenAndStandardOutputIsAFile)
{
    EXPECT_EQ(0, Cli("save --diameter 200 --focal-length 1200 -o scope.orreva.xml").status);
    EXPECT_EQ(1u, PagesIn(Make("sheets scope.orreva.xml --sheet secondary")));
    const CliRun none = Cli("sheets scope.orreva.xml --sheet secondary -o /no/such/folder/x.pdf");
    EXPECT_EQ(1, none.status);
}

TEST_F(PaperVerbs, AReportHasOneToEightSmallPages)
{
    for (const char* const words : {"", "--page summary", "--details --language de --paper Letter",
                                    "--page foucault --zones 100000", "--set tube/type=2"}) {
        const std::string pdf = Make("report --diameter 200 --focal-length 1200 " + std::string(words));
        EXPECT_GE(PagesIn(pdf), 1u) << words;
        EXPECT_LE(PagesIn(pdf), 8u) << words;
        EXPECT_LE(pdf.size(), 200000u) << words;
        EXPECT_TRUE(pdf.starts_with("%PDF-")) << words;
    }
    std::string many;
    for (int i = 0; i < 40; ++i) {
        many += "--page field ";
    }
    const std::string full = Make("report " + many);
    EXPECT_EQ(8u, PagesIn(full));
    EXPECT_LE(full.size(), 200000u);
}

TEST_F(PaperVerbs, TheReportHasTheRowsOfThePagesAskedFor)
{
    Make("report --diameter 200 --focal-length 1200 --title 'Garden scope' --page primary --page marks");
    const auto text = Tool("pdftotext -layout '" + (folder / "out.pdf") + "' -");
    if (!text) {
        GTEST_SKIP() << "no reader of PDF files here";
    }
    const std::string rows = Cli("report --diameter 200 --focal-length 1200 --page primary").out;
    std::istringstream lines(rows.substr(rows.find('\n') + 1));
    int found = 0;
    for (std::string line; std::getline(lines, line); ++found) {
        const std::string label = line.substr(0, line.find('\t'));
        EXPECT_NE(std::string::npos, text->find(label)) << label;
    }
    EXPECT_GT(found, 8);
    EXPECT_NE(std::string::npos, text->find("Garden scope"));
    EXPECT_NE(std::string::npos, text->find("auf dem Hauptspiegel"));
    EXPECT_EQ(std::string::npos, text->find("Mirror Cell"));
    const auto fonts = Tool("pdffonts '" + (folder / "out.pdf") + "'");
    static const std::regex kNotEmbedded("Identity-H +no");
    EXPECT_FALSE(std::regex_search(*fonts, kNotEmbedded)) << *fonts;
    EXPECT_NE(std::string::npos, fonts->find("Sans")) << *fonts;
}

/// The lengths of the straight lines and the sizes of the curved paths of a page turned to SVG, mm.
struct SvgMeasures {
    std::vector<double> lines;
    std::vector<std::pair<double, double>> curves;
};

SvgMeasures Measure(const std::string& svg)
{
    constexpr double kMmPerPoint = 25.4 / 72;
    static const std::regex kPath("<path[^>]* d=\"([^\"]*)\"[^>]*transform=\"matrix\\(([^)]*)\\)\"");
    SvgMeasures measures;
    for (std::sregex_iterator at(svg.begin(), svg.end(), kPath), end; at != end; ++at) {
        double m[6];
        std::string matrix = (*at)[2];
        std::ranges::replace(matrix, ',', ' ');
        std::istringstream numbers(matrix);
        for (double& number : m) {
            numbers >> number;
        }
        std::istringstream path((*at)[1]);
        std::vector<std::pair<double, double>> points;
        bool curved = false;
        for (std::string word; path >> word;) {
            if (word.size() == 1 && std::isalpha(static_cast<unsigned char>(word[0])) != 0) {
                curved = curved || word == "C";
                continue;
            }
            double y = 0;
            path >> y;
            const double x = std::stod(word);
            points.emplace_back((m[0] * x + m[2] * y) * kMmPerPoint, (m[1] * x + m[3] * y) * kMmPerPoint);
        }
        double low[2] = {1e9, 1e9};
        double high[2] = {-1e9, -1e9};
        for (const auto& [x, y] : points) {
            low[0] = std::min(low[0], x);
            low[1] = std::min(low[1], y);
            high[0] = std::max(high[0], x);
            high[1] = std::max(high[1], y);
        }
        if (curved) {
            measures.curves.emplace_back(high[0] - low[0], high[1] - low[1]);
        } else if (points.size() == 2) {
            measures.lines.push_back(std::hypot(high[0] - low[0], high[1] - low[1]));
        }
    }
    return measures;
}

TEST_F(PaperVerbs, LengthsAreTrueInTheFileItself)
{
    for (const char* const paper : {"A4", "Letter", "A3"}) {
        Make("sheets --diameter 114 --focal-length 900 --set secondary/diameter=40 --sheet couder-mask "
             "--sheet secondary --paper " +
             std::string(paper));
        const std::string file = " '" + (folder / "out.pdf") + "' -";
        const auto mask = Tool("pdftocairo -svg -f 1 -l 1" + file);
        if (!mask) {
            GTEST_SKIP() << "no reader of PDF files here";
        }
        const SvgMeasures first = Measure(*mask);
        const auto second = Measure(*Tool("pdftocairo -svg -f 2 -l 2" + file));
        for (const SvgMeasures& page : {first, second}) {
            EXPECT_EQ(2, std::ranges::count_if(page.lines,
                                               [](double length) { return std::fabs(length - 100) < 0.02; }))
                << paper;
        }
        const auto circle = *std::ranges::max_element(first.curves);
        EXPECT_NEAR(114, circle.first, 0.05) << paper;
        EXPECT_NEAR(114, circle.second, 0.05) << paper;
        const auto ellipse = *std::ranges::max_element(second.curves);
        EXPECT_NEAR(40, ellipse.first, 0.05) << paper;
        EXPECT_NEAR(40 * std::sqrt(2), ellipse.second, 0.05) << paper;
    }
}

} // namespace
