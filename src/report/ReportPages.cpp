#include "lib/text/CodePage.h"
#include "report/Report.h"

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
    {"summary", {"Design summary", "Zusammenfassung"}, Write<SummaryReport>},
    {"primary", {"Primary", "Hauptspiegel"}, Write<PrimaryReport>},
    {"secondary", {"Secondary", "Fangspiegel"}, Write<SecondaryReport>},
    {"tube", {"Tube", "Tubus"}, Write<TubeReport>},
    {"focuser", {"Focuser", "Focuser"}, Write<FocuserReport>},
    {"cell", {"Mirror Cell", "Spiegelzelle"}, Write<CellReport>},
    {"eyepieces", {"Eyepieces", "Okulare"}, EyepiecesReport},
    {"balance", {"Center of Gravity", "Schwerpunkt"}, Write<BalanceReport>},
    {"foucault", {"Zones of the Foucault Test", "Zonen des Foucault-Tests"}, FoucaultReport},
    {"ronchi", {"Matching Ronchi Test", "Matching Ronchi Test"}, Write<RonchiReport>},
    {"star", {"Artificial Star", "Künstlicher Stern"_cp1252}, Write<StarReport>},
    {"marks", {"Centre Marks", "Mittenmarkierungen"}, Write<MarksReport>},
    {"field", {"Field of View", "Gesichtsfeld"}, Write<FieldReport>},
    {"illumination", {"Exact Illumination", "Genaue Ausleuchtung"}, Write<IlluminationReport>, true},
};

} // namespace

std::span<const ReportPage> ReportPages() { return kPages; }
