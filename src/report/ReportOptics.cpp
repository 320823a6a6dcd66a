#include "report/Report.h"

#include "model/optics/CentreMarks.h"
#include "model/optics/FieldSimulation.h"
#include "model/optics/IlluminationCurve.h"
#include "model/optics/RonchiTolerance.h"
#include "model/optics/StarDistance.h"

#include <algorithm>
#include <sstream>

namespace {

/// No mask comes near it; the list itself may be longer than any disk.
constexpr std::int32_t kMostPrintedZones = 100000;

/// The lines of a text that has LF or CR LF between them.
std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

} // namespace

void FoucaultReport(const ReportContext& context, const ReportSink& sink)
{
    const ZoneOptions& options = context.zones;
    const double D = context.record.GetMirrorDiameter();
    const double F = context.record.GetFocalLength();
    ZoneFields fields = OpenZoneFields(D, F);
    fields.wanted_zones = options.zones.value_or(fields.wanted_zones);
    fields.centre_percent = options.centre.value_or(fields.centre_percent);
    fields.edge_width = options.edge.value_or(fields.edge_width);
    fields.view = options.view;

    sink(ReportLine({"optimum", OptimumZonesText(fields, D, F)}));
    const ZoneTable table = CalculatedZones(fields, D, F);
    ListRow titles;
    for (const ListColumn& column : table.Columns()) {
        titles.push_back(column.title.In(kGerman)); // the sheet exists in German only
    }
    sink(ReportLine(titles));
    bool more = true;
    for (std::int32_t i = 0; more && i < std::min(table.RowCount(), kMostPrintedZones); ++i) {
        more = sink(ReportLine(table.Row(i)));
    }
    if (more && table.RowCount() > kMostPrintedZones) {
        sink("more than " + std::to_string(kMostPrintedZones) + " zones");
    }
}

ReportLines RonchiReport(const ReportContext& context)
{
    const double D = context.record.GetMirrorDiameter();
    const double F = context.record.GetFocalLength();
    const auto tolerance = FindRonchiTolerance(D, F);
    return tolerance ? ReportLines{RonchiToleranceText(*tolerance)} : ReportLines{};
}

ReportLines StarReport(const ReportContext& context)
{
    StarDialogTexts dialog(context.record);
    ReportLines lines{ReportLine({"error", dialog.DistanceByError()})};
    for (const std::string& line : LinesOf(dialog.DistanceByResolution())) {
        lines.push_back(ReportLine({"resolution", line}));
    }
    return lines;
}

ReportLines MarksReport(const ReportContext& context) { return LinesOf(CentreMarksMessage(context.record)); }

ReportLines FieldReport(const ReportContext& context)
{
    FieldSimulation simulation;
    ReportLines lines;
    for (const ListRow& row : FieldRows(simulation.Table(context.record, {}))) {
        lines.push_back(ReportLine(row));
    }
    return lines;
}

ReportLines IlluminationReport(const ReportContext& context)
{
    ReportLines lines;
    for (const ListRow& row : IlluminationPageRows(ReadIlluminationStops(context.record))) {
        lines.push_back(ReportLine(row));
    }
    return lines.empty() ? ReportLines{kNoIllumination} : lines;
}
