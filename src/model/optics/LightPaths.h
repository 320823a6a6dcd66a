#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Counts the points of a grid over the upper half of the secondary's disc through which light gets to the
/// eye: inside the disc of the radius r__sec, of the tube opening (r_corr) and of the primary (r_prim), and
/// outside of the obstruction (r_obs), the last three shifted along x by minus their o_. The grid has n rows
/// of 2 n points. Lengths are of one unit.
double CountLightPaths(double o_corr, double o_obs, double o_prim, double r_corr, double r_obs, double r_prim,
                       double r__sec, std::int32_t n);

/// The same for many counts over one disc.
///
/// Equal to testing each point, number by number: within a row each circle covers one run of points, and as
/// the rows near the axis a run only grows, so it is enough to walk the ends of the runs.
class LightPathGrid {
public:
    LightPathGrid(double r__sec, std::int32_t n);

    double Count(double o_corr, double o_obs, double o_prim, double r_corr, double r_obs,
                 double r_prim) const;

    /// Points of a row from `begin` up to, and not including, `end`.
    struct Run {
        std::size_t begin;
        std::size_t end;
    };

private:
    struct Row {
        double squared_y;
        Run disc; ///< the points inside the secondary's disc
    };

    bool m_ascending; ///< whether the points of a row rise
    std::vector<double> m_points;
    std::vector<Row> m_rows;
};
