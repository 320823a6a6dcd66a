#include "cli/RaysVerb.h"

#include "cli/ViewOptions.h"
#include "lib/text/Language.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>
#include <vector>

namespace {

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> Rays(const ViewOptions& options, int language = kEnglish)
{
    COrrevaData record;
    MakeRoundScope(record);
    return Lines(RaysText(record, options, language));
}

TEST(ViewOptions, StandForTheDocumentsSwitches)
{
    const ViewSwitches plain = SwitchesFor({});
    EXPECT_EQ(0, plain.ray_parallel + plain.ray_from_focal_plane + plain.ray_from_mouse);
    EXPECT_EQ(1, plain.miss_in_grey);
    EXPECT_EQ(1, plain.show_offset);
    EXPECT_EQ(0, plain.show_extended_focuser + plain.show_box_and_cage);
    const ViewSwitches all = SwitchesFor({RayMode::kFocal, {}, true, true, true, true});
    EXPECT_EQ(1, all.ray_from_focal_plane);
    EXPECT_EQ(0, all.miss_in_grey + all.show_offset);
    EXPECT_EQ(2, all.show_extended_focuser + all.show_box_and_cage);
    EXPECT_EQ(1, SwitchesFor({RayMode::kParallel}).ray_parallel);
    EXPECT_EQ(1, SwitchesFor({RayMode::kPointer}).ray_from_mouse);
}

TEST(RaysVerb, PrintsTheSegmentsAndAfterTheParallelSetItsStatus)
{
    const auto lines = Rays({RayMode::kParallel, {500, 80}});
    // 45 rays of at least one segment; the first starts at 80 - 360, passes over the tube and is lost.
    ASSERT_GT(lines.size(), 46u);
    EXPECT_EQ("0 -280 ", lines[0].substr(0, 7));
    EXPECT_TRUE(lines[0].ends_with(" lost")) << lines[0];
    EXPECT_EQ("Angle: 1.406° Image: 49.09 mm, Illumination: 75.32% ", lines.back());
    EXPECT_EQ("Einfallwinkel: 1.406° Bild: 49.09 mm, Ausleuchtung: 75.32% ",
              Rays({RayMode::kParallel, {500, 80}}, kGerman).back());
}

TEST(RaysVerb, PrintsEachNumberSoThatItReadsBackTheSame)
{
    for (const std::string& line : Rays({RayMode::kPointer, {600.1, 210.7}})) {
        double x0 = 0;
        double y0 = 0;
        double x1 = 0;
        double y1 = 0;
        char outcome[8] = "";
        ASSERT_EQ(5, std::sscanf(line.c_str(), "%lf %lf %lf %lf %7s", &x0, &y0, &x1, &y1, outcome)) << line;
        char again[200];
        std::snprintf(again, sizeof again, "%.17g %.17g %.17g %.17g %s", x0, y0, x1, y1, outcome);
        EXPECT_EQ(line, again);
        EXPECT_TRUE(std::string(outcome) == "hit" || std::string(outcome) == "lost");
    }
}

TEST(RaysVerb, PrintsNoStatusAfterAFan)
{
    EXPECT_NE("Angle", Rays({RayMode::kFocal, {0, 40}}).back().substr(0, 5));
}

TEST(RaysVerb, LeavesOutLostRaysAndTheOffset)
{
    ViewOptions options{RayMode::kFocal, {0, 100}, true};
    for (const std::string& line : Rays(options)) {
        EXPECT_TRUE(line.ends_with(" hit")) << line;
    }
    // A ray at 171 mm meets the diagonal's back unless the offset moves it down to 173.
    const auto offset = Rays({RayMode::kParallel, {0, 323}});
    const auto none = Rays({RayMode::kParallel, {0, 323}, false, false, true});
    EXPECT_GT(offset.size(), none.size());
}

TEST(RaysVerb, PrintsTheStatusAloneForATubeThatCannotBeTraced)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetInsideDiameterHat(-20); // with two walls of 10 mm a width of 0
    const auto lines = Lines(RaysText(record, {RayMode::kParallel, {0, 200}}, kEnglish));
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("Angle: ", lines[0].substr(0, 7));
}

} // namespace
