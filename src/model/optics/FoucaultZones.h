#pragma once

#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The numbers of the radio buttons.
enum MaskType : std::int32_t { kCouderMask, kEverestPinstick };
enum CentreMethod : std::int32_t { kCarlin, kCouder, kTexereau };
enum LightSource : std::int32_t { kMovingSource, kFixedSource };

/// What the buttons of the Foucault sheet answer that are not finished yet.
inline constexpr const char* kUnfinishedMessage = "**** Leider noch nicht fertig. ****";

/// Optimum number of zones for a surface accuracy of 37 nm. D: mirror diameter, F: focal length, edge_width:
/// left out at the edge (all mm); centre_percent: left out in the centre, per cent of the area.
double OptimumZones(double D, double F, double centre_percent, double edge_width);

/// Radius of boundary i of N rings of equal area on a surface of the diameter d; boundary 0 is the edge of
/// the centre that is left out. N need not be whole. The unit is that of d.
double ZoneRadius(double d, double N, std::int32_t i, double centre_percent);

/// The two edges of one zone, mm.
struct ZoneEdges {
    double inner;
    double outer;
};

/// Radius at which a zone is measured, by Carlin, Couder or Texereau.
double ZoneCentre(const ZoneEdges& edges, std::int32_t centre_method);

/// How a list of zones is shown: the numbers of the three radio groups.
struct ZoneView {
    std::int32_t mask_type = kCouderMask;
    std::int32_t centre_method = kCarlin;
    std::int32_t light_source = kMovingSource;
};

/// The report list of a set of zones, zone 1 on top: rows are appended in their order. A row is worked out
/// when it is looked at, so that a list of a thousand million zones costs no more than one of three.
class ZoneTable {
public:
    /// Edges of a zone; the index runs from 0.
    using EdgesOf = std::function<ZoneEdges(std::int32_t index)>;

    /// Neither columns nor rows.
    ZoneTable() = default;
    /// R: the radius of curvature, mm. A negative count is none.
    ZoneTable(const ZoneView& view, double R, std::int32_t count, EdgesOf edges);

    const std::vector<ListColumn>& Columns() const { return m_columns; }
    std::int32_t RowCount() const { return m_count; }
    /// `index` from 0 up to, and not including, RowCount().
    ListRow Row(std::int32_t index) const;

private:
    double Shift(std::int32_t index) const;

    ZoneView m_view;
    double m_R = 0;
    std::int32_t m_count = 0;
    EdgesOf m_edges;
    std::vector<ListColumn> m_columns;
};

/// The fields of the zone calculator: texts as the builder typed them (a comma ends a number), and the radio
/// groups.
struct ZoneFields {
    std::string wanted_zones;
    std::string centre_percent = "5";
    std::string edge_width = "0";
    ZoneView view;
};

/// The fields of the freshly opened page for a mirror of D and F, mm.
ZoneFields OpenZoneFields(double D, double F);

/// The text of the read-only field, by the texts that stand in the others.
std::string OptimumZonesText(const ZoneFields& fields, double D, double F);

/// The wanted number that the page proposes: that optimum, cut to a whole number.
std::string ProposedZonesText(const ZoneFields& fields, double D, double F);

/// The calculated zones. A wanted number that is not finite gives no rows.
ZoneTable CalculatedZones(const ZoneFields& fields, double D, double F);
