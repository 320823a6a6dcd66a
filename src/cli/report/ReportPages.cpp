#include "cli/report/Report.h"

namespace {

/// A page whose lines are made at once.
template <ReportLines (*lines)(const ReportContext&)>
void Write(const ReportContext& context, const ReportSink& sink)
{
    for (const std::string& line : lines(context)) {
        sink(line);
    }
}

constexpr ReportPage kPages[] = {
    {"summary", Write<SummaryReport>},     {"primary", Write<PrimaryReport>},
    {"secondary", Write<SecondaryReport>}, {"tube", Write<TubeReport>},
    {"focuser", Write<FocuserReport>},     {"cell", Write<CellReport>},
    {"eyepieces", EyepiecesReport},        {"balance", Write<BalanceReport>},
    {"foucault", FoucaultReport},          {"ronchi", Write<RonchiReport>},
    {"star", Write<StarReport>},           {"marks", Write<MarksReport>},
    {"field", Write<FieldReport>},         {"illumination", Write<IlluminationReport>, true},
};

} // namespace

std::span<const ReportPage> ReportPages() { return kPages; }
