#include "model/optics/FieldSimulation.h"

#include "lib/text/FormatText.h"
#include "lib/text/Log.h"
#include "model/optics/LightPaths.h"

#include <limits>

FieldInputs ReadFieldInputs(COrrevaData& telescope)
{
    FieldInputs inputs{};
    inputs.I = telescope.GetInsideDiameterHat();
    inputs.D = telescope.GetMirrorDiameter();
    inputs.S = telescope.GetSecondaryDiameter();
    inputs.f = telescope.GetFocalLength();
    inputs.A = telescope.GetPrimaryToFocuser();
    inputs.F = telescope.GetDistanceFront();
    return inputs;
}

FieldTable CountField(const FieldInputs& inputs, const FieldProgress& progress)
{
    constexpr double kPiOfField = 3.14159265358979;
    constexpr double kAngleStep = 1.5 / 250; // degrees
    constexpr std::int32_t n_points = 200;

    const auto& [I, D, S, f, A, F] = inputs;
    const double m = (f - A) / f;
    const double r_corr = 0.5 * I * m;
    const double r_obs = 0.5 * S * m;
    const double r_prim = 0.5 * D * m;
    const double r__sec = 0.5 * S;
    const LightPathGrid grid(r__sec, n_points);
    const auto count = [&](double o_corr, double o_obs, double o_prim) {
        if (progress) {
            progress();
        }
        return grid.Count(o_corr, o_obs, o_prim, r_corr, r_obs, r_prim);
    };

    const double c0 = count(0, 0, 0);
    LibString line;
    line.Format("o_corr: %f,o_obs: %f,o_prim: %f,r_corr: %f,r_obs: %f,r_prim: %f,r__sec: %f,n_points: %d",
                0.0, 0.0, 0.0, r_corr, r_obs, r_prim, r__sec, n_points);
    LogText(line);

    FieldTable table{};
    double a = kAngleStep;
    for (FieldRing& ring : table) {
        const double t = a * kPiOfField / 180;
        const double c = count((F * m + (m + 1) * A) * t, (m + 1) * A * t, A * t);
        ring.angle = a;
        ring.p = c0 == 0 ? std::numeric_limits<double>::quiet_NaN() : c * 100 / c0;
        a += kAngleStep;
    }
    return table;
}

const FieldTable& FieldSimulation::Table(COrrevaData& telescope, const FieldProgress& progress)
{
    const FieldInputs inputs = ReadFieldInputs(telescope);
    if (m_inputs != inputs) {
        m_table = CountField(inputs, progress);
        m_inputs = inputs;
    }
    return m_table;
}

ListRows FieldRows(const FieldTable& table)
{
    ListRows rows;
    rows.reserve(table.size());
    for (const FieldRing& ring : table) {
        rows.push_back({FormatText("%0.3f", ring.angle), FormatText("%0.6f", ring.p)});
    }
    return rows;
}
