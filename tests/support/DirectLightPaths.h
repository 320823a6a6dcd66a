#pragma once

#include <cstdint>

/// The definition of CountLightPaths: every point of the grid against every circle. The judge of the fast
/// way.
inline double CountLightPathsDirectly(double o_corr, double o_obs, double o_prim, double r_corr, double r_obs,
                                      double r_prim, double r__sec, std::int32_t n)
{
    const double cell = r__sec / (n + 1);
    const double start = r__sec - 0.5 * cell;
    double sum = 0;
    double y = start;
    for (std::int32_t row = 0; row < n; ++row) {
        double x = start;
        for (std::int32_t column = 0; column < 2 * n; ++column) {
            if (x * x + y * y < r__sec * r__sec && (x + o_corr) * (x + o_corr) + y * y < r_corr * r_corr &&
                (x + o_prim) * (x + o_prim) + y * y < r_prim * r_prim &&
                (x + o_obs) * (x + o_obs) + y * y > r_obs * r_obs) {
                sum += 1;
            }
            x -= cell;
        }
        y -= cell;
    }
    return sum;
}
