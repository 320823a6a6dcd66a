#include "model/optics/FoucaultZones.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

std::string ZoneMillimetres(double value) { return FormatText("%0.4f mm", value); }

std::vector<ListColumn> ZoneColumns(const ZoneView& view)
{
    static constexpr const char* kCentreTitles[] = {"Corrected Center Radius (Carlin)",
                                                    "Center Radius (Couder)", "Center Radius (Texereau)"};
    const auto column = [](const char* title, int width, bool right) {
        return ListColumn{{title, title}, width, right}; // one text for both languages
    };
    std::vector<ListColumn> columns{column("Zone", 40, false)};
    if (view.mask_type == kCouderMask) {
        columns.push_back(column("Inner Radius", 80, true));
        columns.push_back(column("Outer Radius", 80, true));
    }
    columns.push_back(column(kCentreTitles[std::clamp<std::int32_t>(view.centre_method, 0, 2)], 130, true));
    columns.push_back(column("Schnittweitendifferenz", 120, true));
    return columns;
}

double Optimum(const ZoneFields& fields, double D, double F)
{
    return OptimumZones(D, F, DecimalValue(fields.centre_percent.c_str()),
                        DecimalValue(fields.edge_width.c_str()));
}

} // namespace

double OptimumZones(double D, double F, double centre_percent, double edge_width)
{
    constexpr double k = 3.7e-05; // 37 nm in mm
    const double Dz = D - 2 * edge_width;
    const double R = 2 * F;
    return (1 - 0.01 * centre_percent) * Dz * Dz / (std::pow(R * R * R * k, 0.5) * 16);
}

double ZoneRadius(double d, double N, std::int32_t i, double centre_percent)
{
    return std::sqrt((1 - 0.01 * centre_percent) * i / N + 0.01 * centre_percent) * (d / 2);
}

double ZoneCentre(const ZoneEdges& edges, std::int32_t centre_method)
{
    const double mean = (edges.outer + edges.inner) / 2;
    const double half = (edges.outer - edges.inner) / 2;
    switch (centre_method) {
    case kCouder:
        return std::sqrt(mean * mean + half * half);
    case kTexereau:
        return std::sqrt(mean * mean);
    default:
        return std::sqrt(mean * mean + half * half / 2);
    }
}

ZoneTable::ZoneTable(const ZoneView& view, double R, std::int32_t count, EdgesOf edges)
    : m_view(view), m_R(R), m_count(std::max(count, 0)), m_edges(std::move(edges)),
      m_columns(ZoneColumns(view))
{}

double ZoneTable::Shift(std::int32_t index) const
{
    const double centre = ZoneCentre(m_edges(index), m_view.centre_method);
    const double shift = centre * centre / m_R;
    return m_view.light_source == kMovingSource ? shift / 2 : shift;
}

ListRow ZoneTable::Row(std::int32_t index) const
{
    const ZoneEdges edges = m_edges(index);
    ListRow row{std::to_string(index + 1)};
    if (m_view.mask_type == kCouderMask) {
        row.push_back(ZoneMillimetres(edges.inner));
        row.push_back(ZoneMillimetres(edges.outer));
    }
    row.push_back(ZoneMillimetres(ZoneCentre(edges, m_view.centre_method)));
    row.push_back(ZoneMillimetres(Shift(index) - Shift(0)));
    return row;
}

ZoneFields OpenZoneFields(double D, double F)
{
    ZoneFields fields;
    fields.wanted_zones = ProposedZonesText(fields, D, F);
    return fields;
}

std::string OptimumZonesText(const ZoneFields& fields, double D, double F)
{
    return FormatText("%0.1f", Optimum(fields, D, F));
}

std::string ProposedZonesText(const ZoneFields& fields, double D, double F)
{
    return FormatText("%0.0f", std::trunc(Optimum(fields, D, F)) + 0.0); // no "-0"
}

ZoneTable CalculatedZones(const ZoneFields& fields, double D, double F)
{
    const double c = DecimalValue(fields.centre_percent.c_str());
    const double Dz = D - 2 * DecimalValue(fields.edge_width.c_str());
    const double N = DecimalValue(fields.wanted_zones.c_str());
    const std::int32_t count = std::isfinite(N) ? TruncToInt32(N) : 0;
    return {fields.view, 2 * F, count, [=](std::int32_t i) {
                return ZoneEdges{ZoneRadius(Dz, N, i, c), ZoneRadius(Dz, N, i + 1, c)};
            }};
}
