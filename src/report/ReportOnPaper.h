#pragma once

#include "drawing/paper/ReportLayout.h"
#include "model/analysis/Recalculation.h"
#include "model/optics/ReadingSeries.h"
#include "report/Report.h"

#include <ctime>
#include <optional>

/// A copy of a design that a report is made of. It is recalculated twice, so that no first reading shows, and
/// who prints a design leaves it as it is.
class ReportDesign {
public:
    explicit ReportDesign(const TelescopeFields& fields);

    ReportContext Context(int language);
    COrrevaData& Record() { return m_record; }

private:
    COrrevaData m_record{};
    Recalculation m_figures;
};

/// What a report on paper shows beside the pages' tables.
struct ReportExtras {
    std::string date;
    const CouderMask* mask = nullptr;      ///< the current one, null if there is none
    const ReadingBook* readings = nullptr; ///< of the knife edge, likewise
};

/// A day as a report tells it: 2026-11-21, in German 21.11.2026.
std::string ReportDate(const std::tm& day, int language);
/// The local day of a file's last change; today where nothing stands at the path, or nothing with a day.
std::string DateOfDesign(const std::string& path, int language);

/// The pages of the window's report: the summary, the telescope sheet and the zones.
std::vector<const ReportPage*> WindowReportPages();

/// The cross-section with its measures, the pages as tables, the mask, the curve of the illumination and the
/// wavefronts, as far as there are any, laid out on paper.
PaperDocument ReportOnPaper(ReportDesign& design, std::span<const ReportPage* const> pages,
                            const ReportContext& context, const ReportExtras& extras, const PaperSize& paper);
