#include "app/SaveReport.h"

#include "document/FileMasks.h"
#include "document/OrrevaDoc.h"
#include "document/PrintName.h"
#include "lib/text/CodePage.h"
#include "model/optics/CouderMask.h"
#include "painting/PaperFile.h"
#include "report/ReportOnPaper.h"

#include <QLocale>

namespace {

constexpr Bilingual kReportTitle{"Report as PDF", "Bericht als PDF"};

} // namespace

void SaveReport(COrrevaDoc& document)
{
    const COrrevaData& record = *document.active_record;
    ReportDesign design(record);
    const ReportExtras extras{DateOfDesign(record.file_path.GetText(), g_nLanguage), g_pCurrentMask.get(),
                              &document.readings.Book()};
    const std::vector<const ReportPage*> pages = WindowReportPages();
    const std::string bytes = PdfBytes(ReportOnPaper(design, pages, design.Context(g_nLanguage), extras,
                                                     PaperOfLocale(QLocale::system())))
                                  .toStdString();
    const std::string name = Utf8FromCp1252(ProposedFile(DesignName(record), ".pdf"));
    document.WriteExport(PaperMask(g_nLanguage, name.c_str(), kReportTitle), bytes, "Error writing...");
}
