#include "report/ReportOnPaper.h"

#include "drawing/IlluminationPicture.h"
#include "drawing/SectionPicture.h"
#include "drawing/WavefrontCharts.h"
#include "drawing/paper/PartSurface.h"
#include "drawing/paper/SheetParts.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "model/analysis/Balance.h"
#include "model/optics/CouderMask.h"
#include "model/optics/SeriesFigures.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <numeric>

#include <sys/stat.h>

namespace {

constexpr Bilingual kSectionHeading{"Cross-section", "Querschnitt"};
constexpr Bilingual kMeasuresHeading{"Measures in mm (1:%d)", "Maße in mm (1:%d)"_cp1252};
constexpr Bilingual kMaskHeading{"Current mask", "Aktuelle Maske"};
constexpr Bilingual kCurveHeading{"Illumination of the Field", "Ausleuchtung des Felds"};
constexpr Bilingual kWavefrontHeading{"Wavefront", "Wellenfront"};

/// Pictures for the screen are painted with so many units for a pixel: their texts are 3.5 mm high.
constexpr std::int32_t kPictureScale = 25;
constexpr double kChartHeight = 85; // mm

using PaintPixels = std::function<void(Surface& surface)>;

/// A picture of pixels on a place of the page.
ReportPicture PixelPicture(const char* heading, double height, PaintPixels paint)
{
    return {heading, height, [paint = std::move(paint)](Surface& page, const PixelRect& place) {
                PartSurface part(page, place, kPictureScale);
                paint(part);
            }};
}

ReportPicture ChartPicture(const Bilingual& heading, Chart chart, int language)
{
    return PixelPicture(heading.In(language), kChartHeight, [chart = std::move(chart)](Surface& surface) {
        PaintChart(surface, chart, kLightChart);
    });
}

/// The telescope from the side as the panes show it in high contrast, with the scale of millimetres.
ReportPicture SectionOnPaper(const COrrevaData& record, double width, int language)
{
    const auto copy = std::make_shared<COrrevaData>();
    static_cast<TelescopeFields&>(*copy) = record;
    copy->file_path = "report"; // without any, no telescope is loaded
    return PixelPicture(kSectionHeading.In(language), 0.42 * width, [copy, language](Surface& surface) {
        ViewSwitches switches;
        switches.high_contrast = 1;
        SectionZoom view;
        PaintSection(surface, view, *copy, switches, Point{}, language);
    });
}

/// The tube with its measures; nothing for a tube that cannot be drawn.
std::optional<ReportPicture> MeasuresOnPaper(COrrevaData& record, double width, int language)
{
    constexpr double kHighest = 110; // mm
    const SheetResult result = TubeSheet(record, width, kHighest, language);
    const auto* const content = std::get_if<SheetContent>(&result);
    if (content == nullptr) {
        return std::nullopt;
    }
    const auto drawing = std::make_shared<SheetDrawing>(content->drawing);
    return ReportPicture{FormatText(kMeasuresHeading.In(language), content->scale), drawing->box.Height(),
                         [drawing](Surface& page, const PixelRect& place) {
                             const double left = (place.left + place.right) / 2.0 / kUnitsPerMm;
                             const Point corner{left - drawing->box.Width() / 2, place.top / kUnitsPerMm};
                             PaintDrawing(page, *drawing, {drawing->box, corner});
                         }};
}

std::vector<std::string> TitlesOf(std::span<const ListColumn> columns, int language)
{
    std::vector<std::string> titles;
    for (const ListColumn& column : columns) {
        titles.emplace_back(column.title.In(language));
    }
    return titles;
}

ReportTable TableOf(const ReportPage& page, const ReportContext& context)
{
    ReportTable table{page.title.In(context.language)};
    if (page.name == std::string_view("balance")) {
        table.columns = TitlesOf(kBalanceColumns, context.language);
    }
    page.write(context, [&table](const std::string& line) {
        table.rows.push_back(CellsOfLine(line));
        return table.rows.size() <= kMostTableRows; // one more is enough to tell that there are more
    });
    return table;
}

std::optional<ReportTable> MaskTable(const CouderMask* mask, int language)
{
    const ZoneTable zones = MaskZones(mask);
    if (zones.RowCount() == 0) {
        return std::nullopt;
    }
    ReportTable table{kMaskHeading.In(language), TitlesOf(zones.Columns(), language)};
    for (std::int32_t i = 0; i < zones.RowCount(); ++i) {
        table.rows.push_back(zones.Row(i));
    }
    return table;
}

/// The wavefronts of the series that can be reduced, as curves and as a list.
void AddWavefronts(PaperReport& report, const ReadingBook* readings, COrrevaData& record, int language)
{
    constexpr std::size_t kMostCurves = 6; // which have colours of their own
    if (readings == nullptr) {
        return;
    }
    std::vector<std::size_t> all(readings->series.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const double D = record.GetMirrorDiameter();
    std::vector<SeriesFigure> figures =
        FiguresOfSeries(*readings, all, false, D, record.GetFocalLength(), language);
    std::erase_if(figures, [](const SeriesFigure& figure) { return !figure.figure; });
    figures.erase(figures.begin() + static_cast<std::ptrdiff_t>(std::min(figures.size(), kMostCurves)),
                  figures.end());
    std::vector<WavefrontCurve> curves;
    for (const SeriesFigure& figure : figures) {
        curves.push_back({&*figure.figure, figures.size() > 1 ? figure.name : std::string()});
    }
    if (curves.empty()) {
        return;
    }
    report.parts.emplace_back(
        ChartPicture(kWavefrontHeading, WavefrontChart(curves, D, readings->wavelength, language), language));
    report.parts.emplace_back(ReportTable{kWavefrontHeading.In(language),
                                          SeriesResultTitles(figures, language),
                                          SeriesResultRows(figures, language)});
}

void AddPictures(PaperReport& report, COrrevaData& record, double width, int language)
{
    report.parts.emplace_back(SectionOnPaper(record, width, language));
    if (auto measures = MeasuresOnPaper(record, width, language)) {
        report.parts.emplace_back(std::move(*measures));
    }
}

void AddExtras(PaperReport& report, COrrevaData& record, const ReportExtras& extras, int language)
{
    if (auto mask = MaskTable(extras.mask, language)) {
        report.parts.emplace_back(std::move(*mask));
    }
    const IlluminationStops stops = ReadIlluminationStops(record);
    if (HasIllumination(stops)) {
        const double wanted = record.GetWanted100PercentFow();
        report.parts.emplace_back(ChartPicture(
            kCurveHeading, IlluminationChart(stops, wanted, {}, kLightIllumination, language), language));
    }
    AddWavefronts(report, extras.readings, record, language);
}

} // namespace

ReportDesign::ReportDesign(const TelescopeFields& fields)
{
    static_cast<TelescopeFields&>(m_record) = fields;
    Recalculate(m_record);
    m_figures = Recalculate(m_record);
}

ReportContext ReportDesign::Context(int language)
{
    return {m_record, m_figures.field.angle, m_figures.field.diameter, m_figures.mirror_back_position,
            language};
}

std::string ReportDate(const std::tm& day, int language)
{
    char text[32];
    return {text, std::strftime(text, sizeof text, Bilingual{"%Y-%m-%d", "%d.%m.%Y"}.In(language), &day)};
}

std::string DateOfDesign(const std::string& path, int language)
{
    struct stat file = {};
    const bool there = !path.empty() && stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode);
    const std::time_t time = there ? file.st_mtime : std::time(nullptr);
    std::tm day = {};
    return localtime_r(&time, &day) != nullptr ? ReportDate(day, language) : std::string();
}

std::vector<const ReportPage*> WindowReportPages()
{
    constexpr const char* kNames[] = {"summary", "primary",   "secondary", "tube",    "focuser",
                                      "cell",    "eyepieces", "balance",   "foucault"};
    std::vector<const ReportPage*> pages;
    std::ranges::transform(kNames, std::back_inserter(pages), FindReportPage);
    return pages;
}

PaperDocument ReportOnPaper(ReportDesign& design, std::span<const ReportPage* const> pages,
                            const ReportContext& context, const ReportExtras& extras, const PaperSize& paper)
{
    COrrevaData& record = design.Record();
    const std::string title = record.GetTitle().GetText();
    PaperReport report{title.empty() ? "Orreva" : title, extras.date, record.GetDescription().GetText()};
    AddPictures(report, record, ReportWidth(paper), context.language);
    for (const ReportPage* const page : pages) {
        report.parts.emplace_back(TableOf(*page, context));
    }
    AddExtras(report, record, extras, context.language);
    return LayOutReport(report, paper, context.language);
}
