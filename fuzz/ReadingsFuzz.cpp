#include "model/optics/ReadingSeries.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool held)
{
    if (!held) {
        std::abort();
    }
}

} // namespace

/// What is kept beside a design comes back as it was written, and what is imported can be read.
void TryBook(std::string_view text, double outer)
{
    if (const auto book = ParseBook(text)) {
        Demand(ParseBook(BookText(*book)) == book);
    }
    const SeriesImport import = ImportSeries(text, outer, "name");
    Demand(import.fault ? import.series.empty() : !import.series.empty());
    for (const ReadingSeries& series : import.series) {
        Demand(!ReadSeries(series, outer).fault);
    }
}

/// Whatever stands in the file, it is either told by a line that it has, or zones come out that can be
/// reduced.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr double kDiameter = 250;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    TryBook(text, kDiameter / 2);
    const ReadingsParse parse = ParseReadings(text, kDiameter / 2);
    Demand(parse.zones.size() <= kMostZones);
    for (const MeasuredZone& zone : parse.zones) {
        Demand(!zone.readings.empty() && zone.readings.size() <= kMostReadings);
    }
    if (parse.fault) {
        Demand(parse.fault->line >= 1 && static_cast<std::size_t>(parse.fault->line) <= size + 1);
        return 0;
    }
    for (const std::int32_t source : {kMovingSource, kFixedSource}) {
        const auto figure = ReduceFigure(kDiameter, 1500, MeansOf(parse.zones), {.light_source = source});
        Demand(figure.has_value());
        Demand(!std::isfinite(figure->pv) || figure->pv >= 0);
        Demand(figure->zones.size() == parse.zones.size());
        Demand(ProfileOf(*figure, kDiameter).size() == 101);
    }
    return 0;
}
