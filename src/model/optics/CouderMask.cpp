#include "model/optics/CouderMask.h"

#include "lib/text/Assertion.h"
#include "lib/text/Numbers.h"

#include <algorithm>

std::unique_ptr<CouderMask> g_pCurrentMask;

CouderMask::CouderMask(double focalLength, double mirrorDiameter, double centrePercent, double edgeWidth,
                       std::int32_t maskType, std::int32_t zoneCount)
    : diameter(mirrorDiameter), focal_length(focalLength), centre_percent(centrePercent),
      edge_width(edgeWidth), zone_count(zoneCount), mask_type(maskType)
{
    const double N = zone_count;
    for (std::int32_t i = 0; i < zone_count; ++i) {
        // One zone too many is told once; the answer does not make room for the rest.
        if (!SetZone(i, ZoneRadius(diameter, N, i, centre_percent),
                     ZoneRadius(diameter, N, i + 1, centre_percent))) {
            break;
        }
    }
}

bool CouderMask::SetZone(std::int32_t i, double inner, double outer)
{
    if (i >= MAX_MASK_ZONES) {
        AssertFail("i<MAX_MASK_ZONES", __FILE__, __LINE__, nullptr);
        return false;
    }
    m_innerRadius[Index(i)] = inner;
    m_outerRadius[Index(i)] = outer;
    return true;
}

void TakeOverZones(const ZoneFields& fields, double D, double F)
{
    const double c = DecimalValue(fields.centre_percent.c_str());
    const double e = DecimalValue(fields.edge_width.c_str());
    const std::int32_t N = IntegerValue(fields.wanted_zones.c_str());
    g_pCurrentMask = std::make_unique<CouderMask>(F, D, c, e, fields.view.mask_type, N);
}

ZoneTable MaskZones(const CouderMask* mask)
{
    if (mask == nullptr) {
        return {};
    }
    const ZoneView view{mask->mask_type, mask->centre_method, mask->light_source};
    const std::int32_t held = std::min(mask->zone_count, MAX_MASK_ZONES);
    return {view, 2 * mask->focal_length, held, [held_mask = *mask](std::int32_t i) {
                return ZoneEdges{held_mask.GetInnerRadius(i), held_mask.GetOuterRadius(i)};
            }};
}
