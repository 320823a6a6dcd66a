#include "model/optics/LightPaths.h"

#include <algorithm>

namespace {

using Run = LightPathGrid::Run;

Run Common(const Run& a, const Run& b) { return {std::max(a.begin, b.begin), std::min(a.end, b.end)}; }

std::int64_t Length(const Run& run)
{
    return run.end > run.begin ? static_cast<std::int64_t>(run.end - run.begin) : 0;
}

/// The run of one circle as the rows near the axis.
class Circle {
public:
    Circle(const std::vector<double>& points, bool ascending, double shift) : m_points(points), m_shift(shift)
    {
        // The run grows to both sides of the place where the row is nearest to the circle's centre.
        const auto centre = std::partition_point(points.begin(), points.end(), [=](double x) {
            return ascending ? x + shift < 0 : x + shift > 0;
        });
        m_run.begin = m_run.end = static_cast<std::size_t>(centre - points.begin());
    }

    /// Takes in the points of a row for which `inside`, given the squared distance from the centre, holds.
    template <class Inside>
    const Run& Grow(double squared_y, Inside inside)
    {
        const auto covers = [&](std::size_t i) {
            const double x = m_points[i] + m_shift;
            return inside(x * x + squared_y);
        };
        while (m_run.end < m_points.size() && covers(m_run.end)) {
            ++m_run.end;
        }
        while (m_run.begin > 0 && covers(m_run.begin - 1)) {
            --m_run.begin;
        }
        return m_run;
    }

private:
    const std::vector<double>& m_points;
    double m_shift;
    Run m_run{};
};

auto Within(double radius)
{
    return [squared_radius = radius * radius](double squared) { return squared < squared_radius; };
}

/// The edge of an obstruction belongs to it.
auto NotBeyond(double radius)
{
    return [squared_radius = radius * radius](double squared) { return !(squared > squared_radius); };
}

} // namespace

double CountLightPaths(double o_corr, double o_obs, double o_prim, double r_corr, double r_obs, double r_prim,
                       double r__sec, std::int32_t n)
{
    return LightPathGrid(r__sec, n).Count(o_corr, o_obs, o_prim, r_corr, r_obs, r_prim);
}

LightPathGrid::LightPathGrid(double r__sec, std::int32_t n)
{
    const std::size_t rows = n > 0 ? static_cast<std::size_t>(n) : 0;
    const double cell = r__sec / (n + 1.0);
    const double start = r__sec - 0.5 * cell;
    m_ascending = cell < 0;
    m_points.resize(2 * rows);
    double x = start;
    for (double& point : m_points) {
        point = x;
        x -= cell;
    }
    m_rows.resize(rows);
    Circle disc(m_points, m_ascending, 0);
    double y = start;
    for (Row& row : m_rows) {
        row.squared_y = y * y;
        row.disc = disc.Grow(row.squared_y, Within(r__sec));
        y -= cell;
    }
}

double LightPathGrid::Count(double o_corr, double o_obs, double o_prim, double r_corr, double r_obs,
                            double r_prim) const
{
    Circle tube(m_points, m_ascending, o_corr);
    Circle primary(m_points, m_ascending, o_prim);
    Circle obstruction(m_points, m_ascending, o_obs);
    std::int64_t sum = 0;
    for (const Row& row : m_rows) {
        const Run lit = Common(Common(row.disc, tube.Grow(row.squared_y, Within(r_corr))),
                               primary.Grow(row.squared_y, Within(r_prim)));
        const Run dark = Common(lit, obstruction.Grow(row.squared_y, NotBeyond(r_obs)));
        sum += Length(lit) - Length(dark);
    }
    return static_cast<double>(sum);
}
