#include "model/optics/FieldSimulation.h"

#include "lib/text/LogSink.h"
#include "support/DirectLightPaths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

/// The default telescope, all its defaults settled.
void Settle(COrrevaData& telescope)
{
    telescope.GetFocalPlaneHeight();
    telescope.GetFocalPlaneHeight();
}

/// The table by the direct loop, as the paint of a simple program would run it.
std::vector<double> DirectField(double I, double D, double S, double f, double A, double F)
{
    const double m = (f - A) / f;
    const auto count = [&](double t) {
        return CountLightPathsDirectly((F * m + (m + 1) * A) * t, (m + 1) * A * t, A * t, 0.5 * I * m,
                                       0.5 * S * m, 0.5 * D * m, 0.5 * S, 200);
    };
    const double c0 = count(0);
    std::vector<double> p;
    double a = 0.006;
    for (int i = 0; i < 250; ++i) {
        p.push_back(count(a * 3.14159265358979 / 180) * 100 / c0);
        a += 0.006;
    }
    return p;
}

TEST(FieldSimulation, OfTheDefaultTelescope)
{
    COrrevaData telescope;
    Settle(telescope);
    const FieldInputs inputs = ReadFieldInputs(telescope);
    EXPECT_EQ(286, inputs.I);
    EXPECT_EQ(250, inputs.D);
    EXPECT_EQ(46.482, inputs.S);
    EXPECT_EQ(1500, inputs.f);
    EXPECT_EQ(1285.75, inputs.A);
    EXPECT_EQ(125, inputs.F);

    FieldSimulation simulation;
    const FieldTable& table = simulation.Table(telescope, {});
    const std::vector<double> direct = DirectField(286, 250, 46.482, 1500, 1285.75, 125);
    ASSERT_EQ(250u, table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_NEAR(0.006 * static_cast<double>(i + 1), table[i].angle, 1e-12) << i;
        EXPECT_EQ(direct[i], table[i].p) << i;
    }
    EXPECT_GT(table.front().p, 99);
    EXPECT_LT(table.back().p, 60);
}

TEST(FieldSimulation, OfATubeFarTooSmallIsRelativeToItsOwnCentre)
{
    COrrevaData telescope;
    Settle(telescope);
    telescope.SetInsideDiameterHat(100);
    telescope.SetSecondaryDiameter(46.482);
    FieldSimulation simulation;
    const FieldTable table = simulation.Table(telescope, {});
    // A follows the tube: f - 50 - 6.25 - 65
    const std::vector<double> direct = DirectField(100, 250, 46.482, 1500, 1378.75, 125);
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(direct[i], table[i].p) << i;
    }
    EXPECT_GT(table.front().p, 90);
    EXPECT_EQ(0, table.back().p); // black at the edge
}

TEST(FieldSimulation, OneStepOfProgressForEachCountAndNoneForAKnownTelescope)
{
    COrrevaData telescope;
    Settle(telescope);
    FieldSimulation simulation;
    int dots = 0;
    const FieldProgress progress = [&] { ++dots; };
    const double p = simulation.Table(telescope, progress)[100].p;
    EXPECT_EQ(251, dots);
    EXPECT_EQ(p, simulation.Table(telescope, progress)[100].p);
    EXPECT_EQ(251, dots);
    telescope.SetDistanceFront(500);
    EXPECT_NE(p, simulation.Table(telescope, progress)[100].p);
    EXPECT_EQ(502, dots);
}

std::vector<std::string> g_lines;

TEST(FieldSimulation, LogsTheCirclesOnTheAxisAfterTheFirstCount)
{
    g_lines.clear();
    const LogSink before = SetLogSink([](const char* psz) { g_lines.emplace_back(psz); });
    std::vector<std::size_t> seen;
    CountField({286, 250, 46.482, 1500, 1285.75, 125}, [&] { seen.push_back(g_lines.size()); });
    SetLogSink(before);
    // m = 214.25 / 1500
    const std::vector<std::string> expected{
        "o_corr: 0.000000,o_obs: 0.000000,o_prim: 0.000000,r_corr: 20.425167,r_obs: 3.319590,"
        "r_prim: 17.854167,r__sec: 23.241000,n_points: 200"};
    EXPECT_EQ(expected, g_lines);
    EXPECT_EQ(0u, seen[0]);
    EXPECT_EQ(1u, seen[1]);
}

TEST(FieldSimulation, WithoutLightAtTheCentreThereIsNoBrightness)
{
    COrrevaData telescope;
    Settle(telescope);
    telescope.SetSecondaryDiameter(0);
    FieldSimulation simulation;
    for (const FieldRing& ring : simulation.Table(telescope, {})) {
        EXPECT_TRUE(std::isnan(ring.p));
    }
    // A primary behind its own obstruction.
    telescope.SetSecondaryDiameter(60);
    telescope.SetMirrorDiameter(50);
    for (const FieldRing& ring : simulation.Table(telescope, {})) {
        EXPECT_TRUE(std::isnan(ring.p));
    }
}

TEST(FieldSimulation, SurvivesAnyTelescope)
{
    for (const double value : {0.0, -1.0, 1e300, -1e300, 1e-300}) {
        for (int place = 0; place < 6; ++place) {
            double v[6] = {286, 250, 46.482, 1500, 1285.75, 125};
            v[place] = value;
            const FieldTable table = CountField({v[0], v[1], v[2], v[3], v[4], v[5]}, {});
            EXPECT_NEAR(1.5, table.back().angle, 1e-9);
        }
    }
}

TEST(FieldSimulation, RowsShowTheAngleAndTheBrightnessBeforeRounding)
{
    FieldTable table{};
    table[0] = {0.006, 99.875};
    table[249] = {1.5, 12.3456789};
    const ListRows rows = FieldRows(table);
    ASSERT_EQ(250u, rows.size());
    EXPECT_EQ((ListRow{"0.006", "99.875000"}), rows[0]);
    EXPECT_EQ((ListRow{"1.500", "12.345679"}), rows[249]);
}

} // namespace
