#pragma once

#include "lib/text/Language.h"
#include "model/analysis/EyepiecePlaces.h"
#include "model/optics/FoucaultZones.h"
#include "model/record/OrrevaData.h"
#include "model/rows/ListRow.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What is done on the freshly opened zone calculator; a field without a text stays as it opens.
struct ZoneOptions {
    std::optional<std::string> zones{};
    std::optional<std::string> centre{};
    std::optional<std::string> edge{};
    ZoneView view{};
};

/// What a report page may ask for: the one telescope that all pages of a run share, and how to show it.
struct ReportContext {
    COrrevaData& record;
    /// The document's figures after its last recalculation.
    double field_angle_100 = 0;
    double field_diameter_100 = 0;
    double mirror_back_position = 0;
    int language = kEnglish;
    /// The check box Show Details.
    bool details = false;
    std::string eyepiece_path = FindEyepieces();
    ZoneOptions zones{};
};

/// Lines without line ends, as bytes of code page 1252.
using ReportLines = std::vector<std::string>;

/// Takes the lines of a page one by one; false when it can take no more.
using ReportSink = std::function<bool(const std::string& line)>;

struct ReportPage {
    const char* name;
    Bilingual title; ///< on paper
    void (*write)(const ReportContext& context, const ReportSink& sink);
    bool only_when_named = false; ///< not among the pages of a report without a choice
};

/// All pages in the order in which a report without a choice prints them.
std::span<const ReportPage> ReportPages();

/// The page of a name, null if there is none.
const ReportPage* FindReportPage(std::string_view name);

/// The pages one after the other, each under the line "# NAME".
void WriteReport(std::span<const ReportPage* const> pages, const ReportContext& context,
                 const ReportSink& sink);

// For the makers of pages -------------------------------------------------------------------------------

/// One line of cells parted by TAB; a line break or TAB inside a cell becomes a blank.
std::string ReportLine(const ListRow& cells);

/// The cells of a line; none of them holds a TAB of its own.
ListRow CellsOfLine(const std::string& line);

/// The rows as the user reads them: the last one made stands on top.
void AppendRows(ReportLines& lines, const ListRows& rows);

// The left pane -----------------------------------------------------------------------------------------

/// The title and headings alone on their lines; a value in the warning colour has a third cell "!".
ReportLines SummaryReport(const ReportContext& context);

// The pages of the telescope sheet ----------------------------------------------------------------------

ReportLines PrimaryReport(const ReportContext& context);
ReportLines SecondaryReport(const ReportContext& context);
ReportLines TubeReport(const ReportContext& context);
ReportLines FocuserReport(const ReportContext& context);
ReportLines CellReport(const ReportContext& context);
/// A long list is passed on eyepiece by eyepiece; a last line says that it goes on.
void EyepiecesReport(const ReportContext& context, const ReportSink& sink);
ReportLines BalanceReport(const ReportContext& context);

// The optical tests and the simulated field ---------------------------------------------------------------

/// The zone calculator. Its list may be longer than memory, so that no line is kept; behind 100,000 zones a
/// line says that there are more.
void FoucaultReport(const ReportContext& context, const ReportSink& sink);
ReportLines RonchiReport(const ReportContext& context);
ReportLines StarReport(const ReportContext& context);
ReportLines MarksReport(const ReportContext& context);
ReportLines FieldReport(const ReportContext& context);
/// The exact light over the field; one line alone where there is none.
ReportLines IlluminationReport(const ReportContext& context);

// The report in other forms -------------------------------------------------------------------------------

/// The pages as one csv table `page,cell1,cell2,...`, as wide as the widest row; UTF-8.
std::string CsvReport(std::span<const ReportPage* const> pages, const ReportContext& context);

/// The pages as a JSON array of {"page", "rows"}, a row being the array of its cells; UTF-8.
std::string JsonReport(std::span<const ReportPage* const> pages, const ReportContext& context);
