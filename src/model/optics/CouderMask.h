#pragma once

#include "model/optics/FoucaultZones.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>

inline constexpr std::int32_t MAX_MASK_ZONES = 64;

/// A Couder mask or Everest pinstick that the builder has taken over from the zone calculator.
///
/// Its rings divide the full diameter: the width left out at the edge is kept and not used.
class CouderMask {
public:
    /// Lengths in mm. More zones than MAX_MASK_ZONES trip the interactive assertion; if the builder goes on,
    /// the mask holds the first of them and no more.
    CouderMask(double focalLength, double mirrorDiameter, double centrePercent, double edgeWidth,
               std::int32_t maskType, std::int32_t zoneCount);

    /// Radii of a zone in mm, by an index from 0; HUGE_VAL for an index that the mask has no zone for.
    double GetInnerRadius(std::int32_t i) const { return HasZone(i) ? m_innerRadius[Index(i)] : HUGE_VAL; }
    double GetOuterRadius(std::int32_t i) const { return HasZone(i) ? m_outerRadius[Index(i)] : HUGE_VAL; }

    double diameter;
    double focal_length;
    double centre_percent; ///< left out in the centre, per cent of the area
    double edge_width;
    std::int32_t zone_count;
    std::int32_t mask_type;
    std::int32_t light_source = kMovingSource;
    std::int32_t centre_method = kCarlin;

private:
    using Radii = std::array<double, MAX_MASK_ZONES>;

    static std::size_t Index(std::int32_t i) { return static_cast<std::size_t>(i); }
    bool HasZone(std::int32_t i) const { return i >= 0 && i < zone_count && i < MAX_MASK_ZONES; }
    /// False if the arrays have no room for the zone.
    bool SetZone(std::int32_t i, double inner, double outer);

    Radii m_innerRadius{};
    Radii m_outerRadius{};
};

/// The current mask: null at the start of the program; it outlives the sheet that made it.
extern std::unique_ptr<CouderMask> g_pCurrentMask;

/// Replaces the current mask by the data of the zone calculator, for a mirror of D and F, mm.
void TakeOverZones(const ZoneFields& fields, double D, double F);

/// The list of a mask, from its own data alone; without a mask neither columns nor rows. The list keeps
/// what it shows.
ZoneTable MaskZones(const CouderMask* mask);
